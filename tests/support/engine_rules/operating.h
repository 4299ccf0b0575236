// Buttons, options, check boxes, grids and menus, by keys and by the pointer.
#pragma once

#include <algorithm>

#include "storage/open_databases.h"
#include "support/face.h"

namespace test {

template <typename SomeFace>
class OperatingRules : public Desk<SomeFace> {
 protected:
    void startWatching(std::initializer_list<screen::Control*> controls)
    {
        this->start();
        this->watch(controls);
    }

    /// Names of the controls that keys lead to, until they come to the first one again.
    std::vector<std::string> wayOf(const std::string& key)
    {
        std::vector<std::string> names;
        const std::string first = this->focusedName();
        do {
            names.push_back(this->focusedName());
            this->strike(key);
        } while (this->focusedName() != first && names.size() < 100);
        return names;
    }

    static std::vector<std::string> stopsOf(const screen::Form& form)
    {
        std::vector<std::string> names;
        for (const screen::Control* control : form.controls())
            if (control->TabStop && control->canTakeFocus()) names.push_back(control->name);
        return names;
    }

    /// The entry form with three QSOs in the log, and its grid on the second one.
    void startWithThreeRows()
    {
        this->startAndOpenEntry();
        this->logQso("yo5aaa", "001", "kn16aa");
        this->logQso("yo6bbb", "002", "kn26aa");
        this->logQso("yo7ccc", "003", "kn15aa");
        ASSERT_TRUE(FrmQSO.DBGrid1.seen());
        this->watch({&FrmQSO.DBGrid1, &FrmQSO.txtIndic});
    }

    /// The review form with a hundred and more QSOs in view, on the first one.
    void startReviewing()
    {
        this->startAndOpenEntry();
        this->click(FrmQSO.mnuAnfang);
        this->click(FrmInit.mnuLOG);
        ASSERT_EQ(screen::activeForm(), &FrmAnzeigen);
        this->inProgram([] {
            storage::OpenDatabase(storage::logDatabasePath())
                .Execute(
                    "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 150) "
                    "INSERT INTO Uus144a (Callsign) SELECT 'YO' || i FROM n");
        });
        this->click(FrmAnzeigen.mnuLogAnzeigen);
        this->click(FrmAnzeigen.OpB144a);
        ASSERT_TRUE(FrmAnzeigen.DBGrid1.seen());
        this->watch({&FrmAnzeigen.DBGrid1, &FrmAnzeigen.OpB144a});
        this->goTo(FrmAnzeigen.OpB144a);
        this->inProgram([] { FrmAnzeigen.Uus144a.Recordset.MoveFirst(); });
    }

    static long currentRow(const screen::Grid& grid) { return std::stol(grid.data->Recordset.Field("ID")); }

