// The scripted operator: every statement, on the real forms with handlers of the test in their slots.
#include "script/operator.h"

#include <gtest/gtest.h>

#include <memory>
#include <sstream>
#include <stdexcept>

#include "base/runtime_error.h"
#include "platform/machine.h"
#include "runstate/modul1.h"
#include "screen/frm_anzeigen.h"
#include "screen/frm_init.h"
#include "screen/frm_qso.h"
#include "script/command_line.h"
#include "script/parser.h"
#include "script/session.h"
#include "storage/schema.h"
#include "support/temporary_folder.h"

namespace {

using namespace std::chrono_literals;
using Lines = std::vector<std::string>;

/// What the handlers of a test heard, in order.
Lines& heard()
{
    static Lines lines;
    return lines;
}

void hear(const std::string& what)
{
    heard().push_back(what);
}

void sleepFor(platform::MonotonicTime duration)
{
    platform::Clock& clock = platform::machine().clock;
    clock.sleepUntil(clock.monotonic() + duration);
}

/// Takes all handlers out of the slots of a form: it does nothing by itself any more.
void silence(screen::Form& form)
{
    for (screen::Control* control : form.controls()) {
        control->Click = nullptr;
        control->DblClick = nullptr;
        control->GotFocus = nullptr;
        control->KeyDown = nullptr;
        control->KeyPress = nullptr;
        control->KeyUp = nullptr;
        if (control->kind == screen::Kind::timer) static_cast<screen::Timer*>(control)->Enabled = false;
        if (control->kind == screen::Kind::grid) static_cast<screen::Grid*>(control)->RowTouched = nullptr;
    }
    form.hooks.exitEntry = nullptr;
}

class ScriptOperator : public testing::Test {
 protected:
    void SetUp() override
    {
        heard().clear();
        storage::makeMissingDatabases(folder_.path());
        player_ = std::make_unique<script::Operator>(folder_.path(),
                                                     [this](const std::string& line) { printed_.push_back(line); });
    }

    bool play(const std::string& text) { return player_->play(script::parse(text, "s")); }

    /// Plays and gives what it printed.
    Lines printedBy(const std::string& text)
    {
        printed_.clear();
        play(text);
        return printed_;
    }

    /// A program on its first page whose controls do nothing by themselves.
    void startSilent()
    {
        play("start");
        silence(FrmInit);
        silence(FrmQSO);
        FrmInit.TxtMyCall.SetFocus();
        play("key F12");
        heard().clear();
    }

    /// The entry form on the screen, with rows in its first grid.
    void showRows()
    {
        play(
            "sql LogKelvo.mdb \"INSERT INTO Uus144a (Callsign, Data, UTC) VALUES ('YO2ABC', '15.11.26', '12:34'), "
            "('YO|3', 'a\\\\b', NULL), ('YO4XYZ', '', '12:36')\"");
        FrmQSO.Uus144a.DatabaseName = player_->machine().folder() + "\\LogKelvo.mdb";
        FrmQSO.Uus144a.RecordSource = "SELECT * FROM Uus144a";
        FrmQSO.Uus144a.Refresh();
        FrmQSO.DBGrid1.columnWidths = {0, 900, 910, 600};
        FrmQSO.DBGrid1.Visible = true;
        FrmInit.Hide();
        FrmQSO.Show();
    }

    void expectTally(int passed, int failed) const
    {
        EXPECT_EQ(player_->tally().passed, passed);
        EXPECT_EQ(player_->tally().failed, failed);
    }

