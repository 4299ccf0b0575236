// What the lines of the port do around a message, however it begins and ends; help beside it; very long messages.
#include <gtest/gtest.h>

#include <string>

#include "support/morse_model.h"
#include "support/script_player.h"

namespace {

using test::Lines;

constexpr const char* contestInCw = R"(
file "KelvoInit.dat"
|YO2ABC
|KN05OS
|0
| 1 
|
|
| 0 
|
|
|
|
|
|
|
|
|
|
file "KELVOTextCw.dat"
|E
|T
|TTTT
|
|
|
|
| 1 
start
click OpBCampInternUUS
click OpbTest
click OpbCwJ
click OpbSSBJ
click mnuQSOfahren
click Cmd144
click CmdCW
)";

class Sending : public test::ScriptPlayer {
 protected:
    void open(const std::string& machine = "port 1\n")
    {
        play(machine + "wav \"WAVUus/F1.wav\" 3\nwav \"WAVUus/F2.wav\" 2.5\n");
        play(std::string(contestInCw));
        play("click CmdSSB\nclick CmdCW");
        lines().clear();
    }

    std::vector<script::TimedEvent>& lines() { return player_->machine().record.serial; }
    test::LineLog log() { return test::logOf(lines()); }
    const std::vector<std::string>& notices() { return player_->machine().record.notices; }
};

TEST_F(Sending, HoldsTheTransmitterOnForAMessageAndKeysIt)
{
    open();
    play("key F1");
    EXPECT_EQ(log(), (Lines{"0 open 1", "0 RTS on", "0 DTR on", "37 DTR off", "338 RTS off", "338 close"}));
    EXPECT_TRUE(notices().empty());
}

TEST_F(Sending, PrintsWhatTheLinesDid)
{
    open();
    const Lines printed = printedBy("wait 1\nkey F2\nshow serial");
    ASSERT_EQ(printed.size(), 6U);
    EXPECT_EQ(printed, (Lines{"1000.000 open 1", "1000.000 RTS on", "1000.000 DTR on", "1110.000 DTR off",
                              "1411.000 RTS off", "1411.000 close"}));
}

TEST_F(Sending, HoldsTheTransmitterOnWhileASoundPlays)
{
    open();
    play("click CmdSSB\nfocus txtIndic\nkey F1");
    EXPECT_EQ(log(), (Lines{"0 open 1", "0 RTS on", "3000 RTS off", "3000 close"}));
    lines().clear();
    play("click CmdFm\nfocus txtIndic\nkey F2");
    EXPECT_EQ(log(), (Lines{"0 open 1", "0 RTS on", "2500 RTS off", "2500 close"}));
    lines().clear();
    play("key F3");
    EXPECT_EQ(log(), (Lines{"0 open 1", "0 RTS on", "0 RTS off", "0 close"}));
    EXPECT_TRUE(notices().empty());
}

TEST_F(Sending, TouchesNoLineWithoutAPort)
{
    open("port none\n");
    play("click CmdSSB\nfocus txtIndic\nkey F1");
    EXPECT_TRUE(lines().empty());
    EXPECT_EQ(notices(), (Lines{"There is no serial port 1"}));
    play("click CmdCW\nkey F1\nmessage \"PortComm inexistent !\" \"\" 48");
    EXPECT_TRUE(lines().empty());
    EXPECT_EQ(notices().size(), 2U);
    expectTally(1, 0);
}

TEST_F(Sending, LeavesBothLinesDownWhenTheProgramIsKilled)
{
    // The second T runs from 0.264 to 0.374.
    const Lines cut = {"0 open 1",   "0 RTS on",    "0 DTR on",    "110 DTR off",
                       "264 DTR on", "300 DTR off", "300 RTS off", "300 close"};
    open();
    play("after 0.3 restart\nkey F3");
    EXPECT_EQ(log(), cut);
    play("expect form FrmInit\nexpect keyed 30 \"T\"");

    lines().clear();
    play(
        "click OpBCampInternUUS\nclick OpbTest\nclick OpbSSBJ\nclick mnuQSOfahren\nclick Cmd144\nclick CmdSSB\n"
        "after 1 restart\nkey F1");
    EXPECT_EQ(log(), (Lines{"0 open 1", "0 RTS on", "1000 RTS off", "1000 close"}));
    expectTally(2, 0);
}

