// Keys that are held down, and keys that overlap.
#pragma once

#include <algorithm>
#include <map>

#include "base/text.h"
#include "support/face.h"

namespace test {

template <typename SomeFace>
class RepeatRules : public Desk<SomeFace> {
 protected:
    /// Every field of the form for which there is a road to the focus, with everything around it shown and switched on.
    static std::vector<screen::TextBox*> fieldsOf(const screen::Form& form)
    {
        std::vector<screen::TextBox*> fields;
        for (screen::Control* control : form.controls()) {
            if (control->kind != screen::Kind::textBox) continue;
            auto* box = static_cast<screen::TextBox*>(control);
            if (box->parking) continue;
            for (screen::Control* shown = box; shown != nullptr; shown = shown->container)
                shown->Visible = shown->Enabled = true;
            fields.push_back(box);
        }
        return fields;
    }

    /// A character that is held repeats into the field that has the focus, and into no other one.
    void expectCharactersToRepeatInEveryField(const screen::Form& form)
    {
        const std::vector<screen::TextBox*> fields = fieldsOf(form);
        ASSERT_GT(fields.size(), 10U);
        for (screen::TextBox* box : fields)
            this->watch(*box);
        std::map<const screen::TextBox*, std::string> expected;
        for (screen::TextBox* box : fields)
            expected[box] = box->Text.get();
        for (screen::TextBox* box : fields) {
            this->goTo(*box);
            box->caretToEnd();
            this->down("a");
            this->repeat("a", 3);
            this->up("a");
            expected[box] += "aaaa";
            for (const screen::TextBox* other : fields)
                EXPECT_EQ(other->Text.get(), expected[other]) << other->name << " while held in " << box->name;
            EXPECT_EQ(this->countOf(box->name + " KeyDown 65"), 4) << box->name;
            EXPECT_EQ(this->countOf(box->name + " KeyPress 97"), 4) << box->name;
            EXPECT_EQ(this->countOf(box->name + " KeyUp 65"), 1) << box->name;
            EXPECT_EQ(this->takeLog().size(), 9U) << box->name;
        }
    }

    /// Keys that act once act once in every field.
    void expectOneActAPress(const screen::Form& form, const std::vector<std::pair<std::string, int>>& keys)
    {
        const std::vector<screen::TextBox*> fields = fieldsOf(form);
        for (screen::TextBox* box : fields)
            this->watch(*box);
        for (screen::TextBox* box : fields) {
            for (const auto& [key, code] : keys) {
                this->goTo(*box);
                this->down(key);
                this->repeat(key, 3);
                this->up(key);
                EXPECT_EQ(this->countOf(box->name + " KeyDown " + std::to_string(code)), 1) << box->name << " " << key;
                EXPECT_EQ(this->countOf(box->name + " KeyUp " + std::to_string(code)), 1) << box->name << " " << key;
                EXPECT_LE(this->takeLog().size(), 3U) << box->name << " " << key;
            }
        }
    }

