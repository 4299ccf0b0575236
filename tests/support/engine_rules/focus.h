// Who has the focus, and when a field gets its GotFocus.
#pragma once

#include "support/face.h"

namespace test {

template <typename SomeFace>
class FocusRules : public Desk<SomeFace> {
 protected:
    /// The set-up page with the focus in the call, and the first three of its fields watched.
    void startWithThreeFields()
    {
        this->startIn(FrmInit.TxtMyCall);
        this->watch({&FrmInit.txtMyQRA, &FrmInit.TxtTime});
    }
};
TYPED_TEST_SUITE_P(FocusRules);

TYPED_TEST_P(FocusRules, GotFocusComesBehindTheCharacterOfTheKey)
{
    this->startWithThreeFields();
    this->onKeyDown(FrmInit.TxtMyCall, [](int& /*code*/) { FrmInit.txtMyQRA.SetFocus(); });
    this->onGotFocus(FrmInit.txtMyQRA, [this] { this->note("call " + FrmInit.TxtMyCall.Text.get()); });
    this->down("a");
    EXPECT_EQ(this->takeLog(), Log({"TxtMyCall KeyDown 65", "TxtMyCall KeyPress 97", "txtMyQRA GotFocus", "call a"}));
    this->up("a");
    EXPECT_EQ(this->takeLog(), Log({"txtMyQRA KeyUp 65"}));
}

TYPED_TEST_P(FocusRules, AKeyThatWasStoppedMovesTheFocusToo)
{
    this->startWithThreeFields();
    this->onKeyDown(FrmInit.TxtMyCall, [](int& code) {
        code = 0;
        FrmInit.txtMyQRA.SetFocus();
    });
    this->down("a");
    EXPECT_EQ(this->takeLog(), Log({"TxtMyCall KeyDown 65", "txtMyQRA GotFocus"}));
    this->up("a");
}

TYPED_TEST_P(FocusRules, KeyUpMayMoveTheFocus)
{
    this->startWithThreeFields();
    this->onKeyUp(FrmInit.TxtMyCall, [](int& /*code*/) { FrmInit.txtMyQRA.SetFocus(); });
    this->strike("a");
    this->strike("b");
    EXPECT_EQ(this->takeLog(),
              Log({"TxtMyCall KeyDown 65", "TxtMyCall KeyPress 97", "TxtMyCall KeyUp 65", "txtMyQRA GotFocus",
                   "txtMyQRA KeyDown 66", "txtMyQRA KeyPress 98", "txtMyQRA KeyUp 66"}));
}

TYPED_TEST_P(FocusRules, AClickGivesTheFocusAndGotFocusAndThenClick)
{
    this->startWithThreeFields();
    this->click(FrmInit.txtMyQRA);
    EXPECT_EQ(this->takeLog(), Log({"txtMyQRA GotFocus", "txtMyQRA Click"}));
    EXPECT_EQ(this->focusedName(), "txtMyQRA");
}

TYPED_TEST_P(FocusRules, AClickThatMovesTheFocusOn)
{
    this->startWithThreeFields();
    this->onClick(FrmInit.txtMyQRA, [] { FrmInit.TxtTime.SetFocus(); });
    this->click(FrmInit.txtMyQRA);
    EXPECT_EQ(this->takeLog(), Log({"txtMyQRA GotFocus", "txtMyQRA Click", "TxtTime GotFocus"}));
}

TYPED_TEST_P(FocusRules, GotFocusMayHandTheFocusOn)
{
    this->startWithThreeFields();
    this->onGotFocus(FrmInit.txtMyQRA, [] { FrmInit.TxtTime.SetFocus(); });
    this->onGotFocus(FrmInit.TxtTime, [] { FrmInit.TxtMyCall.SetFocus(); });
    this->focus(FrmInit.txtMyQRA);
    EXPECT_EQ(this->takeLog(), Log({"txtMyQRA GotFocus", "TxtTime GotFocus", "TxtMyCall GotFocus"}));
    EXPECT_EQ(this->focusedName(), "TxtMyCall");
}

TYPED_TEST_P(FocusRules, FieldsThatHandTheFocusToEachOtherComeToAnEnd)
{
    this->startWithThreeFields();
    this->onGotFocus(FrmInit.txtMyQRA, [] { FrmInit.TxtTime.SetFocus(); });
    this->onGotFocus(FrmInit.TxtTime, [] { FrmInit.txtMyQRA.SetFocus(); });
    this->focus(FrmInit.txtMyQRA);
    EXPECT_GT(this->countOf("TxtTime GotFocus"), 2);
    this->takeLog();
    this->onGotFocus(FrmInit.txtMyQRA, [] {});
    this->click(FrmInit.TxtMyCall);
    EXPECT_EQ(this->focusedName(), "TxtMyCall");
}

TYPED_TEST_P(FocusRules, TheFieldThatHasTheFocusGetsNoSecondGotFocus)
{
    this->startWithThreeFields();
    this->onKeyDown(FrmInit.TxtMyCall, [](int& /*code*/) {
        FrmInit.txtMyQRA.SetFocus();
        FrmInit.TxtMyCall.SetFocus();
    });
    this->strike("a");
    this->click(FrmInit.TxtMyCall);
    this->focus(FrmInit.TxtMyCall);
    EXPECT_EQ(this->takeLog(),
              Log({"TxtMyCall KeyDown 65", "TxtMyCall KeyPress 97", "TxtMyCall KeyUp 65", "TxtMyCall Click"}));
}

TYPED_TEST_P(FocusRules, AFieldThatHadTheFocusBeforeGetsItAnew)
{
    this->startWithThreeFields();
    this->focus(FrmInit.txtMyQRA);
    this->focus(FrmInit.TxtMyCall);
    EXPECT_EQ(this->takeLog(), Log({"txtMyQRA GotFocus", "TxtMyCall GotFocus"}));
}

TYPED_TEST_P(FocusRules, HiddenAndDisabledFieldsDoNotTakeIt)
{
    this->startWithThreeFields();
    this->watch(FrmInit.TxtF1);
    this->goTo(FrmInit.TxtTime);
    ASSERT_FALSE(FrmInit.FramTxtCw.Visible);
    this->onKeyDown(FrmInit.TxtTime, [this](int& /*code*/) {
        FrmInit.TxtMyCall.Visible = false;
        FrmInit.txtMyQRA.Enabled = false;
        for (screen::TextBox* box : {&FrmInit.TxtMyCall, &FrmInit.txtMyQRA, &FrmInit.TxtF1}) {
            box->SetFocus();
            EXPECT_EQ(this->focusedName(), "TxtTime");
        }
    });
    this->strike("a");
    EXPECT_EQ(this->focusedName(), "TxtTime");
    EXPECT_EQ(this->takeLog(), Log({"TxtTime KeyDown 65", "TxtTime KeyPress 97", "TxtTime KeyUp 65"}));
}

TYPED_TEST_P(FocusRules, AFieldHiddenBehindTheFocusGetsNoGotFocus)
{
    this->startAndOpenEntry();
    this->watch({&FrmQSO.txtIndic, &FrmQSO.TxtRSTR2});
    this->goTo(FrmQSO.txtIndic);
    this->onKeyDown(FrmQSO.txtIndic, [](int& /*code*/) {
        FrmQSO.TxtRSTR2.SetFocus();
        FrmQSO.TxtRSTR2.Visible = false;
    });
    this->strike("F2");
    EXPECT_EQ(this->takeLog(), Log({"txtIndic KeyDown 113"}));
}

TYPED_TEST_P(FocusRules, AHiddenFieldGetsNoKeys)
{
    this->startAndOpenEntry();
    this->watch(FrmQSO.txtIndic);
    this->goTo(FrmQSO.txtIndic);
    this->onKeyDown(FrmQSO.txtIndic, [](int& code) {
        code = 0;
        FrmQSO.txtIndic.Visible = false;
    });
    this->strike("a");
    this->strike("b");
    this->paste("c");
    EXPECT_EQ(this->takeLog(), Log({"txtIndic KeyDown 65"}));
    EXPECT_EQ(FrmQSO.txtIndic.Text.get(), "");
}

TYPED_TEST_P(FocusRules, AFieldThatIsTakenAwayHandsTheFocusToTheNextStopOfThePage)
{
    this->startWithThreeFields();
    this->onKeyDown(FrmInit.TxtMyCall, [](int& code) {
        code = 0;
        FrmInit.TxtMyCall.Visible = false;
    });
    this->strike("a");
    EXPECT_EQ(this->takeLog(), Log({"TxtMyCall KeyDown 65", "txtMyQRA GotFocus", "txtMyQRA KeyUp 65"}));
}

TYPED_TEST_P(FocusRules, ATimerMovesTheFocusToo)
{
    this->startWithThreeFields();
    this->inProgram([this] {
        this->watch(FrmQSO.tmrTimer);
        FrmQSO.tmrTimer.Interval = 5;
        FrmQSO.tmrTimer.due = {};
    });
    this->goTo(FrmInit.TxtMyCall);
    this->onTick(FrmQSO.tmrTimer, [] {
        FrmQSO.tmrTimer.Enabled = false;
        FrmInit.txtMyQRA.SetFocus();
    });
    this->onKeyDown(FrmInit.TxtMyCall, [this](int& /*code*/) {
        this->takeLog();
        serveUntil([this] { return this->noted("tmrTimer Tick"); });
        this->note("the handler goes on");
    });
    this->strike("F2");
    EXPECT_EQ(this->takeLog(),
              Log({"tmrTimer Tick", "txtMyQRA GotFocus", "the handler goes on", "txtMyQRA KeyUp 113"}));
}

TYPED_TEST_P(FocusRules, TheParkingPlaceOfTheEntryFormTakesKeysAndDoesNothing)
{
    this->startAndOpenEntry();
    this->focus(FrmQSO.TxtRez);
    EXPECT_EQ(this->focusedName(), "TxtRez");
    const std::string call = FrmQSO.txtIndic.Text;
    this->type("yo2abc 12");
    for (const char* key : {"Tab", "Enter", "Esc", "Backspace", "Delete", "Insert", "F12", "F8", "Left"})
        this->strike(key);
    this->paste("text");
    EXPECT_EQ(this->focusedName(), "TxtRez");
    EXPECT_EQ(FrmQSO.TxtRez.Text.get(), "");
    EXPECT_EQ(FrmQSO.txtIndic.Text.get(), call);
}

TYPED_TEST_P(FocusRules, TheParkingPlaceOfTheReviewFormTakesKeysAndDoesNothing)
{
    this->start();
    this->click(FrmInit.mnuLOG);
    ASSERT_EQ(screen::activeForm(), &FrmAnzeigen);
    this->focus(FrmAnzeigen.TxtFoc);
    this->type("a 1");
    this->strike("Enter");
    this->paste("text");
    EXPECT_EQ(this->focusedName(), "TxtFoc");
    EXPECT_EQ(FrmAnzeigen.TxtFoc.Text.get(), "");
}

REGISTER_TYPED_TEST_SUITE_P(FocusRules, GotFocusComesBehindTheCharacterOfTheKey, AKeyThatWasStoppedMovesTheFocusToo,
                            KeyUpMayMoveTheFocus, AClickGivesTheFocusAndGotFocusAndThenClick, AClickThatMovesTheFocusOn,
                            GotFocusMayHandTheFocusOn, FieldsThatHandTheFocusToEachOtherComeToAnEnd,
                            TheFieldThatHasTheFocusGetsNoSecondGotFocus, AFieldThatHadTheFocusBeforeGetsItAnew,
                            HiddenAndDisabledFieldsDoNotTakeIt, AFieldHiddenBehindTheFocusGetsNoGotFocus,
                            AHiddenFieldGetsNoKeys, AFieldThatIsTakenAwayHandsTheFocusToTheNextStopOfThePage,
                            ATimerMovesTheFocusToo, TheParkingPlaceOfTheEntryFormTakesKeysAndDoesNothing,
                            TheParkingPlaceOfTheReviewFormTakesKeysAndDoesNothing);

}  // namespace test