TEST_F(Sending, LeavesBothLinesDownWhenTheProgramIsLeft)
{
    open();
    play("after 0.3 close\nanswer Yes\nkey F3\nmessage any\nexpect ended");
    // The letter that is running ends, and events come 5 ms before the next one.
    EXPECT_EQ(log(), (Lines{"0 open 1", "0 RTS on", "0 DTR on", "110 DTR off", "264 DTR on", "374 DTR off",
                            "523 RTS off", "523 close"}));
    expectTally(2, 0);
}

TEST_F(Sending, LeavesBothLinesDownWhileABoxWaits)
{
    open();
    play("after 0.3 close\nanswer No\nkey F3\nmessage any\nexpect form FrmQSO");
    EXPECT_EQ(log().back(), "523 close");
    EXPECT_EQ(log().size(), 8U);
    lines().clear();
    play("after 0.3 click mnuAnfang\nkey F3\nexpect form FrmInit");
    EXPECT_EQ(log().back(), "523 close");
    EXPECT_EQ(log().size(), 8U);
    // No line is touched behind that.
    EXPECT_TRUE(notices().empty());
    expectTally(3, 0);
}

TEST_F(Sending, TellsOfAnAdapterThatWasPulledInTheMiddleOfAMark)
{
    open();
    play("after 0.3 unplug\nkey F3\nnomessage\nexpect form FrmQSO");
    EXPECT_EQ(log(), (Lines{"0 open 1", "0 RTS on", "0 DTR on", "110 DTR off", "264 DTR on", "300 close"}));
    EXPECT_EQ(notices().size(), 1U);
    expectTally(2, 0);
}

TEST_F(Sending, EndsTheMessageWhenTheLogFails)
{
    // A QSO that is logged while the message runs, into a table that is gone.
    open();
    play("sql LogKelvo.mdb \"DROP TABLE Uus144a\"\ntype \"HA5A\"\nafter 0.3 key Tab\nkey F3\nnomessage");
    EXPECT_EQ(log().back(), "523 close");
    EXPECT_FALSE(notices().empty());
}

TEST_F(Sending, OpensNoHelpByTheCallingKey)
{
    open();
    play("type \"HA5A\"\nkey Tab");
    for (const char* field : {"txtIndic", "txtRSTE2", "TxtRSTR2", "TxtRSTr3", "TxtRSTE1", "txtRSTe3", "TxtRSTR1"})
        play("focus " + std::string(field) + "\nkey F1");
    play(
        "click CmdMixt\nfocus txtIndic\nkey F1\nclick mnuAnfang\nclick ChkCwRpt\nclick ChkSSBRpt\n"
        "click mnuQSOfahren\nclick CmdCW\nfocus txtPauseCW\nkey F1\nclick CmdSSB\nfocus TxtPauseSSB\nkey F1\n"
        "click CmdFm\nfocus TxtPauseFm\nkey F1\nclick CmdGHz\nfocus TxtFGHz\nkey F1");
    EXPECT_TRUE(printedBy("show help").empty());
    // A message field does not know the key.
    play("click Cmd144\nclick CmdCW\nfocus TxtF4\nkey F1");
    EXPECT_EQ(printedBy("show help").size(), 1U);
    expectTally(0, 0);
}

TEST_F(Sending, HasRoomForVeryLongMessages)
{
    open();
    std::string text;
    while (text.size() < 10000)
        text += "CQ DE YO2ABC ";
    text.resize(10000, ' ');
    text.back() = 'K';
    play("focus TxtF4\npaste \"" + text + "\"\nexpect TxtF4.Text \"" + text + "\"\nfocus txtIndic\nkey F4");
    EXPECT_EQ(log(), test::keyedLines(text, 30));
    expectTally(1, 0);
}

TEST_F(Sending, GoesOnBehindCharacterHundredOfALongMessage)
{
    open();
    const std::string text = std::string(100, 'E') + "TEST";
    // The fourth E is the last: it runs from 0.573 to 0.610.
    play("focus TxtF4\npaste \"" + text + "\"\nfocus txtIndic\nafter 0.58 key End\nkey F4");
    EXPECT_EQ(log(), test::keyedLines(text, 30, [](int element) { return element == 4; }));
    play("expect keyed 30 \"EEEETEST\"");
    expectTally(1, 0);
}

}  // namespace