    /// The keys that act once, but Tab, and F10, which opens the menu on some systems.
    static std::vector<std::pair<std::string, int>> keysThatActOnce()
    {
        std::vector<std::pair<std::string, int>> keys = {{"Space", 32}, {"Enter", 13}, {"Esc", 27}, {"Insert", 45}};
        for (int number = 1; number <= 12; ++number)
            if (number != 10) keys.emplace_back("F" + std::to_string(number), 111 + number);
        return keys;
    }
};
TYPED_TEST_SUITE_P(RepeatRules);

TYPED_TEST_P(RepeatRules, CharactersRepeatInEveryFieldOfTheSetUpPage)
{
    this->start();
    this->expectCharactersToRepeatInEveryField(FrmInit);
}

TYPED_TEST_P(RepeatRules, CharactersRepeatInEveryFieldOfTheEntryForm)
{
    this->startAndOpenEntry();
    this->expectCharactersToRepeatInEveryField(FrmQSO);
}

TYPED_TEST_P(RepeatRules, KeysThatActOnceOnTheSetUpPage)
{
    this->start();
    this->expectOneActAPress(FrmInit, this->keysThatActOnce());
}

TYPED_TEST_P(RepeatRules, KeysThatActOnceOnTheEntryForm)
{
    this->startAndOpenEntry();
    std::vector<std::pair<std::string, int>> keys = this->keysThatActOnce();
    keys.emplace_back("Tab", 9);
    this->expectOneActAPress(FrmQSO, keys);
}

TYPED_TEST_P(RepeatRules, ATabThatIsHeldMovesOneFieldOnTheSetUpPage)
{
    this->startIn(FrmInit.TxtMyCall);
    this->watch(FrmInit.txtMyQRA);
    this->down("Tab");
    this->repeat("Tab", 3);
    this->up("Tab");
    EXPECT_EQ(this->takeLog(), Log({"txtMyQRA GotFocus", "txtMyQRA KeyUp 9"}));
}

TYPED_TEST_P(RepeatRules, ASpaceThatIsHeldLeavesOneBlank)
{
    this->startIn(FrmInit.TxtMyCall);
    this->down("Space");
    this->repeat("Space", 3);
    this->up("Space");
    EXPECT_EQ(FrmInit.TxtMyCall.Text.get(), " ");
}

TYPED_TEST_P(RepeatRules, EditingKeysRepeat)
{
    this->startIn(FrmInit.TxtMyCall);
    this->type("abcdef");
    this->down("Left");
    this->repeat("Left", 2);
    this->up("Left");
    EXPECT_EQ(FrmInit.TxtMyCall.SelStart, 3U);
    this->down("Backspace");
    this->repeat("Backspace", 1);
    this->up("Backspace");
    this->down("Delete");
    this->repeat("Delete", 1);
    this->up("Delete");
    EXPECT_EQ(FrmInit.TxtMyCall.Text.get(), "af");
}

TYPED_TEST_P(RepeatRules, RepeatsStopWhereTheFocusHasMoved)
{
    this->startIn(FrmInit.TxtMyCall);
    this->watch(FrmInit.txtMyQRA);
    this->down("a");
    this->repeat("a", 1);
    this->goTo(FrmInit.txtMyQRA);
    this->repeat("a", 3);
    this->up("a");
    EXPECT_EQ(this->takeLog(), Log({"txtMyQRA KeyUp 65"}));
    EXPECT_EQ(FrmInit.TxtMyCall.Text.get(), "aa");
    EXPECT_EQ(FrmInit.txtMyQRA.Text.get(), "");
}

TYPED_TEST_P(RepeatRules, AKeyThatMovesTheFocusDoesNotRepeatIntoTheNextField)
{
    this->startIn(FrmInit.TxtMyCall);
    this->watch(FrmInit.txtMyQRA);
    this->onKeyPress(FrmInit.TxtMyCall, [](char32_t& /*character*/) { FrmInit.txtMyQRA.SetFocus(); });
    this->down("a");
    this->repeat("a", 3);
    this->up("a");
    EXPECT_EQ(this->takeLog(),
              Log({"TxtMyCall KeyDown 65", "TxtMyCall KeyPress 97", "txtMyQRA GotFocus", "txtMyQRA KeyUp 65"}));
    EXPECT_EQ(FrmInit.txtMyQRA.Text.get(), "");
}

TYPED_TEST_P(RepeatRules, AKeyThatReachedNoFieldHasNoKeyUp)
{
    this->startAndOpenEntry();
    this->watch(FrmQSO.txtIndic);
    this->goTo(FrmQSO.txtIndic);
    FrmQSO.txtIndic.Enabled = false;
    this->down("a");
    this->repeat("a", 2);
    FrmQSO.txtIndic.Enabled = true;
    this->repeat("a", 2);
    this->up("a");
    this->up("Enter");
    EXPECT_EQ(this->takeLog(), Log());
    this->strike("b");
    EXPECT_EQ(this->takeLog(), Log({"txtIndic KeyDown 66", "txtIndic KeyPress 98", "txtIndic KeyUp 66"}));
}

TYPED_TEST_P(RepeatRules, AKeyThatReachedNoFieldComesUpUnheardBeforeTheNextToo)
{
    this->startAndOpenEntry();
    this->watch(FrmQSO.txtIndic);
    this->goTo(FrmQSO.txtIndic);
    FrmQSO.txtIndic.Enabled = false;
    this->down("a");
    FrmQSO.txtIndic.Enabled = true;
    this->down("b");
    this->up("a");
    this->up("b");
    EXPECT_EQ(this->takeLog(), Log({"txtIndic KeyDown 66", "txtIndic KeyPress 98", "txtIndic KeyUp 66"}));
}

TYPED_TEST_P(RepeatRules, AKeyWhoseReleaseWasLostGoesDownAgain)
{
    this->startIn(FrmInit.TxtMyCall);
    this->down("F2");
    this->down("F2");
    this->up("F2");
    this->up("F2");
    EXPECT_EQ(this->takeLog(), Log({"TxtMyCall KeyDown 113", "TxtMyCall KeyDown 113", "TxtMyCall KeyUp 113"}));
}

TYPED_TEST_P(RepeatRules, KeysThatOverlapComeUpBeforeTheNextGoesDown)
{
    this->startIn(FrmInit.TxtMyCall);
    this->down("1");
    this->down("2");
    EXPECT_EQ(this->takeLog(), Log({"TxtMyCall KeyDown 49", "TxtMyCall KeyPress 49", "TxtMyCall KeyUp 49",
                                    "TxtMyCall KeyDown 50", "TxtMyCall KeyPress 50"}));
    this->up("1");
    EXPECT_EQ(this->takeLog(), Log()) << "it came up already";
    this->up("2");
    EXPECT_EQ(this->takeLog(), Log({"TxtMyCall KeyUp 50"}));
    EXPECT_EQ(FrmInit.TxtMyCall.Text.get(), "12");
}

TYPED_TEST_P(RepeatRules, EveryKeyLetsTheLetterBeforeItComeUpFirst)
{
    this->startIn(FrmInit.TxtMyCall);
    this->down("a");
    this->strike("F2");
    this->up("a");
    EXPECT_EQ(this->takeLog(), Log({"TxtMyCall KeyDown 65", "TxtMyCall KeyPress 97", "TxtMyCall KeyUp 65",
                                    "TxtMyCall KeyDown 113", "TxtMyCall KeyUp 113"}));
}

TYPED_TEST_P(RepeatRules, ALetterWithCtrlComesUpInItsOwnTime)
{
    this->startIn(FrmInit.TxtMyCall);
    this->down("Ctrl+k");
    this->strike("a");
    this->up("Ctrl+k");
    EXPECT_EQ(this->takeLog(), Log({"TxtMyCall KeyDown 75", "TxtMyCall KeyDown 65", "TxtMyCall KeyPress 97",
                                    "TxtMyCall KeyUp 65", "TxtMyCall KeyUp 75"}));
}

TYPED_TEST_P(RepeatRules, TheLetterBehindThreeRolledDigitsLandsInTheNextField)
{
    this->startIn(FrmInit.TxtMyCall);
    this->watch(FrmInit.txtMyQRA);
    this->onKeyUp(FrmInit.TxtMyCall, [](int& /*code*/) {
        if (FrmInit.TxtMyCall.Text.get().size() == 3) FrmInit.txtMyQRA.SetFocus();
    });
    this->onGotFocus(FrmInit.txtMyQRA, [] {
        FrmInit.txtMyQRA.Text = "KN";
        FrmInit.txtMyQRA.caretToEnd();
    });
    this->down("1");
    this->down("2");
    this->up("1");
    this->down("3");
    this->up("2");
    EXPECT_EQ(this->focusedName(), "TxtMyCall");
    this->down("k");
    EXPECT_EQ(this->focusedName(), "txtMyQRA");
    this->up("3");
    this->up("k");
    EXPECT_EQ(FrmInit.TxtMyCall.Text.get(), "123");
    EXPECT_EQ(FrmInit.txtMyQRA.Text.get(), "KNk");
}

TYPED_TEST_P(RepeatRules, RolledDigitsMoveOnInTheEntryForm)
{
    this->startAndOpenEntry();
    this->type("yo5aaa");
    this->strike("Tab");
    ASSERT_EQ(this->focusedName(), "TxtRSTR2");
    this->down("0");
    this->down("1");
    this->up("0");
    this->down("2");
    this->up("1");
    EXPECT_EQ(this->focusedName(), "TxtRSTR2");
    this->down("k");
    EXPECT_EQ(this->focusedName(), "TxtRSTr3");
    this->up("2");
    this->down("n");
    this->up("k");
    this->up("n");
    EXPECT_EQ(base::trim(FrmQSO.TxtRSTR2.Text), "012");
    EXPECT_EQ(FrmQSO.TxtRSTr3.Text.get(), "KN");
    EXPECT_EQ(this->focusedName(), "TxtRSTr3");
}

TYPED_TEST_P(RepeatRules, AThirdDigitThatIsHeldMovesOnWhenItComesUp)
{
    this->startAndOpenEntry();
    this->type("yo5aaa");
    this->strike("Tab");
    this->type("01");
    this->down("2");
    EXPECT_EQ(this->focusedName(), "TxtRSTR2");
    this->up("2");
    EXPECT_EQ(this->focusedName(), "TxtRSTr3");
    EXPECT_EQ(FrmQSO.TxtRSTr3.Text.get(), "");
}

TYPED_TEST_P(RepeatRules, TabHeldInTheCallFieldTakesTheCallOnce)
{
    this->startAndOpenEntry();
    this->logQso("yo5aaa", "001", "kn16aa");
    this->type("yo6bbb");
    this->down("Tab");
    this->repeat("Tab", 20);
    this->up("Tab");
    ASSERT_FALSE(this->ended()) << "the next Tab in the code field would end the program";
    EXPECT_EQ(this->focusedName(), "TxtRSTR2");
    EXPECT_EQ(FrmQSO.TxtRSTR2.Text.get(), "");
}

TYPED_TEST_P(RepeatRules, AltAndALetterActOnce)
{
    this->startIn(FrmInit.TxtMyCall);
    this->watch(FrmInit.mnuQSOfahren);
    this->down("Alt+q");
    this->repeat("Alt+q", 5);
    this->up("Alt+q");
    EXPECT_EQ(this->countOf("mnuQSOfahren Click"), 1);
}

REGISTER_TYPED_TEST_SUITE_P(RepeatRules, CharactersRepeatInEveryFieldOfTheSetUpPage,
                            CharactersRepeatInEveryFieldOfTheEntryForm, KeysThatActOnceOnTheSetUpPage,
                            KeysThatActOnceOnTheEntryForm, ATabThatIsHeldMovesOneFieldOnTheSetUpPage,
                            ASpaceThatIsHeldLeavesOneBlank, EditingKeysRepeat, RepeatsStopWhereTheFocusHasMoved,
                            AKeyThatMovesTheFocusDoesNotRepeatIntoTheNextField, AKeyThatReachedNoFieldHasNoKeyUp,
                            AKeyThatReachedNoFieldComesUpUnheardBeforeTheNextToo, AKeyWhoseReleaseWasLostGoesDownAgain,
                            KeysThatOverlapComeUpBeforeTheNextGoesDown, EveryKeyLetsTheLetterBeforeItComeUpFirst,
                            ALetterWithCtrlComesUpInItsOwnTime, TheLetterBehindThreeRolledDigitsLandsInTheNextField,
                            RolledDigitsMoveOnInTheEntryForm, AThirdDigitThatIsHeldMovesOnWhenItComesUp,
                            TabHeldInTheCallFieldTakesTheCallOnce, AltAndALetterActOnce);

}  // namespace test
