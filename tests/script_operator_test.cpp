// The scripted operator: runs of the program, what he does to it, and time going by around it.
#include "script/operator.h"

#include <gtest/gtest.h>

#include <stdexcept>

#include "base/runtime_error.h"
#include "platform/machine.h"
#include "runstate/modul1.h"
#include "support/script_player.h"

namespace {

using namespace std::chrono_literals;
using test::hear;
using test::heard;
using test::Lines;
using test::sleepFor;

class ScriptOperator : public test::ScriptPlayer {};

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

}  // namespace
