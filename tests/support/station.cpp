#include "support/station.h"

#include <sqlite3.h>

#include <stdexcept>

#include "base/text.h"
#include "platform/files.h"
#include "runstate/modul1.h"
#include "screen/frm_init.h"
#include "screen/frm_qso.h"
#include "script/key_names.h"

namespace test {

namespace fs = std::filesystem;

namespace {

std::string callNumber(int number)
{
    std::string letters;
    for (int i = 0; i < 4; ++i, number /= 26)
        letters.push_back(static_cast<char>('A' + number % 26));
    return "YO" + std::string(1, static_cast<char>('2' + number % 8)) + letters;
}

}  // namespace

PlainLog::PlainLog(const fs::path& file)
{
    if (sqlite3_open_v2(platform::pathText(file).c_str(), &handle_, SQLITE_OPEN_READWRITE, nullptr) != SQLITE_OK)
        throw std::runtime_error("the log cannot be opened");
    execute("PRAGMA journal_mode=TRUNCATE");
    execute("PRAGMA synchronous=FULL");
}

PlainLog::~PlainLog()
{
    sqlite3_close(handle_);
}

void PlainLog::execute(const std::string& statement)
{
    if (sqlite3_exec(handle_, statement.c_str(), nullptr, nullptr, nullptr) != SQLITE_OK)
        throw std::runtime_error(sqlite3_errmsg(handle_));
}

void fillLog(const fs::path& folder, std::string_view table, int rows)
{
    PlainLog log(folder / "LogKelvo.mdb");
    log.execute("BEGIN");
    for (int row = 0; row < rows; ++row)
        log.execute("INSERT INTO " + std::string(table) +
                    " (Callsign, Data, UTC, Sent, Rcvd, Mode, Freq, QRALoc, Pct) VALUES ('" + callNumber(row) +
                    "','15.11.26','12:34','599 001','599 002','CW','144','KN16AA','163')");
    log.execute("COMMIT");
}

void fillMemory(const fs::path& folder, int calls)
{
    PlainLog memory(folder / "DbsKelvo.mdb");
    memory.execute("BEGIN");
    for (int call = 0; call < calls; ++call)
        memory.execute("INSERT INTO QRA (Call, QRA_LOC) VALUES ('" + callNumber(call) + "','KN16AA')");
    memory.execute("COMMIT");
}

Station::Station(const fs::path& folder, app::PictureSink* sink)
    : machine_(folder), program_(machine_.drivers(), *this, sink)
{
    machine_.beginRun("");
    program_.start();
    click(FrmInit.OpBFloareademina);
    click(FrmInit.OpbConcurs);
    FrmInit.TxtMyCall.Text = "YO2XYZ";
    FrmInit.txtMyQRA.Text = "KN05OS";
    click(FrmInit.mnuQSOfahren);
    click(FrmQSO.Cmd144);
    click(FrmQSO.CmdCW);
    if (FrmQSO.ActiveControl != &FrmQSO.txtIndic) throw std::logic_error("the entry is not open");
}

void Station::click(screen::Control& control)
{
    program_.handle(app::ControlClicked{&control});
}

void Station::down(std::string_view name)
{
    program_.handle(app::KeyWentDown{script::keyNamed(name).value()});
}

void Station::press(std::string_view name)
{
    down(name);
    program_.handle(app::KeyWentUp{script::keyNamed(name).value()});
}

void Station::type(std::string_view text)
{
    for (const char32_t character : base::toCharacters(text)) {
        program_.handle(app::KeyWentDown{script::keyTyping(character)});
        program_.handle(app::KeyWentUp{script::keyTyping(character)});
    }
}

void Station::fillScreen(const std::string& call, bool known)
{
    type(call);
    press("Tab");
    type("012");
    if (!known) type("KN16AA");
    if (!FrmQSO.CmdEnterCall.Enabled) throw std::logic_error("the QSO is not ready to be logged: " + call);
}

}  // namespace test
