#include "app/program.h"

#include "app/events.h"
#include "base/runtime_error.h"
#include "runstate/modul1.h"
#include "screen/frm_anzeigen.h"
#include "screen/frm_init.h"
#include "screen/frm_qso.h"

namespace app {

namespace {

void makeEverythingFresh()
{
    Modul1 = runstate::Modul1State{};
    screen::forgetActiveForm();
    screen::rebuild(FrmInit, screen::FormLife::neverLoaded);
    screen::rebuild(FrmQSO, screen::FormLife::neverLoaded);
    screen::rebuild(FrmAnzeigen, screen::FormLife::neverLoaded);
}

}  // namespace

std::vector<screen::Form*> forms()
{
    return {&FrmInit, &FrmQSO, &FrmAnzeigen};
}

Program::Program(platform::Machine& machine, EntrySource& source, PictureSink* sink) : engine_(forms(), source, sink)
{
    platform::setMachine(&machine, {[this] { engine_.serve(); }, [this] { engine_.publish(); }});
    base::setSwallowedErrorSink([&machine](const base::RuntimeError& error) {
        // Nobody knows what an unexpected error did to a message under way: the transmitter goes off.
        machine.serialPort.close();
        machine.notices.notice(error.what());
    });
    hookForms();
    makeEverythingFresh();
}

Program::~Program()
{
    makeEverythingFresh();
    base::setSwallowedErrorSink({});
    platform::setMachine(nullptr);
}

template <typename Work>
void Program::untilEnd(Work&& work)
{
    try {
        std::forward<Work>(work)();
        engine_.publish();
    } catch (const base::ProgramEnd&) {
        running_ = false;
        makeEverythingFresh();
    }
}

void Program::start()
{
    running_ = true;
    untilEnd([this] {
        base::quietly([] { screen::load(FrmInit); });
        engine_.settleFocus();
    });
}

void Program::handle(const QueueEntry& entry)
{
    if (running_) untilEnd([&] { engine_.handle(entry); });
}

void Program::publish()
{
    if (running_) engine_.publish();
}

void Program::tick()
{
    if (running_) untilEnd([this] { engine_.tick(); });
}

}  // namespace app