    test::TemporaryFolder folder_;
    Lines printed_;
    std::unique_ptr<script::Operator> player_;
};

// Runs of the program.

TEST_F(ScriptOperator, StartsTheProgramWithItsCommandLine)
{
    play("start test");
    EXPECT_EQ(platform::machine().installation.commandLine(), "test");
    EXPECT_EQ(printedBy("expect form FrmInit"), Lines{});
    expectTally(1, 0);
}

TEST_F(ScriptOperator, DoesNotStartASecondProgram)
{
    EXPECT_EQ(printedBy("start\nstart"), Lines{"s:2: expected no running program got one"});
    expectTally(0, 1);
}

TEST_F(ScriptOperator, RestartsWithAFreshState)
{
    startSilent();
    Modul1.ConcId = 7;
    FrmInit.TxtMyCall.Text = "YO2XYZ";
    EXPECT_EQ(printedBy("restart again\nexpect state ConcId 0\nexpect TxtMyCall.Text \"\""), Lines{});
    EXPECT_EQ(platform::machine().installation.commandLine(), "again");
}

TEST_F(ScriptOperator, TellsThatTheProgramHasEnded)
{
    EXPECT_EQ(printedBy("expect ended"), Lines{"s:1: expected a program that has ended got none was started"});
    startSilent();
    EXPECT_EQ(printedBy("expect ended"), Lines{"s:1: expected a program that has ended got one that runs"});
    FrmInit.mnuExit.Click = [] { throw base::ProgramEnd{}; };
    EXPECT_EQ(printedBy("click mnuExit\nexpect ended\nclick mnuExit\nexpect form FrmInit\nshow form\nstart"),
              (Lines{"s:3: expected a running program got none", "s:4: expected a running program got it has ended",
                     "s:5: expected a running program got it has ended"}));
    EXPECT_EQ(printedBy("expect form FrmInit"), Lines{});
}

TEST_F(ScriptOperator, LetsGoOfTheRestOfAStatementWhenTheProgramEnds)
{
    startSilent();
    FrmInit.TxtMyCall.KeyDown = [](int& code) {
        hear(std::to_string(code));
        throw base::ProgramEnd{};
    };
    EXPECT_EQ(printedBy("type \"ABC\"\nexpect ended"), Lines{});
    EXPECT_EQ(heard(), Lines{"65"});
}

TEST_F(ScriptOperator, PressesTheCloseButton)
{
    startSilent();
    FrmInit.hooks.exitEntry = [] { hear("exit"); };
    play("close");
    EXPECT_EQ(heard(), Lines{"exit"});
}

// Pointer and focus.

TEST_F(ScriptOperator, ClicksWithTheFocusFirst)
{
    startSilent();
    FrmInit.txtMyQRA.GotFocus = [] { hear("focus"); };
    FrmInit.txtMyQRA.Click = [] { hear("click"); };
    FrmInit.mnuLOG.Click = [] { hear("menu"); };
    FrmInit.LblVar.Click = [] { hear("label"); };
    EXPECT_EQ(printedBy("click TXTMYQRA\nexpect focus txtMyQRA\nclick mnuLOG\nclick FrmInit.LblVar\n"
                        "expect focus FrmInit.txtMyQRA"),
              Lines{});
    EXPECT_EQ(heard(), (Lines{"focus", "click", "menu", "label"}));
}

TEST_F(ScriptOperator, DoesNotClickWhatCannotBeClicked)
{
    startSilent();
    FrmInit.TxtMyCall.Enabled = false;
    FrmInit.FramCW.Visible = false;
    EXPECT_EQ(printedBy("click TxtMyCall\nclick OpbCwJ\nclick FrmQSO.CmdA\nclick Nobody\ndblclick FrmQSO.tmrTimer"),
              (Lines{"s:1: expected TxtMyCall to take a click got it is disabled",
                     "s:2: expected OpbCwJ to take a click got it is hidden",
                     "s:3: expected FrmQSO.CmdA to take a click got FrmQSO is not on the screen",
                     "s:4: expected a control Nobody on FrmInit got none of that name",
                     "s:5: expected FrmQSO.tmrTimer to take a click got FrmQSO is not on the screen"}));
    expectTally(0, 5);
    EXPECT_EQ(printedBy("expect off TxtMyCall\nexpect off OpbCwJ\nexpect off FrmQSO.CmdA\nexpect off TxtTime"),
              Lines{"s:4: expected TxtTime off got it can be clicked"});
    expectTally(3, 6);
}

TEST_F(ScriptOperator, GivesTheFocusWithoutAClick)
{
    startSilent();
    FrmInit.txtMyQRA.GotFocus = [] { hear("focus"); };
    FrmInit.txtMyQRA.Click = [] { hear("click"); };
    play("focus txtMyQRA");
    EXPECT_EQ(heard(), Lines{"focus"});
    FrmInit.TxtTime.Enabled = false;
    FrmInit.TxtMyCall.Visible = false;
    EXPECT_EQ(printedBy("focus mnuLOG\nfocus TxtTime\nfocus TxtMyCall\nfocus FrmQSO.txtIndic"),
              (Lines{"s:1: expected mnuLOG to take the focus got it takes no keys",
                     "s:2: expected TxtTime to take the focus got it is disabled",
                     "s:3: expected TxtMyCall to take the focus got it is hidden",
                     "s:4: expected FrmQSO.txtIndic to take the focus got FrmQSO is not on the screen"}));
}

TEST_F(ScriptOperator, DoubleClicks)
{
    startSilent();
    FrmInit.TxtTime.Click = [] { hear("click"); };
    FrmInit.TxtTime.DblClick = [] { hear("double"); };
    play("dblclick TxtTime");
    EXPECT_EQ(heard(), Lines{"double"});
}

TEST_F(ScriptOperator, KnowsTheEntryForEmptyingALogByBothNames)
{
    startSilent();
    FrmInit.Hide();
    FrmAnzeigen.Show();
    FrmAnzeigen.mnuLOGLöschen.Visible = true;
    FrmAnzeigen.mnuLOGLöschen.Click = [] { hear("empty"); };
    EXPECT_EQ(printedBy("click mnuLOGL_schen\nclick mnuLOGLÖSCHEN"), Lines{});
    EXPECT_EQ(heard(), (Lines{"empty", "empty"}));
}

// Keys.

TEST_F(ScriptOperator, TypesKeyByKey)
{
    startSilent();
    FrmInit.TxtTime.KeyDown = [](int& code) { hear("down " + std::to_string(code)); };
    FrmInit.TxtTime.KeyPress = [](char32_t& character) { hear("press " + std::to_string(character)); };
    FrmInit.TxtTime.KeyUp = [](int& code) { hear("up " + std::to_string(code)); };
    FrmInit.TxtTime.Text = "";
    play("focus TxtTime\ntype \"a/ \"");
    EXPECT_EQ(heard(), (Lines{"down 65", "press 97", "up 65", "down 191", "press 47", "up 191", "down 32", "press 32",
                              "up 32"}));
    EXPECT_EQ(printedBy("expect TxtTime.Text \"a/ \"\nexpect TxtTime.SelStart 3"), Lines{});
}

TEST_F(ScriptOperator, PressesNamedKeys)
{
    startSilent();
    FrmInit.TxtTime.Text = "";
    EXPECT_EQ(printedBy("focus TxtTime\nkey a Shift+b Home Delete \"#\"\nexpect TxtTime.Text \"#B\"\n"
                        "key Ctrl+a\nexpect TxtTime.SelLength 2\nkey Backspace\nexpect TxtTime.Text \"\""),
              Lines{});
}

TEST_F(ScriptOperator, PastesThroughKeyPress)
{
    startSilent();
    FrmInit.TxtTime.Text = "";
    FrmInit.TxtTime.KeyPress = [](char32_t& character) {
        if (character == U'-') character = 0;
    };
    EXPECT_EQ(printedBy("focus TxtTime\npaste \"1-2\"\nexpect TxtTime.Text \"12\"\nkey Ctrl+v\n"
                        "expect TxtTime.Text \"1212\"\nkey Ctrl+A Ctrl+X End Ctrl+V Ctrl+V\n"
                        "expect TxtTime.Text \"12121212\""),
              Lines{});
}

TEST_F(ScriptOperator, HoldsKeysDownAndRepeatsThem)
{
    startSilent();
    FrmInit.TxtTime.Text = "";
    FrmInit.TxtTime.KeyUp = [](int& code) { hear("up " + std::to_string(code)); };
    EXPECT_EQ(printedBy("focus TxtTime\nrepeat 7 2\ndown 7\nrepeat 7 2\nup 7\nrepeat 7 1\n"
                        "expect TxtTime.Text \"777\""),
              (Lines{"s:2: expected 7 to be down got it is up", "s:6: expected 7 to be down got it is up"}));
    EXPECT_EQ(heard(), Lines{"up 55"});
}

TEST_F(ScriptOperator, DropsAReleaseOfAKeyThatDidNotGoDown)
{
    startSilent();
    FrmInit.TxtTime.KeyUp = [](int& code) { hear("up " + std::to_string(code)); };
    EXPECT_EQ(printedBy("focus TxtTime\nup 7"), Lines{});
    EXPECT_EQ(heard(), Lines{});
}

TEST_F(ScriptOperator, HoldsKeysForWhoPollsThem)
{
    startSilent();
    FrmInit.mnuLOG.Click = [] {
        const bool escape = platform::machine().keyState.pressed(platform::PolledKey::escape);
        hear(escape ? "Esc" : "none");
    };
    FrmInit.TxtMyCall.KeyDown = [](int&) { hear("key"); };
    play("click mnuLOG\nhold Esc\nclick mnuLOG\nclick mnuLOG\nrelease Esc\nclick mnuLOG\nkey Esc\nclick mnuLOG");
    EXPECT_EQ(heard(), (Lines{"none", "Esc", "Esc", "none", "key", "Esc"}));
}

// Time.

TEST_F(ScriptOperator, SetsTheCalendarAndWaits)
{
    EXPECT_EQ(printedBy("now 2026-11-15 12:34:56\nwait 3.5"), Lines{});
    const platform::Clock& clock = player_->machine().clock;
    EXPECT_EQ(clock.now(), std::chrono::local_days(std::chrono::year(2026) / 11 / 15) + 12h + 34min + 59s);
    EXPECT_EQ(clock.monotonic(), 3500ms);
}

TEST_F(ScriptOperator, TicksTimersAndDoesWhatIsDueInOrderOfTime)
{
    startSilent();
    FrmQSO.tmrTimer.Tick = [] { hear("tick"); };
    FrmQSO.tmrTimer.Interval = 1000;
    FrmQSO.tmrTimer.due = player_->machine().clock.monotonic() + 1s;
    FrmQSO.tmrTimer.Enabled = true;
    FrmInit.mnuLOG.Click = [] { hear("click"); };
    play("after 1.5 click mnuLOG\nafter 1 click mnuLOG\nwait 0.5\nwait 1.75");
    EXPECT_EQ(heard(), (Lines{"tick", "click", "click", "tick"}));
}

TEST_F(ScriptOperator, ActsAtOnceInTheMiddleOfAHandler)
{
    startSilent();
    FrmInit.mnuLOG.Click = [] {
        while (!platform::machine().keyState.pressed(platform::PolledKey::end))
            sleepFor(100ms);
        hear(std::to_string(platform::machine().clock.monotonic() / 1ms));
        Modul1.ConcId = 0;
    };
    Modul1.ConcId = 5;
    const std::string began = std::to_string(player_->machine().clock.monotonic() / 1ms + 2100);
    EXPECT_EQ(printedBy("after 1 show state ConcId\nafter 2.05 hold End\nafter 2 expect state ConcId 6\nclick mnuLOG\n"
                        "show state ConcId"),
              (Lines{"state ConcId=5", "s:3: expected state ConcId 6 got 5", "state ConcId=0"}));
    EXPECT_EQ(heard(), Lines{began});
    expectTally(0, 1);
}

TEST_F(ScriptOperator, QueuesKeysAndClicksUntilEventsAreServedOrTheHandlerEnds)
{
    startSilent();
    FrmInit.mnuLOG.Click = [] {
        sleepFor(2s);
        hear("slept");
        platform::serveEvents();
        hear("served");
        sleepFor(2s);
        hear("end");
    };
    FrmInit.mnuInputLog.Click = [] { hear("clicked"); };
    FrmInit.TxtMyCall.KeyDown = [](int& code) { hear(std::to_string(code)); };
    EXPECT_EQ(printedBy("after 1 type \"ab\"\nafter 3 click mnuInputLog\nclick mnuLOG"), Lines{});
    EXPECT_EQ(heard(), (Lines{"slept", "65", "66", "served", "end", "clicked"}));
}

TEST_F(ScriptOperator, KeepsTheNextKeysOfAStatementOutOfTheRunningHandler)
{
    startSilent();
    FrmInit.TxtMyCall.KeyDown = [](int& code) {
        hear("down " + std::to_string(code));
        platform::serveEvents();
        hear("end");
    };
    play("type \"ab\"");
    EXPECT_EQ(heard(), (Lines{"down 65", "end", "down 66", "end"}));
}

TEST_F(ScriptOperator, LooksForAControlWhenItsClickIsTaken)
{
    startSilent();
    FrmInit.mnuLOG.Click = [] {
        sleepFor(2s);
        FrmInit.TxtTime.Enabled = false;
    };
    EXPECT_EQ(printedBy("after 1 click TxtTime\nafter 1 click txtMyQRA\nclick mnuLOG\nexpect focus txtMyQRA"),
              Lines{"s:1: expected TxtTime to take a click got it is disabled"});
}

TEST_F(ScriptOperator, FailsWhatTheProgramDidNotTakeBeforeItEnded)
{
    startSilent();
    FrmInit.mnuLOG.Click = [] {
        sleepFor(2s);
        throw base::ProgramEnd{};
    };
    EXPECT_EQ(printedBy("after 1 type \"ab\"\nclick mnuLOG\nexpect ended"),
              Lines{"s:1: expected a running program got none"});
    expectTally(1, 1);
}

TEST_F(ScriptOperator, KillsTheProgramInTheMiddleOfAHandler)
{
    startSilent();
    FrmInit.TxtMyCall.KeyDown = [](int& code) {
        hear(std::to_string(code));
        sleepFor(2s);
        hear("end");
    };
    EXPECT_EQ(printedBy("after 1 restart again\ntype \"ab\"\nexpect form FrmInit\nexpect TxtMyCall.Text \"\""),
              Lines{});
    EXPECT_EQ(heard(), Lines{"65"});
    EXPECT_EQ(platform::machine().installation.commandLine(), "again");
}

TEST_F(ScriptOperator, EndsTheScriptWhenAHandlerDoesNotEnd)
{
    startSilent();
    FrmInit.mnuLOG.Click = [] {
        for (;;)
            sleepFor(1h);
    };
    FrmInit.mnuInputLog.Click = [] { sleepFor(24h); };
    EXPECT_EQ(printedBy("click mnuInputLog\nclick mnuLOG\nexpect form FrmInit\nshow form"),
              Lines{"s:2: expected the handler to end within 24 hours got one that goes on"});
    EXPECT_FALSE(play("start"));
    expectTally(0, 1);
}

TEST_F(ScriptOperator, WaitsLongerThanAHandlerMay)
{
    startSilent();
    EXPECT_EQ(printedBy("wait 200000\nexpect form FrmInit"), Lines{});
}

TEST_F(ScriptOperator, EndsTheScriptAtAFaultOfTheProgram)
{
    startSilent();
    FrmInit.mnuLOG.Click = [] { throw std::logic_error("a broken promise"); };
    EXPECT_EQ(printedBy("click mnuLOG\nexpect form FrmInit"),
              Lines{"s:1: expected no fault of the program got a broken promise"});
}

TEST_F(ScriptOperator, FailsForWhatIsLeftOver)
{
    startSilent();
    play("answer Yes\nafter 5 close\nanswer No");
    printed_.clear();
    player_->finish();
    EXPECT_EQ(printed_, (Lines{"s:1: expected a question for each answer got an answer left over",
                               "s:3: expected a question for each answer got an answer left over",
                               "s:2: expected time to reach the moment got a statement left over"}));
    expectTally(0, 3);
}

// Message boxes.

TEST_F(ScriptOperator, ChecksMessages)
{
    startSilent();
    FrmInit.mnuLOG.Click = [] {
        platform::msgBox("Falsche Eingabe");
        platform::msgBox("Folderul " + Modul1.AppPath + "\\WAVUus");
        platform::msgBox("VRETI ?", 36, "EXIT");
    };
    EXPECT_EQ(printedBy("nomessage\nanswer Yes\nclick mnuLOG\nmessage \"Falsche Eingabe\"\n"
                        "message like \"{FOLDER}\\\\WAV\"\nmessage \"VRETI ?\" \"EXIT\" 36\nnomessage"),
              Lines{});
    expectTally(5, 0);
    EXPECT_EQ(
        printedBy("answer No\nclick mnuLOG\nmessage \"Falsche\"\nmessage like \"folderul\"\n"
                  "message \"VRETI ?\" \"EXIT\" 52\nmessage any\nmessage \"a\" \"b\"\nmessage like \"a\""),
        (Lines{"s:3: expected message \"Falsche\" got \"Falsche Eingabe\"",
               "s:4: expected message like \"folderul\" got \"Folderul " + player_->machine().folder() + "\\\\WAVUus\"",
               "s:5: expected message \"VRETI ?\" \"EXIT\" 52 got \"VRETI ?\" \"EXIT\" 36",
               "s:6: expected a message got no message", "s:7: expected message \"a\" \"b\" got no message",
               "s:8: expected message like \"a\" got no message"}));
    EXPECT_EQ(printedBy("answer No\nclick mnuLOG\nmessage any\nnomessage"),
              Lines{"s:4: expected no message got \"Folderul " + player_->machine().folder() + "\\\\WAVUus\""});
}

TEST_F(ScriptOperator, FailsAQuestionWithoutAnAnswer)
{
    startSilent();
    FrmInit.mnuLOG.Click = [] { hear(platform::msgBox("VRETI ?", 36) == platform::buttonNo ? "No" : "Yes"); };
    EXPECT_EQ(printedBy("click mnuLOG\nanswer OK\nclick mnuLOG"),
              (Lines{"s:1: expected an answer Yes or No to \"VRETI ?\" got none",
                     "s:3: expected an answer Yes or No to \"VRETI ?\" got OK"}));
    EXPECT_EQ(heard(), (Lines{"No", "No"}));
    expectTally(0, 2);
}

TEST_F(ScriptOperator, NamesTheLineWhoseClickRaisedTheQuestion)
{
    startSilent();
    FrmInit.mnuLOG.Click = [] {
        sleepFor(2s);
        platform::serveEvents();
    };
    FrmInit.mnuInputLog.Click = [] { platform::msgBox("VRETI ?", 36); };
    EXPECT_EQ(printedBy("after 1 click mnuInputLog\n\nclick mnuLOG"),
              Lines{"s:1: expected an answer Yes or No to \"VRETI ?\" got none"});
}

// Looking at the program.

TEST_F(ScriptOperator, ChecksAndShowsProperties)
{
    startSilent();
    FrmInit.Caption = "Kelvo";
    FrmInit.TxtTime.Text = "-2";
    FrmInit.TxtTime.BackColor = screen::yellow;
    FrmInit.TxtTime.Left = 0.1;
    FrmInit.FramCW.Visible = false;
    FrmInit.OpbCwJ.Value = true;
    FrmInit.ChkCwRpt.Value = 1;
    EXPECT_EQ(printedBy("expect TxtTime.Text \"-2\"\nexpect TxtTime.BackColor 255,255,0\nexpect TxtTime.Left 0.1\n"
                        "expect OpbCwJ.Visible yes\nexpect OpbCwJ.Seen no\nexpect OpbCwJ.Value yes\n"
                        "expect ChkCwRpt.value 1\nexpect FrmInit.Caption \"Kelvo\"\nexpect frminit.Visible yes\n"
                        "expect FrmQSO.Visible no\nexpect FrmQSO.Seen no\nexpect FrmInit.FramCW.Visible no"),
              Lines{});
    EXPECT_EQ(printedBy("show txttime.text\nshow TxtTime.Left\nshow FrmInit.TxtTime.BackColor\nshow OpbCwJ.Value\n"
                        "show ChkCwRpt.Value\nshow FrmInit.Caption\nshow TxtTime.SelStart"),
              (Lines{"TxtTime.Text=\"-2\"", "TxtTime.Left=0.100000", "FrmInit.TxtTime.BackColor=255,255,0",
                     "OpbCwJ.Value=yes", "ChkCwRpt.Value=yes", "FrmInit.Caption=\"Kelvo\"", "TxtTime.SelStart=0"}));
    EXPECT_EQ(printedBy("expect TxtTime.Text \"2\"\nexpect TxtTime.Enabled no\nexpect TxtTime.Caption \"\"\n"
                        "expect FrmInit.Text \"\"\nexpect FrmInit.FrmQSO.Text \"\"\nshow TxtTime.Value"),
              (Lines{"s:1: expected TxtTime.Text \"2\" got \"-2\"", "s:2: expected TxtTime.Enabled no got yes",
                     "s:3: expected TxtTime.Caption got no such property of this control",
                     "s:4: expected FrmInit.Text got no such property of a form",
                     "s:5: expected a control FrmQSO on FrmInit got none of that name",
                     "s:6: expected TxtTime.Value got no such property of this control"}));
}

TEST_F(ScriptOperator, ShowsEveryPropertyOfEveryControl)
{
    startSilent();
    FrmInit.TxtTime.Text = "-2";
    const Lines lines = printedBy("show controls");
    EXPECT_EQ(std::count(lines.begin(), lines.end(), "TxtTime.Text=\"-2\""), 1);
    EXPECT_EQ(std::count(lines.begin(), lines.end(), "mnuLOG.Enabled=yes"), 1);
    for (const screen::Control* control : FrmInit.controls())
        EXPECT_TRUE(std::any_of(lines.begin(), lines.end(), [&](const std::string& line) {
            return line.starts_with(control->name + ".Seen=");
        })) << control->name;
}

TEST_F(ScriptOperator, ChecksAndShowsFocusAndForm)
{
    startSilent();
    EXPECT_EQ(printedBy("show focus\nshow form\nexpect focus TxtMyCall\nexpect form frminit"),
              (Lines{"TxtMyCall", "FrmInit"}));
    EXPECT_EQ(printedBy("expect focus TxtTime\nexpect focus FrmQSO.txtIndic\nexpect form FrmQSO"),
              (Lines{"s:1: expected focus on TxtTime got TxtMyCall",
                     "s:2: expected focus on FrmQSO.txtIndic got TxtMyCall", "s:3: expected form FrmQSO got FrmInit"}));
    FrmInit.Hide();
    EXPECT_EQ(printedBy("show form\nshow focus\nshow controls\nexpect form FrmInit\nexpect TxtTime.Text \"\"\n"
                        "expect focus FrmInit.TxtTime"),
              (Lines{"s:1: expected a form on the screen got none", "s:2: expected a form on the screen got none",
                     "s:3: expected a form on the screen got none", "s:4: expected form FrmInit got none",
                     "s:5: expected a form with TxtTime got no form on the screen",
                     "s:6: expected focus on FrmInit.TxtTime got none"}));
}

TEST_F(ScriptOperator, ChecksAndShowsTheRunState)
{
    startSilent();
    Modul1.BandCur = 144;
    Modul1.ModeCur = "CW";
    Modul1.ScaleX = 0.8F;
    FrmQSO.DupLock = 10;
    FrmQSO.NextCod = "014";
    EXPECT_EQ(printedBy("expect state bandcur 144\nexpect state ModeCur CW\nexpect state ScaleX 0.8\n"
                        "expect state FrmQSO.DupLock 10\nexpect state frmqso.nextcod \"014\""),
              Lines{});
    EXPECT_EQ(printedBy("show state bandcur\nshow state ModeCur\nshow state ScaleX\nshow state FRMQSO.duplock"),
              (Lines{"state BandCur=144", "state ModeCur=\"CW\"", "state ScaleX=0.800000", "state FrmQSO.DupLock=10"}));
    EXPECT_EQ(
        printedBy("expect state BandCur 432\nexpect state ModeCur \"SSB\"\nexpect state Nix 1\nshow state DupLock"),
        (Lines{"s:1: expected state BandCur 432 got 144", "s:2: expected state ModeCur \"SSB\" got \"CW\"",
               "s:3: expected a variable Nix got none of that name",
               "s:4: expected a variable DupLock got none of that name"}));
}

// Tables, grids and lists.

TEST_F(ScriptOperator, ChecksAndShowsTheDatabaseFiles)
{
    EXPECT_EQ(printedBy("expect rows Uus144a 0\nexpect rows qra 0"), Lines{});
    startSilent();
    showRows();
    play("sql dbskelvo.MDB \"INSERT INTO QRA VALUES ('YO9Z', 'KN44AA'), ('YO2A', NULL)\"");
    EXPECT_EQ(printedBy("expect rows uus144A 3\nexpect row Uus144a 1 \"YO2ABC\" \"15.11.26\" \"12:34\" \"\" \"\" \"\" "
                        "\"\" \"\" \"\"\nexpect row QRA 1 YO9Z KN44AA\nexpect row QRA -1 YO2A \"\"\n"
                        "expect row QRA -2 YO9Z KN44AA"),
              Lines{});
    EXPECT_EQ(printedBy("show table Uus144a\nshow table qra"),
              (Lines{"1|YO2ABC|15.11.26|12:34|\\N|\\N|\\N|\\N|\\N|\\N", "2|YO\\|3|a\\\\b|\\N|\\N|\\N|\\N|\\N|\\N|\\N",
                     "3|YO4XYZ||12:36|\\N|\\N|\\N|\\N|\\N|\\N", "YO9Z|KN44AA", "YO2A|\\N"}));
    EXPECT_EQ(
        printedBy("expect rows Uus144a 2\nexpect row QRA 1 YO9Z KN45AA\nexpect row QRA 3 YO9Z KN44AA\n"
                  "expect row QRA -3 YO9Z KN44AA\nexpect row QRA 1 YO9Z\nexpect rows Nix 0"),
        (Lines{"s:1: expected 2 rows in Uus144a got 3", "s:2: expected row 1 of QRA YO9Z|KN45AA got YO9Z|KN44AA",
               "s:3: expected row 3 of QRA got 2 rows", "s:4: expected row -3 of QRA got 2 rows",
               "s:5: expected row 1 of QRA YO9Z got YO9Z|KN44AA", "s:6: expected a table Nix got none of that name"}));
}

TEST_F(ScriptOperator, ChangesDatabasesBehindTheBackOfTheProgram)
{
    startSilent();
    showRows();
    Modul1.DbLog = storage::OpenDatabase(FrmQSO.Uus144a.DatabaseName);
    Modul1.DbLog.Execute("INSERT INTO Uus144a (Callsign) VALUES ('YO5A')");
    EXPECT_EQ(
        printedBy("expect rows Uus144a 4\nsql LogKelvo.mdb \"DELETE * FROM Uus144a\"\nexpect rows Uus144a 0\n"
                  "sql LogKelvo.mdb \"WITH RECURSIVE n(i) AS (VALUES(1) UNION ALL SELECT i+1 FROM n WHERE i < 500) "
                  "INSERT INTO Uus144a (Callsign) SELECT 'YO' || i FROM n\"\nexpect rows Uus144a 500"),
        Lines{});
    Modul1.DbLog.Execute("INSERT INTO Uus144a (Callsign) VALUES ('YO5A')");
    EXPECT_EQ(printedBy("expect rows Uus144a 501"), Lines{});
    expectTally(4, 0);
    const Lines refused = printedBy(
        "sql LogKelvo.mdb \"DELETE FROM Nix\"\nsql Nix.mdb \"DELETE FROM QRA\"\n"
        "sql LogKelvo.mdb \"DELETE FROM Uus144a; DELETE FROM Uus144b\"");
    ASSERT_EQ(refused.size(), 3U);
    EXPECT_EQ(refused[0], "s:1: expected sql DATABASE SQL to be done got LogKelvo.mdb has no table Nix");
    EXPECT_EQ(refused[1], "s:2: expected a database Nix.mdb got none of that name");
    EXPECT_TRUE(refused[2].starts_with("s:3: expected sql DATABASE SQL to be done got ")) << refused[2];
    EXPECT_EQ(printedBy("expect rows Uus144a 501"), Lines{});
}

TEST_F(ScriptOperator, FailsWhereADatabaseIsMissing)
{
    std::filesystem::remove(folder_.file("LogKelvo.mdb"));
    EXPECT_EQ(printedBy("expect rows Uus144a 0\nexpect rows QRA 0"),
              Lines{"s:1: expected expect rows TABLE COUNT to be done got LogKelvo.mdb is not there"});
    expectTally(1, 1);
}

TEST_F(ScriptOperator, ChecksAndShowsGrids)
{
    startSilent();
    showRows();
    FrmQSO.Uus144a.Recordset.MoveLast();
    EXPECT_EQ(printedBy("expect gridrows DBGrid1 3\nexpect gridrows FrmQSO.dbgrid2 0\n"
                        "expect grid DBGrid1 1 YO2ABC 15.11.26 12:34\nexpect grid DBGrid1 -2 \"YO|3\" \"a\\\\b\" \"\"\n"
                        "expect current DBGrid1 3\nexpect current DBGrid1 -1\nexpect DBGrid1.Width1 900"),
              Lines{});
    EXPECT_EQ(printedBy("show grid DBGrid1\nshow grid DBGrid2"),
              (Lines{"YO2ABC|15.11.26|12:34", "YO\\|3|a\\\\b|", "YO4XYZ||12:36"}));
    EXPECT_EQ(printedBy("expect gridrows DBGrid1 2\nexpect grid DBGrid1 1 YO2ABC\nexpect grid DBGrid1 4 a b c\n"
                        "expect grid DBGrid1 -4 a b c\nexpect current DBGrid1 1\nexpect current DBGrid2 1\n"
                        "expect grid txtIndic 1 a"),
              (Lines{"s:1: expected 2 rows in DBGrid1 got 3",
                     "s:2: expected row 1 of DBGrid1 YO2ABC got YO2ABC|15.11.26|12:34",
                     "s:3: expected row 4 of DBGrid1 got 3 rows", "s:4: expected row -4 of DBGrid1 got 3 rows",
                     "s:5: expected DBGrid1 on row 1 got 3", "s:6: expected DBGrid2 on row 1 got none",
                     "s:7: expected txtIndic to be a grid got another kind of control"}));
}

TEST_F(ScriptOperator, TouchesRowsOfGrids)
{
    startSilent();
    showRows();
    FrmQSO.DBGrid1.RowTouched = [] { hear(FrmQSO.Uus144a.Recordset.Field("Callsign")); };
    FrmQSO.DBGrid1.gesture = screen::RowGesture::doubleClick;
    EXPECT_EQ(printedBy("row DBGrid1 2\nexpect current DBGrid1 2\ndblrow DBGrid1 -1\nexpect current DBGrid1 3\n"
                        "row DBGrid1 4"),
              Lines{"s:5: expected row 4 of DBGrid1 got 3 rows"});
    EXPECT_EQ(heard(), Lines{"YO4XYZ"});
    FrmQSO.DBGrid1.gesture = screen::RowGesture::click;
    play("row DBGrid1 1");
    EXPECT_EQ(heard(), (Lines{"YO4XYZ", "YO2ABC"}));
    FrmQSO.DBGrid1.Visible = false;
    EXPECT_EQ(printedBy("row DBGrid1 1"), Lines{"s:1: expected DBGrid1 to take a click got it is hidden"});
}

TEST_F(ScriptOperator, PicksItemsOfLists)
{
    startSilent();
    FrmInit.Hide();
    FrmQSO.Show();
    FrmQSO.Frame3.Visible = true;
    FrmQSO.List1.Visible = true;
    FrmQSO.List1.items = {"2320", "5760", "10380"};
    FrmQSO.List1.Click = [] { hear("click " + FrmQSO.List1.Text()); };
    FrmQSO.List1.DblClick = [] { hear("double " + FrmQSO.List1.Text()); };
    EXPECT_EQ(printedBy("row List1 2\nexpect List1.Text \"5760\"\ndblrow List1 -1\nexpect list List1 1 \"2320\"\n"
                        "expect list List1 -1 \"10380\""),
              Lines{});
    EXPECT_EQ(heard(), (Lines{"click 5760", "click 10380", "double 10380"}));
    EXPECT_EQ(printedBy("row List1 4\nexpect list List1 2 \"10380\"\nexpect list List1 -4 \"\"\n"
                        "expect list txtIndic 1 \"\""),
              (Lines{"s:1: expected row 4 of List1 got 3 rows", "s:2: expected row 2 of List1 \"10380\" got \"5760\"",
                     "s:3: expected row -4 of List1 got 3 rows",
                     "s:4: expected txtIndic to be a list got another kind of control"}));
}

// Files and the machine.

TEST_F(ScriptOperator, WritesAndChecksFilesOfTheFolder)
{
    EXPECT_EQ(printedBy("file \"Log/Ștefan.txt\"\n| 1 # 2\n|\n|ț \nexpect file \"log/ștefan.TXT\"\n| 1 # 2\n|\n|ț \n"
                        "nofile \"Log/b.txt\"\nshow file \"Log/Ștefan.txt\"\nwav \"WAVUus/F1.wav\" 1"),
              (Lines{" 1 # 2", "", "ţ "}));
    EXPECT_EQ(test::readFile(folder_.path() / "Log" / "Ștefan.txt"), " 1 # 2\r\n\r\n\xFE \r\n");
    EXPECT_EQ(std::filesystem::file_size(folder_.path() / "WAVUus" / "F1.wav"), 8044U);
    EXPECT_EQ(printedBy("expect file \"Log/b.txt\"\nnofile \"Log\"\nshow file \"b.txt\"\nfile \"LOG\"\n"
                        "expect file \"Log/Ștefan.txt\"\n| 1\n"),
              (Lines{"s:1: expected a file b.txt got none", "s:2: expected no file Log got one",
                     "s:3: expected a file b.txt got none", "s:4: expected Log to be written got no access",
                     "s:5: expected line 1 of Ștefan.txt \" 1\" got \" 1 # 2\""}));
}

TEST_F(ScriptOperator, DescribesTheMachine)
{
    const script::MachineDescription& machine = player_->machine().description;
    EXPECT_EQ(printedBy("screen 1024 768\nsoundcard no\nport 3\nprinter fail\ndrive floppy\nunplug"), Lines{});
    EXPECT_EQ(machine.screen.width, 1024);
    EXPECT_EQ(machine.screen.height, 768);
    EXPECT_FALSE(machine.soundCard);
    EXPECT_EQ(machine.port, 3);
    EXPECT_TRUE(machine.portPulled);
    EXPECT_EQ(machine.printer, script::PrinterState::failing);
    EXPECT_EQ(machine.drive, player_->machine().folder() + "/floppy");
    EXPECT_TRUE(std::filesystem::is_directory(folder_.file("floppy")));
    play("soundcard yes\nport 3\nprinter no\ndrive none");
    EXPECT_TRUE(machine.soundCard);
    EXPECT_FALSE(machine.portPulled);
    EXPECT_EQ(machine.printer, script::PrinterState::missing);
    EXPECT_FALSE(machine.drive.has_value());
    play("port none\nprinter yes");
    EXPECT_FALSE(machine.port.has_value());
    EXPECT_EQ(machine.printer, script::PrinterState::there);
}

TEST_F(ScriptOperator, TellsTruthfullyThatNothingWasSentOrPlayed)
{
    EXPECT_EQ(printedBy("expect keyed 30 \"\"\nexpect sounds\nshow serial\nshow sounds\nshow printer"), Lines{});
    EXPECT_EQ(printedBy("expect keyed 30 \"CQ\"\nexpect sounds \"F1.wav\" \"F2.wav missing\""),
              (Lines{"s:1: expected \"CQ\" keyed at 30 got nothing was sent",
                     "s:2: expected sounds F1.wav|F2.wav missing got nothing"}));
    player_->machine().record.sounds.push_back({1500ms, "F1.wav"});
    EXPECT_EQ(printedBy("show sounds\nexpect sounds F1.wav\nexpect sounds\nshow sounds"),
              (Lines{"1500.000 F1.wav", "1500.000 F1.wav"}));
}

TEST_F(ScriptOperator, ShowsMessagesNoticesAndHelpOfAllRuns)
{
    startSilent();
    FrmInit.mnuLOG.Click = [] {
        platform::msgBox("VRETI ?", 36, "EXIT");
        platform::machine().notices.notice("a notice");
        platform::machine().help.open(400);
    };
    EXPECT_EQ(printedBy("wait 1.5\nanswer Yes\nclick mnuLOG\nrestart\nshow messages\nshow notices\nshow help"),
              (Lines{"36|EXIT|VRETI ?|Yes", "a notice", "1500.000 400"}));
}

// Several scripts, and the program around them.

TEST(ScriptSession, BeginsEachScriptAnewInOneFolder)
{
    const test::TemporaryFolder folder;
    Lines printed;
    script::Session session(folder.path(), [&](const std::string& line) { printed.push_back(line); });
    const script::Result first = session.play(
        "expect rows Uus144a 0\nscreen 640 480\nnow 2026-11-15 12:00:00\nwait 5\n"
        "sql LogKelvo.mdb \"INSERT INTO Uus144a (Callsign) VALUES ('YO2A')\"\n"
        "start\nexpect rows Uus144a 2\nafter 1 close\n",
        "first");
    EXPECT_EQ(first.passed, 1);
    EXPECT_EQ(first.failed, 2);
    EXPECT_EQ(first.output,
              "first:7: expected 2 rows in Uus144a got 1\n"
              "first:8: expected time to reach the moment got a statement left over\n");
    const script::Result second = session.play(
        "expect rows Uus144a 1\nexpect form FrmInit\nstart\n"
        "expect FrmInit.Width 12000\nexpect ended",
        "second");
    EXPECT_EQ(second.passed, 2);
    EXPECT_EQ(second.output,
              "second:2: expected a running program got none\n"
              "second:5: expected a program that has ended got one that runs\n");
    EXPECT_EQ(session.tally().passed, 3);
    EXPECT_EQ(session.tally().failed, 4);
    EXPECT_EQ(printed.size(), 4U);
    EXPECT_THROW(session.play("nix", "third"), script::UnreadableScript);
}

class ScriptCommandLine : public testing::Test {
 protected:
    int run(const std::vector<std::string>& arguments)
    {
        out_.str("");
        err_.str("");
        return script::runCommandLine(arguments, out_, err_);
    }

