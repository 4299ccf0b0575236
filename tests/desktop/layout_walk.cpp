#include "layout_walk.h"

#include <algorithm>

#include "app/picture_maker.h"
#include "runstate/contest_codes.h"
#include "runstate/contests.h"
#include "screen/frm_init.h"
#include "script/finding.h"
#include "script/parser.h"
#include "script/session.h"

namespace layout {

namespace {

constexpr const char* scriptName = "layout walk";

std::string buttonOf(int contest)
{
    return (FrmInit.*runstate::contestById(contest)->button).name;
}

/// What stands in every log. YO3DUP is the station that is worked again.
std::string rowsOfLog(const std::string& table)
{
    return "sql LogKelvo.mdb \"INSERT INTO " + table +
           " (Callsign, Data, UTC, Sent, Rcvd, Mode, Freq, QRALoc, Pct) VALUES "
           "('YO3DUP','15.11.26','10:00','599 001','599 012','CW','144','KN34BK','413'), "
           "('YO2ABC/P','15.11.26','10:05','599 002','599 001','CW','144','KN16AA','1250')\"\n";
}

std::string rowsOfMaratonLog()
{
    return "sql LogKelvo.mdb \"INSERT INTO UusLGYO2 (Callsign, Data, UTC, Sent, Rcvd, Mode, Bnd, QRALcR, NameR, Pct, "
           "QRALcE, NameE) VALUES "
           "('YO3DUP','15.11.26','10:00','59 001','59 001','SSB','144','KN16AA','CONSTANTIN','70','KN05OS','ION'), "
           "('YO3DUP','15.11.26','10:05','59 002','59 001','SSB','432','KN15AA','GELU','106','KN05OS','ION')\"\n";
}

}  // namespace

void prepareFolder(const std::filesystem::path& folder)
{
    std::string script =
        "sql DbsKelvo.mdb \"INSERT INTO QRA (Call, QRA_LOC) VALUES ('YO3DUP','KN34BK'), ('YO5NEU','KN16AA')\"\n"
        "wav \"WAVUus/F1.wav\" 3\n"
        "file \"KelvoInit.dat\"\n"
        "|YO2XYZ/P\n|KN05OS\n|2\n| 1 \n|SINGLE OP\n|ION POPESCU\n| 1 \n|LUGOJ\n|STR. LUNGA 1\n|HOME BREW\n"
        "|HOME BREW\n|9 EL. YAGI\n|\n|\n|\n|QSO BANAT\n|ION\n"
        "file \"KELVOTextCw.dat\"\n"
        "|TEST\n|#2 DE #1 UR 5NN #3 #4 BK\n|TU #1 TEST\n|QRA?\n|NR?\n|#1\n|73\n| 1 \n"
        "file \"Arhiva/YOVHFUHF 144 MHZ 2026.TXT\"\n|a log\n"
        "file \"Log/YO2XYZ144 Carpati26.txt\"\n|a log\n";
    script += rowsOfMaratonLog();
    for (const char* table : {"Uus144a", "Uus144b", "Uus432a", "Uus432b", "Uus1296a", "Uus1296b", "UusGHz"})
        script += rowsOfLog(table);
    script::Session(folder).play(script, scriptName);
}

Walk::Walk(const std::filesystem::path& folder, platform::ScreenSize screen, int contest, Look look, Complain complain)
    : screen_(screen),
      contest_(contest),
      look_(std::move(look)),
      complain_(std::move(complain)),
      operator_(folder, [this](const std::string& line) { take(line); })
{
}

void Walk::go()
{
    play("screen " + std::to_string(screen_.width) + " " + std::to_string(screen_.height) +
         "\nport 1\nnow 2026-11-15 12:34:00\nstart\n");
    setUp();
    entry();
    wayBack();
    review();
    paperLog();
    emptyLog();
    if (contest_ == 0) bandsOfTheChampionship();
    if (contest_ == 0) setUpWithoutSound();
}

void Walk::setUp()
{
    at("choice of the contest");
    play("click " + buttonOf(contest_) + "\n");
    at("CONCURS or TEST");
    play("click OpbConcurs\n");
    at("station data");
    play("click OpbCwJ\nclick OpbSSBJ\nclick ChkCwRpt\nclick ChkSSBRpt\n");
    at("CW and voice by the computer");
}

void Walk::setUpWithoutSound()
{
    play("soundcard no\nrestart\n");
    at("set-up without a sound card");
    play("soundcard yes\n");
}

void Walk::entry()
{
    play("click mnuQSOfahren\n");
    at("band and mode to choose");
    modes();
    bands();
    play("click CmdCW\n");
    exchange();
    duplicate();
    keying();
    voice();
}

void Walk::modes()
{
    clickEach({"CmdSSB", "CmdCW", "CmdFm", "CmdMixt"}, "mode");
}

void Walk::bands()
{
    stages("band of the contest");
    for (const char* button : {"Cmd1296", "Cmd432", "Cmd144"}) {
        // In the championship the first band holds for the whole run.
        if (contest_ == 0 && button != std::string("Cmd144")) continue;
        if (!canClick(button)) continue;
        play(std::string("click ") + button + "\n");
        stages(button);
    }
    if (canClick("CmdGHz")) microwaves();
}

void Walk::bandsOfTheChampionship()
{
    for (const char* button : {"Cmd432", "Cmd1296"}) {
        play("restart\nclick " + buttonOf(contest_) + "\nclick OpbTest\nclick mnuQSOfahren\nclick CmdSSB\nclick " +
             button + "\n");
        stages(button);
    }
}

void Walk::stages(const std::string& band)
{
    at(band);
    clickEach({"CmdB", "CmdA"}, band);
}

void Walk::microwaves()
{
    play("click CmdGHz\n");
    at("list of microwave bands");
    play("row List1 6\n");
    at("microwave band");
    play("click Cmd144\n");
}

void Walk::exchange()
{
    play("focus txtIndic\nkey Ctrl+a\ntype \"YO5N\"\n");
    at("call being typed");
    play("type \"EU\"\nkey Tab\n");
    at("clean call");
    play("type \"001\"\n");
    at("ready to log");
    play("click CmdAbbruchX\n");
    at("given up");
    play("focus txtIndic\nkey Ctrl+a\ntype \"YO9ZZZ\"\nkey Tab\ntype \"001\"\n");
    at("locator asked for");
    play("click CmdAbbruchX\n");
}

void Walk::duplicate()
{
    play("focus txtIndic\nkey Ctrl+a\ntype \"YO3DUP\"\nkey Tab\n");
    at("duplicate");
    play("type \"001\"\n");
    at("duplicate, code received");
    play("click CmdAbbruchX\n");
}

void Walk::keying()
{
    play("focus txtIndic\nkey Ctrl+a\ntype \"YO5NEU\"\nkey Tab\n");
    stateAmidst_ = "message being keyed";
    play("after 3 show form\nkey F2\n");
    play("click CmdAbbruchX\nfocus txtIndic\n");
    stateAmidst_ = "pause between two calls in CW";
    play("after 4 show form\nafter 5 key End\nkey F1\n");
}

void Walk::voice()
{
    play("click CmdSSB\nfocus txtIndic\n");
    stateAmidst_ = "pause between two calls in voice";
    play("after 4 show form\nafter 5 key End\nkey F1\n");
    play("click CmdFm\n");
}

void Walk::wayBack()
{
    play("click mnuAnfang\n");
    at("set-up on the way back");
}

void Walk::paperLog()
{
    play("click mnuAnfang\nclick mnuInputLog\n");
    at("set-up for a paper log");
    play("click mnuQSOfahren\nclick CmdCW\n");
    at("paper log");
    play("focus txtIndic\nkey Ctrl+a\ntype \"YO5NEU\"\nkey Tab\n");
    at("paper log, time of the QSO");
    play("click mnuAnfang\n");
}

void Walk::review()
{
    play("click mnuLOG\n");
    at("no job");
    views();
    archive();
    emptying();
    printing();
    diskette();
    textFiles();
    edi();
}

void Walk::views()
{
    const std::vector<std::string> logs = {"OpB144a", "Opb144b", "OpB432a", "OpB432b", "OpB1296a", "OpB1296b"};
    play("click mnuLogAnzeigen\n");
    at("logs to view");
    clickEach(logs, "log in view");
    play("click OpBQRALoc\n");
    at("locators in view");
    play("row DBGrid5 1\n");
    at("locator touched");
    play("click mnuLogAnzeigen\nclick OpB144a\nrow " +
         std::string(contest_ == runstate::maratonContest ? "DBGrid9" : "DBGrid1") + " 1\n");
    at("row touched");
    // What the next job finds behind it.
    if (canClick("OpB1296a")) play("click OpB1296a\n");
}

void Walk::emptying()
{
    play("click mnuLOGLöschen\n");
    at("logs to empty");
}

/// The last job: what it takes away is put back for the next contest.
void Walk::emptyLog()
{
    play("click mnuLOG\nclick mnuLOGLöschen\nanswer Yes\nclick OpbL144a\n");
    at("log emptied");
    play(contest_ == runstate::maratonContest ? rowsOfMaratonLog() : rowsOfLog("Uus144a"));
}

void Walk::printing()
{
    play("click mnuLOGDrucken\n");
    at("logs to print");
    for (const char* button : {"OpBD144a", "OpBD144b", "OpBD432a", "OpBD432b", "OpBD1296a", "OpBD1296b"}) {
        if (!canClick(button)) continue;
        // In the contest of four bands this one asks for the summary.
        const bool summary = contest_ == runstate::internationalContest && button == std::string("OpBD1296a");
        play(std::string(summary ? "" : "answer Yes\n") + "click " + button + "\n");
        at(std::string("printed: ") + button);
    }
    play("click mnuLOGDrucken\n");
    clickEach({"OpBDSumm144", "OpBDSumm432", "OpbDSumm1296"}, "station data to print");
}

void Walk::diskette()
{
    play("click MnuASCIIDATEI\n");
    at("files for the diskette");
    clickEach({"OpBDsk144"}, "files for the diskette");
}

void Walk::textFiles()
{
    play("click mnuFormTXT\n");
    at("text files");
    clickEach({"OpB0144"}, "text files");
    play("answer No\nclick CmdGata\n");
    at("text files, input not finished");
    play("answer Yes Yes\nclick CmdGata\n");
    at("text files written");
}

void Walk::edi()
{
    if (!canClick("mnuFormEDI")) return;
    play("click mnuFormEDI\n");
    at("band of the EDI file");
    for (const char* button : {"OpB144Edi", "OpB432Edi", "OpB1296Edi", "OpBGHzEdi"}) {
        if (!canClick(button)) continue;
        play(std::string("click ") + button + "\n");
        ediPages(button);
        play("click mnuFormEDI\n");
    }
}

void Walk::ediPages(const std::string& band)
{
    at("EDI page 1, " + band);
    play("click CmdNextPage\n");
    at("EDI page 2, " + band);
    play("answer Yes No\nclick CmdGata\n");
    at("EDI declaration refused, " + band);
}

void Walk::archive()
{
    play("click MnuArhiva\n");
    at("archive");
    clickEach({"OpB0144"}, "archive");
    play("focus TxtNameDat\ntype \"UUS 2026\"\nkey Enter\nclick CmdMem\n");
    at("archived");
}

void Walk::play(const std::string& script)
{
    operator_.play(script::parse(script, scriptName));
}

void Walk::at(const std::string& state)
{
    if (screen::activeForm() == nullptr) return complain_(state + ": no form is on the screen");
    look_(*app::makePicture(screen::activeForm(), gridViews_, 1), state);
}

bool Walk::canClick(const std::string& control) const
{
    return script::whyNotClickable(script::controlNamed(control)).empty();
}

void Walk::clickEach(const std::vector<std::string>& buttons, const std::string& state)
{
    for (const std::string& button : buttons) {
        if (!canClick(button)) continue;
        play("click " + button + "\n");
        std::string clicked = state;
        at(clicked.append(", ").append(button));
    }
}

/// Asked for by a script, the name of the form; all else are complaints.
void Walk::take(const std::string& line)
{
    const screen::Form* form = screen::activeForm();
    if (form != nullptr && line == form->name)
        at(stateAmidst_);
    else
        complain_(line);
}

}  // namespace layout
