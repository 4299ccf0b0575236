// What scripts expect and show: message boxes, properties, run state, tables, grids and lists.
#include "script/expectations.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "platform/machine.h"
#include "runstate/modul1.h"
#include "support/script_player.h"

namespace {

using namespace std::chrono_literals;
using test::hear;
using test::heard;
using test::Lines;
using test::sleepFor;

class ScriptExpectations : public test::ScriptPlayer {};

// Message boxes.

TEST_F(ScriptExpectations, ChecksMessages)
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

TEST_F(ScriptExpectations, FailsAQuestionWithoutAnAnswer)
{
    startSilent();
    FrmInit.mnuLOG.Click = [] { hear(platform::msgBox("VRETI ?", 36) == platform::buttonNo ? "No" : "Yes"); };
    EXPECT_EQ(printedBy("click mnuLOG\nanswer OK\nclick mnuLOG"),
              (Lines{"s:1: expected an answer Yes or No to \"VRETI ?\" got none",
                     "s:3: expected an answer Yes or No to \"VRETI ?\" got OK"}));
    EXPECT_EQ(heard(), (Lines{"No", "No"}));
    expectTally(0, 2);
}

TEST_F(ScriptExpectations, NamesTheLineWhoseClickRaisedTheQuestion)
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

TEST_F(ScriptExpectations, ChecksAndShowsProperties)
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

TEST_F(ScriptExpectations, ShowsEveryPropertyOfEveryControl)
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

TEST_F(ScriptExpectations, ChecksAndShowsFocusAndForm)
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

TEST_F(ScriptExpectations, ChecksAndShowsTheRunState)
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

TEST_F(ScriptExpectations, ChecksAndShowsTheDatabaseFiles)
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

TEST_F(ScriptExpectations, ChangesDatabasesBehindTheBackOfTheProgram)
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

TEST_F(ScriptExpectations, FailsWhereADatabaseIsMissing)
{
    std::filesystem::remove(folder_.file("LogKelvo.mdb"));
    EXPECT_EQ(printedBy("expect rows Uus144a 0\nexpect rows QRA 0"),
              Lines{"s:1: expected expect rows TABLE COUNT to be done got LogKelvo.mdb is not there"});
    expectTally(1, 1);
}

TEST_F(ScriptExpectations, ChecksAndShowsGrids)
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

TEST_F(ScriptExpectations, TouchesRowsOfGrids)
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

TEST_F(ScriptExpectations, PicksItemsOfLists)
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

}  // namespace