    std::string file(const std::string& name, const std::string& text)
    {
        test::writeFile(folder_.file(name), text);
        return folder_.file(name).string();
    }

    test::TemporaryFolder folder_;
    std::ostringstream out_;
    std::ostringstream err_;
};

TEST_F(ScriptCommandLine, CountsWhatPassedAndFailed)
{
    const std::string good = file("good", "expect rows QRA 0\nstart\nexpect form FrmInit\n");
    const std::string bad = file("bad", "expect rows QRA 1\n");
    EXPECT_EQ(run({good}), 0);
    EXPECT_EQ(out_.str(), "2 passed, 0 failed\n");
    EXPECT_EQ(run({good, bad}), 1);
    EXPECT_EQ(out_.str(), bad + ":1: expected 1 rows in QRA got 0\n2 passed, 1 failed\n");
    EXPECT_EQ(err_.str(), "");
}

TEST_F(ScriptCommandLine, PlaysNothingWhenAScriptCannotBeRead)
{
    const std::string good = file("good", "show table QRA\n");
    const std::string bad = file("bad", "start\nnix\n");
    const std::string missing = folder_.file("missing").string();
    const std::string folder = folder_.file("program").string();
    EXPECT_EQ(run({"--folder", folder, good, bad, missing}), 2);
    EXPECT_EQ(out_.str(), "");
    EXPECT_EQ(err_.str(), bad + ":2: there is no statement \"nix\"\n" + missing + ":0: the file cannot be read\n");
    EXPECT_FALSE(std::filesystem::exists(folder));
}

TEST_F(ScriptCommandLine, MakesAndKeepsTheFolderThatItIsGiven)
{
    const std::string folder = folder_.file("a/b").string();
    const std::string change = file("change", "sql DbsKelvo.mdb \"INSERT INTO QRA VALUES ('YO2A', 'KN05OS')\"\n");
    EXPECT_EQ(run({"--folder", folder, change}), 0);
    EXPECT_TRUE(std::filesystem::exists(folder + "/LogKelvo.mdb"));
    EXPECT_EQ(run({file("look", "show table QRA\nfile \"x\"\n|a\nshow file \"X\"\n"), "--folder", folder}), 0);
    EXPECT_EQ(out_.str(), "YO2A|KN05OS\na\n0 passed, 0 failed\n");
}

TEST_F(ScriptCommandLine, TellsOfAFolderThatCannotBeUsed)
{
    const std::string notAFolder = file("file", "");
    EXPECT_EQ(run({"--folder", notAFolder, file("good", "start\n")}), 2);
    EXPECT_EQ(out_.str(), "");
    EXPECT_TRUE(err_.str().starts_with("kelvo-script: ")) << err_.str();
}

TEST_F(ScriptCommandLine, ExplainsItself)
{
    EXPECT_EQ(run({"--help"}), 0);
    EXPECT_TRUE(out_.str().starts_with("usage: kelvo-script [--folder DIR] FILE...\n"));
    EXPECT_NE(out_.str().find("expect row TABLE N VALUE..."), std::string::npos);
    for (const std::vector<std::string>& wrong :
         {std::vector<std::string>{}, {"--folder"}, {"--folder", "x"}, {"--nix", "x"}}) {
        EXPECT_EQ(run(wrong), 2);
        EXPECT_EQ(err_.str(), "usage: kelvo-script [--folder DIR] FILE...\n");
    }
}

}  // namespace