    static std::string currentCall(const screen::Grid& grid) { return grid.data->Recordset.Field("Callsign"); }
};
TYPED_TEST_SUITE_P(OperatingRules);

TYPED_TEST_P(OperatingRules, AClickOnAChosenOptionRunsItsHandler)
{
    this->startWatching({&FrmInit.OpbCwN});
    ASSERT_TRUE(FrmInit.OpbCwN.Value);
    this->click(FrmInit.OpbCwN);
    EXPECT_EQ(this->takeLog(), Log({"OpbCwN GotFocus", "OpbCwN Click"}));
    EXPECT_TRUE(FrmInit.OpbCwN.Value);
}

TYPED_TEST_P(OperatingRules, AClickChoosesAnOptionBeforeItsHandlerRuns)
{
    this->startWatching({&FrmInit.OpbCwJ, &FrmInit.OpbCwN});
    this->onClick(FrmInit.OpbCwJ, [this] {
        this->note(FrmInit.OpbCwJ.Value && !FrmInit.OpbCwN.Value && FrmInit.OpbSSBN.Value ? "chosen" : "not chosen");
    });
    this->click(FrmInit.OpbCwJ);
    EXPECT_EQ(this->takeLog(), Log({"OpbCwJ GotFocus", "OpbCwJ Click", "chosen"}));
}

TYPED_TEST_P(OperatingRules, AValueSetByTheProgramRunsNoHandler)
{
    this->startWatching({&FrmInit.OpbCwJ, &FrmInit.OpbCwN, &FrmInit.ChkCwRpt});
    this->inProgram([] {
        FrmInit.OpbCwJ.Value = true;
        FrmInit.ChkCwRpt.Value = 1;
    });
    EXPECT_TRUE(FrmInit.OpbCwJ.Value);
    EXPECT_FALSE(FrmInit.OpbCwN.Value);
    EXPECT_TRUE(FrmInit.OpbSSBN.Value) << "another frame";
    EXPECT_EQ(this->takeLog(), Log({"mnuExit Click"}));
}

TYPED_TEST_P(OperatingRules, CheckBoxesTurnWithEachClickAndSpace)
{
    this->startWatching({&FrmInit.ChkCwRpt});
    this->inProgram([] { FrmInit.ChkCwRpt.Visible = true; });
    this->takeLog();
    this->click(FrmInit.ChkCwRpt);
    EXPECT_EQ(FrmInit.ChkCwRpt.Value, 1);
    this->strike("Space");
    EXPECT_EQ(FrmInit.ChkCwRpt.Value, 0);
    this->strike("Enter");
    EXPECT_EQ(FrmInit.ChkCwRpt.Value, 0) << "Enter presses buttons only";
    EXPECT_EQ(this->countOf("ChkCwRpt Click"), 2);
    this->down("Space");
    this->repeat("Space", 3);
    this->up("Space");
    EXPECT_EQ(FrmInit.ChkCwRpt.Value, 1);
}

TYPED_TEST_P(OperatingRules, SpaceAndEnterPressAButton)
{
    this->startAndOpenEntry();
    this->watch(FrmQSO.CmdAbbruchX);
    this->goTo(FrmQSO.CmdAbbruchX);
    this->strike("Space");
    EXPECT_EQ(this->countOf("CmdAbbruchX Click"), 1);
    this->strike("Enter");
    EXPECT_EQ(this->countOf("CmdAbbruchX Click"), 2);
    this->strike("x");
    EXPECT_EQ(this->countOf("CmdAbbruchX Click"), 2);
    this->down("Enter");
    this->repeat("Enter", 5);
    this->up("Enter");
    EXPECT_EQ(this->countOf("CmdAbbruchX Click"), 3);
}

TYPED_TEST_P(OperatingRules, SpaceChoosesAnOption)
{
    this->startWatching({&FrmInit.OpbCwJ});
    this->goTo(FrmInit.OpbCwJ);
    this->strike("Space");
    EXPECT_EQ(this->takeLog(), Log({"OpbCwJ KeyDown 32", "OpbCwJ KeyPress 32", "OpbCwJ Click", "OpbCwJ KeyUp 32"}));
    EXPECT_TRUE(FrmInit.OpbCwJ.Value);
}

TYPED_TEST_P(OperatingRules, AKeyThatAHandlerStoppedPressesNothing)
{
    this->startWatching({&FrmInit.OpbCwJ});
    this->goTo(FrmInit.OpbCwJ);
    this->onKeyPress(FrmInit.OpbCwJ, [](char32_t& character) { character = 0; });
    this->strike("Space");
    EXPECT_FALSE(FrmInit.OpbCwJ.Value);
}

TYPED_TEST_P(OperatingRules, ArrowsChooseAmongTheOptionsOfAFrame)
{
    this->startWatching({&FrmInit.OpbCwJ, &FrmInit.OpbCwN});
    this->goTo(FrmInit.OpbCwN);
    this->strike("Up");
    EXPECT_EQ(this->focusedName(), "OpbCwJ");
    EXPECT_TRUE(FrmInit.OpbCwJ.Value);
    EXPECT_EQ(this->countOf("OpbCwJ Click"), 1);
    this->strike("Left");
    EXPECT_EQ(this->focusedName(), "OpbCwN") << "round to the last one";
    EXPECT_EQ(this->countOf("OpbCwN Click"), 1);
    this->strike("Right");
    EXPECT_EQ(this->focusedName(), "OpbCwJ");
    this->inProgram([] { FrmInit.OpbCwN.Enabled = false; });
    this->goTo(FrmInit.OpbCwJ);
    this->strike("Down");
    EXPECT_EQ(this->focusedName(), "OpbCwJ") << "the other one is off";
    EXPECT_FALSE(this->noted("OpbCwN Click"));
}

TYPED_TEST_P(OperatingRules, ArrowsChooseInAList)
{
    this->startAndOpenEntry();
    this->watch(FrmQSO.List1);
    this->inProgram([] {
        FrmQSO.Frame3.Visible = true;
        FrmQSO.List1.Clear();
        for (const char* band : {"2320", "5760", "10368"})
            FrmQSO.List1.AddItem(band);
    });
    this->goTo(FrmQSO.List1);
    this->strike("Up");
    EXPECT_EQ(FrmQSO.List1.Text(), "") << "there is none above";
    this->down("Down");
    this->repeat("Down", 1);
    this->up("Down");
    EXPECT_EQ(FrmQSO.List1.Text(), "5760");
    EXPECT_EQ(this->countOf("List1 Click"), 2);
    this->strike("Up");
    EXPECT_EQ(FrmQSO.List1.Text(), "2320");
    this->down("Down");
    this->repeat("Down", 5);
    this->up("Down");
    EXPECT_EQ(FrmQSO.List1.Text(), "10368");
    EXPECT_EQ(this->countOf("List1 Click"), 5) << "no click where nothing else was chosen";
}

TYPED_TEST_P(OperatingRules, LettersHomeEndAndEnterChooseInAList)
{
    this->startAndOpenEntry();
    this->watch(FrmQSO.List1);
    this->inProgram([] {
        FrmQSO.Frame3.Visible = true;
        FrmQSO.List1.Clear();
        for (const char* item : {"2320", "5760", "24192", "ana"})
            FrmQSO.List1.AddItem(item);
    });
    this->goTo(FrmQSO.List1);
    this->strike("Enter");
    EXPECT_EQ(this->countOf("List1 Click"), 0) << "nothing is chosen yet";
    this->strike("5");
    EXPECT_EQ(FrmQSO.List1.Text(), "5760");
    this->strike("2");
    EXPECT_EQ(FrmQSO.List1.Text(), "24192") << "the next one";
    this->strike("2");
    EXPECT_EQ(FrmQSO.List1.Text(), "2320") << "round the end";
    this->strike("A");
    EXPECT_EQ(FrmQSO.List1.Text(), "ana");
    this->strike("x");
    this->strike("Ctrl+5");
    EXPECT_EQ(FrmQSO.List1.Text(), "ana");
    EXPECT_EQ(this->countOf("List1 Click"), 4);
    this->strike("Home");
    EXPECT_EQ(FrmQSO.List1.Text(), "2320");
    this->strike("End");
    EXPECT_EQ(FrmQSO.List1.Text(), "ana");
    EXPECT_EQ(this->countOf("List1 Click"), 6);
    this->strike("a");
    EXPECT_EQ(this->countOf("List1 Click"), 6) << "no other item begins so";
    this->strike("Enter");
    EXPECT_EQ(this->countOf("List1 Click"), 7);
}

TYPED_TEST_P(OperatingRules, AnItemOfAListMayWaitForEnter)
{
    this->startAndOpenEntry();
    this->watch(FrmQSO.List1);
    this->inProgram([] {
        FrmQSO.Frame3.Visible = true;
        FrmQSO.List1.choiceClicks = false;
        FrmQSO.List1.Clear();
        for (const char* item : {"..", "y2024", "y2025"})
            FrmQSO.List1.AddItem(item);
    });
    this->goTo(FrmQSO.List1);
    for (const char* key : {"Down", "Down", "y", "Home", "End"})
        this->strike(key);
    EXPECT_EQ(FrmQSO.List1.Text(), "y2025");
    EXPECT_EQ(this->countOf("List1 Click"), 0);
    this->strike("Enter");
    EXPECT_EQ(this->countOf("List1 Click"), 1);
}

TYPED_TEST_P(OperatingRules, ADoubleClickGivesTheFocusFirst)
{
    this->startIn(FrmInit.TxtMyCall);
    this->watch(FrmInit.txtMyQRA);
    this->doubleClick(FrmInit.txtMyQRA);
    ASSERT_FALSE(this->log().empty());
    EXPECT_EQ(this->log().front(), "txtMyQRA GotFocus");
    EXPECT_EQ(this->log().back(), "txtMyQRA DblClick");
}

TYPED_TEST_P(OperatingRules, WhatIsSwitchedOffTakesNoLetter)
{
    this->startIn(FrmInit.TxtMyCall);
    this->watch({&FrmInit.OpbConcurs, &FrmInit.mnuQSOfahren});
    this->inProgram([] {
        FrmInit.FraConcurs.Visible = true;
        FrmInit.FraConcurs.Enabled = false;
        FrmInit.mnuQSOfahren.Enabled = false;
    });
    this->goTo(FrmInit.TxtMyCall);
    this->strike("Alt+q");
    this->strike("Alt+o");
    EXPECT_EQ(this->countOf("mnuQSOfahren Click") + this->countOf("OpbConcurs Click"), 0);
    EXPECT_EQ(this->focusedName(), "TxtMyCall");
}

TYPED_TEST_P(OperatingRules, TabLeadsThroughTheSetUpPageInItsOrder)
{
    this->start();
    const std::vector<std::string> stops = this->stopsOf(FrmInit);
    ASSERT_GT(stops.size(), 15U);
    EXPECT_EQ(std::find(stops.begin(), stops.end(), "TxtMyName"), stops.end()) << "it is hidden";
    EXPECT_EQ(std::find(stops.begin(), stops.end(), "TxtF1"), stops.end()) << "its frame is hidden";
    this->goTo(FrmInit.TxtMyCall);
    EXPECT_EQ(this->wayOf("Tab"), stops);
}

TYPED_TEST_P(OperatingRules, ShiftAndTabLeadBack)
{
    this->start();
    std::vector<std::string> stops = this->stopsOf(FrmInit);
    this->goTo(FrmInit.TxtMyCall);
    std::reverse(stops.begin() + 1, stops.end());
    EXPECT_EQ(this->wayOf("Shift+Tab"), stops);
}

TYPED_TEST_P(OperatingRules, TabMovesNothingByItselfOnTheEntryForm)
{
    this->startAndOpenEntry();
    this->watch(FrmQSO.txtIndic);
    this->goTo(FrmQSO.txtIndic);
    this->strike("Tab");
    this->strike("Shift+Tab");
    EXPECT_EQ(this->focusedName(), "txtIndic");
    EXPECT_EQ(this->countOf("txtIndic KeyDown 9"), 2);
}

TYPED_TEST_P(OperatingRules, AltAndTheMarkedLetterClick)
{
    this->startIn(FrmInit.TxtMyCall);
    this->watch({&FrmInit.mnuQSOfahren, &FrmInit.OpbConcurs, &FrmInit.ChkCwRpt});
    this->strike("Alt+q");
    EXPECT_EQ(this->countOf("mnuQSOfahren Click"), 1);
    this->strike("Alt+o");
    this->strike("Alt+r");
    EXPECT_EQ(this->countOf("OpbConcurs Click"), 0) << "it is hidden with its frame";
    EXPECT_EQ(FrmInit.ChkCwRpt.Value, 0);
    EXPECT_EQ(this->focusedName(), "TxtMyCall");
    this->inProgram([] {
        FrmInit.FraConcurs.Visible = true;
        FrmInit.ChkCwRpt.Visible = true;
    });
    this->takeLog();
    this->strike("Alt+o");
    EXPECT_EQ(this->countOf("OpbConcurs Click"), 1);
    EXPECT_TRUE(FrmInit.OpbConcurs.Value);
    EXPECT_EQ(this->focusedName(), "OpbConcurs");
    this->strike("Alt+r");
    EXPECT_EQ(FrmInit.ChkCwRpt.Value, 1);
    EXPECT_EQ(FrmInit.TxtMyCall.Text.get(), "");
}

TYPED_TEST_P(OperatingRules, AltAndTheLetterOfAFrameLeadIntoIt)
{
    this->startIn(FrmInit.TxtMyCall);
    this->watch({&FrmInit.mnuQSOfahren, &FrmInit.OpbConcurs, &FrmInit.OpbTest});
    this->inProgram([] {
        FrmInit.FraConcurs.Visible = true;
        FrmInit.FraConcurs.Caption = "&Zona";
        FrmInit.OpbConcurs.Enabled = false;
    });
    this->goTo(FrmInit.TxtMyCall);
    this->strike("Alt+z");
    EXPECT_EQ(this->focusedName(), "OpbTest") << "the first one that can take it";
    EXPECT_EQ(this->takeLog(), Log({"OpbTest GotFocus"})) << "nothing is chosen";
    EXPECT_FALSE(FrmInit.OpbTest.Value);

    this->inProgram([] { FrmInit.FraConcurs.Caption = "&QTH"; });
    this->goTo(FrmInit.TxtMyCall);
    this->strike("Alt+q");
    EXPECT_EQ(this->countOf("mnuQSOfahren Click"), 1) << "the menu keeps its letter";
    EXPECT_EQ(this->countOf("OpbTest GotFocus"), 0);
}

TYPED_TEST_P(OperatingRules, AltAndALetterOfThePageClick)
{
    this->startAndOpenEntry();
    this->watch({&FrmQSO.Cmd432, &FrmQSO.txtIndic, &FrmQSO.TxtRSTR2});
    this->goTo(FrmQSO.txtIndic);
    this->strike("Alt+3");
    EXPECT_EQ(this->takeLog(), Log({"Cmd432 GotFocus", "Cmd432 Click"}));
    this->strike("Alt+d");
    EXPECT_EQ(this->takeLog(), Log({"TxtRSTR2 GotFocus", "TxtRSTR2 Click"}));
    this->strike("Alt+9");
    EXPECT_EQ(this->takeLog(), Log()) << "nobody has this letter";
    EXPECT_EQ(this->focusedName(), "TxtRSTR2");
    EXPECT_EQ(FrmQSO.TxtRSTR2.Text.get(), " ");
}

TYPED_TEST_P(OperatingRules, ALetterLeadsIntoAListAndPicksNoItem)
{
    this->startAndOpenEntry();
    this->inProgram([] {
        FrmQSO.Frame3.Visible = true;
        FrmQSO.List1.Clear();
        FrmQSO.List1.AddItem("2320");
    });
    this->watch({&FrmQSO.List1, &FrmQSO.txtIndic});
    this->goTo(FrmQSO.txtIndic);
    this->strike("Alt+y");
    EXPECT_EQ(this->takeLog(), Log({"List1 GotFocus"}));
    this->strike("2");
    EXPECT_EQ(this->countOf("List1 Click"), 1);
    EXPECT_EQ(FrmQSO.List1.Text(), "2320");
}

TYPED_TEST_P(OperatingRules, ALetterThatLeadsIntoAFullFieldDoesNotLeaveItWhenItComesUp)
{
    this->startAndOpenEntry();
    this->type("yo5aaa");
    this->strike("Tab");
    this->type("001");
    ASSERT_EQ(this->focusedName(), "TxtRSTr3");
    this->strike("Alt+d");
    EXPECT_EQ(this->focusedName(), "TxtRSTR2");
    this->strike("Backspace");
    EXPECT_EQ(FrmQSO.TxtRSTR2.Text.get(), "00 ");
    this->type("7");
    EXPECT_EQ(FrmQSO.TxtRSTR2.Text.get(), "007 ");
    EXPECT_EQ(this->focusedName(), "TxtRSTr3");
}

TYPED_TEST_P(OperatingRules, NoFieldGetsTheReleaseOfAKeyOfTheGrid)
{
    this->startWithThreeRows();
    for (const char* key : {"Ctrl+Up", "Ctrl+Down", "Ctrl+Delete"})
        this->strike(key);
    EXPECT_EQ(this->takeLog(), Log({"DBGrid1 RowTouched"}));
    this->strike("Up");
    EXPECT_EQ(this->takeLog(), Log({"txtIndic KeyDown 38", "txtIndic KeyUp 38"}));
}

TYPED_TEST_P(OperatingRules, EnterOfTheOperatorWalksThroughTheMessages)
{
    this->startAndOpenEntry();
    this->inProgram([] { FrmQSO.FramTxtCw.Visible = true; });
    this->strike("Alt+1");
    std::vector<std::string> way;
    for (int number = 1; number <= 7; ++number) {
        way.push_back(this->focusedName());
        this->strike("Enter");
    }
    EXPECT_EQ(way, Log({"TxtF1", "TxtF2", "TxtF3", "TxtF4", "TxtF5", "TxtF6", "TxtF7"}));
    EXPECT_EQ(this->focusedName(), "txtIndic");
}

TYPED_TEST_P(OperatingRules, F1OpensHelpWhereNoHandlerTakesIt)
{
    this->start();
    this->goTo(FrmInit.TxtRpNr);
    this->strike("F1");
    EXPECT_EQ(this->helpOpened(), std::vector<std::string>()) << "the field swallows it";
    this->goTo(FrmInit.OpbCwN);
    this->down("F1");
    this->repeat("F1", 3);
    this->up("F1");
    EXPECT_EQ(this->helpOpened(), std::vector<std::string>({"100"}));
}

TYPED_TEST_P(OperatingRules, HelpOpensAtTheNumberOfTheForm)
{
    this->startAndOpenEntry();
    this->focus(FrmQSO.CmdAbbruchX);
    this->strike("F1");
    EXPECT_EQ(this->helpOpened(), std::vector<std::string>({"400"}));
}

TYPED_TEST_P(OperatingRules, CtrlAndArrowsMoveInTheGrid)
{
    this->startWithThreeRows();
    this->inProgram([] { FrmQSO.Uus144a.Recordset.MoveLast(); });
    this->goTo(FrmQSO.txtIndic);
    const std::string last = this->currentCall(FrmQSO.DBGrid1);
    this->strike("Ctrl+Up");
    const std::string middle = this->currentCall(FrmQSO.DBGrid1);
    this->strike("Ctrl+Up");
    const std::string first = this->currentCall(FrmQSO.DBGrid1);
    EXPECT_EQ(std::vector<std::string>({first, middle, last}),
              std::vector<std::string>({"YO5AAA", "YO6BBB", "YO7CCC"}));
    this->strike("Ctrl+Up");
    EXPECT_EQ(this->currentCall(FrmQSO.DBGrid1), first) << "there is none above";
    this->down("Ctrl+Down");
    this->repeat("Ctrl+Down", 5);
    this->up("Ctrl+Down");
    EXPECT_EQ(this->currentCall(FrmQSO.DBGrid1), last);
    EXPECT_EQ(this->focusedName(), "txtIndic");
    EXPECT_EQ(this->countOf("txtIndic KeyDown 38") + this->countOf("txtIndic KeyDown 40"), 0);
}

TYPED_TEST_P(OperatingRules, CtrlAndPageKeysMoveByPagesOnTheReviewForm)
{
    this->startReviewing();
    screen::Grid& grid = FrmAnzeigen.DBGrid1;
    this->strike("Ctrl+PageDown");
    const long page = this->currentRow(grid) - 1;
    EXPECT_GT(page, 5);
    this->strike("Ctrl+PageDown");
    EXPECT_EQ(this->currentRow(grid), 1 + 2 * page);
    this->strike("Ctrl+PageUp");
    EXPECT_EQ(this->currentRow(grid), 1 + page);
    this->strike("Ctrl+Up");
    this->strike("Ctrl+PageUp");
    EXPECT_EQ(this->currentRow(grid), 1) << "no farther than the first row";
    this->down("Ctrl+PageDown");
    this->repeat("Ctrl+PageDown", 200);
    this->up("Ctrl+PageDown");
    EXPECT_EQ(this->currentRow(grid), 150);
    EXPECT_EQ(this->countOf("DBGrid1 RowTouched"), 0);
    EXPECT_EQ(this->countOf("OpB144a KeyDown 33") + this->countOf("OpB144a KeyDown 34"), 0);
}

TYPED_TEST_P(OperatingRules, CtrlHomeAndEndLeadToTheEndsOnTheReviewForm)
{
    this->startReviewing();
    screen::Grid& grid = FrmAnzeigen.DBGrid1;
    this->strike("Ctrl+End");
    EXPECT_EQ(this->currentRow(grid), 150);
    this->strike("Ctrl+End");
    EXPECT_EQ(this->currentRow(grid), 150);
    this->strike("Ctrl+Home");
    EXPECT_EQ(this->currentRow(grid), 1);
    this->strike("End");
    EXPECT_EQ(this->currentRow(grid), 1) << "without Ctrl it is a key like others";
    EXPECT_EQ(this->countOf("OpB144a KeyDown 35"), 1);
    this->inProgram([] { storage::OpenDatabase(storage::logDatabasePath()).Execute("DELETE * FROM Uus144a"); });
    this->click(FrmAnzeigen.OpB144a);
    for (const char* key : {"Ctrl+Home", "Ctrl+End", "Ctrl+PageUp", "Ctrl+PageDown", "Ctrl+Up"})
        this->strike(key);
    EXPECT_FALSE(grid.data->Recordset.currentKey()) << "an empty log";
}

TYPED_TEST_P(OperatingRules, OnTheEntryFormPageKeysAndEndStayWithTheField)
{
    this->startWithThreeRows();
    this->inProgram([] { FrmQSO.Uus144a.Recordset.moveTo(2); });
    this->goTo(FrmQSO.txtIndic);
    for (const char* key : {"Ctrl+PageUp", "Ctrl+PageDown", "Ctrl+Home", "Ctrl+End"})
        this->strike(key);
    EXPECT_EQ(this->currentCall(FrmQSO.DBGrid1), "YO6BBB");
    for (const char* code : {"33", "34", "35", "36"})
        EXPECT_EQ(this->countOf(std::string("txtIndic KeyDown ") + code), 1);
}

TYPED_TEST_P(OperatingRules, CtrlAndDeleteTouchTheRow)
{
    this->startWithThreeRows();
    FrmQSO.txtIndic.Text = "YO";
    this->down("Ctrl+Delete");
    this->repeat("Ctrl+Delete", 3);
    this->up("Ctrl+Delete");
    EXPECT_EQ(this->countOf("DBGrid1 RowTouched"), 1);
    EXPECT_EQ(FrmQSO.txtIndic.Text.get(), "YO");
}

TYPED_TEST_P(OperatingRules, ADoubleClickTouchesARowOfTheEntryForm)
{
    this->startWithThreeRows();
    this->clickRow(FrmQSO.DBGrid1, 1);
    EXPECT_EQ(this->countOf("DBGrid1 RowTouched"), 0);
    EXPECT_EQ(this->currentCall(FrmQSO.DBGrid1), "YO5AAA");
    this->doubleClickRow(FrmQSO.DBGrid1, 2);
    EXPECT_EQ(this->countOf("DBGrid1 RowTouched"), 1);
    EXPECT_EQ(this->currentCall(FrmQSO.DBGrid1), "YO6BBB");
    EXPECT_EQ(this->focusedName(), "txtIndic") << "the operator goes on typing";
}

TYPED_TEST_P(OperatingRules, AClickTouchesARowOfTheReviewForm)
{
    this->startWithThreeRows();
    this->click(FrmQSO.mnuAnfang);
    ASSERT_EQ(screen::activeForm(), &FrmInit);
    this->click(FrmInit.mnuLOG);
    ASSERT_EQ(screen::activeForm(), &FrmAnzeigen);
    this->inProgram([] {
        FrmAnzeigen.Uus144a.DatabaseName = storage::logDatabasePath();
        FrmAnzeigen.Uus144a.RecordSource = "SELECT * FROM Uus144a";
        FrmAnzeigen.Uus144a.Refresh();
        FrmAnzeigen.DBGrid1.columnWidths.fill(1000);
        FrmAnzeigen.DBGrid1.Visible = true;
    });
    this->watch(FrmAnzeigen.DBGrid1);
    this->clickRow(FrmAnzeigen.DBGrid1, 3);
    EXPECT_EQ(this->countOf("DBGrid1 RowTouched"), 1);
    EXPECT_EQ(this->currentCall(FrmAnzeigen.DBGrid1), "YO7CCC");
}

REGISTER_TYPED_TEST_SUITE_P(
    OperatingRules, AClickOnAChosenOptionRunsItsHandler, AClickChoosesAnOptionBeforeItsHandlerRuns,
    AValueSetByTheProgramRunsNoHandler, CheckBoxesTurnWithEachClickAndSpace, SpaceAndEnterPressAButton,
    SpaceChoosesAnOption, AKeyThatAHandlerStoppedPressesNothing, ArrowsChooseAmongTheOptionsOfAFrame,
    ArrowsChooseInAList, ADoubleClickGivesTheFocusFirst, WhatIsSwitchedOffTakesNoLetter,
    TabLeadsThroughTheSetUpPageInItsOrder, ShiftAndTabLeadBack, TabMovesNothingByItselfOnTheEntryForm,
    AltAndTheMarkedLetterClick, AltAndTheLetterOfAFrameLeadIntoIt, AltAndALetterOfThePageClick,
    ALetterLeadsIntoAListAndPicksNoItem, ALetterThatLeadsIntoAFullFieldDoesNotLeaveItWhenItComesUp,
    NoFieldGetsTheReleaseOfAKeyOfTheGrid, EnterOfTheOperatorWalksThroughTheMessages,
    LettersHomeEndAndEnterChooseInAList, AnItemOfAListMayWaitForEnter, CtrlAndPageKeysMoveByPagesOnTheReviewForm,
    CtrlHomeAndEndLeadToTheEndsOnTheReviewForm, OnTheEntryFormPageKeysAndEndStayWithTheField,
    F1OpensHelpWhereNoHandlerTakesIt, HelpOpensAtTheNumberOfTheForm, CtrlAndArrowsMoveInTheGrid,
    CtrlAndDeleteTouchTheRow, ADoubleClickTouchesARowOfTheEntryForm, AClickTouchesARowOfTheReviewForm);

}  // namespace test
