// The desktop program from its first instruction on: ends once the set-up page is painted and takes keys.
#include <QApplication>
#include <QEvent>
#include <QTimer>
#include <memory>
#include <utility>

#include "desktop/desktop_program.h"
#include "desktop/run_program.h"
#include "start_mark.h"

namespace {

class FirstPage final : public QObject {
 public:
    explicit FirstPage(desktop::DesktopProgram& program) : program_(program)
    {
        program.form().installEventFilter(this);
    }

 private:
    bool eventFilter(QObject* form, QEvent* event) override
    {
        const bool painted = event->type() == QEvent::Paint && program_.picture().form == "FrmInit";
        // Behind the event the page is on its way to the screen.
        if (painted && !std::exchange(painted_, true)) QTimer::singleShot(0, this, [this] { lookWhetherReady(); });
        return QObject::eventFilter(form, event);
    }

    void lookWhetherReady()
    {
        if (!program_.settled()) return QTimer::singleShot(0, this, [this] { lookWhetherReady(); });
        QGuiApplication::sync();
        bench::tellReady();
        // quit() would ask the window, which asks the operator.
        QApplication::exit();
    }

    desktop::DesktopProgram& program_;
    bool painted_ = false;
};

}  // namespace

int main(int argc, char** argv)
{
    std::unique_ptr<FirstPage> page;
    return desktop::runProgram(
        argc, argv, [&page](desktop::DesktopProgram& program) { page = std::make_unique<FirstPage>(program); });
}
