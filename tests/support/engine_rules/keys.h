// The events of one key: their order, their fields, and what a handler may do with the key.
#pragma once

#include "support/face.h"

namespace test {

template <typename SomeFace>
class KeyRules : public Desk<SomeFace> {
};
TYPED_TEST_SUITE_P(KeyRules);

TYPED_TEST_P(KeyRules, TheCharacterComesBetweenKeyPressAndKeyUp)
{
    this->startIn(FrmInit.TxtMyCall);
    const auto noteText = [this](auto& /*key*/) { this->note("text " + FrmInit.TxtMyCall.Text.get()); };
    this->onKeyDown(FrmInit.TxtMyCall, noteText);
    this->onKeyPress(FrmInit.TxtMyCall, noteText);
    this->onKeyUp(FrmInit.TxtMyCall, noteText);
    this->strike("a");
    EXPECT_EQ(this->takeLog(),
              Log({"TxtMyCall KeyDown 65", "text ", "TxtMyCall KeyPress 97", "text ", "TxtMyCall KeyUp 65", "text a"}));
}

TYPED_TEST_P(KeyRules, KeyPressAndCharacterStayWithTheFieldOfKeyDown)
{
    this->startIn(FrmInit.TxtMyCall);
    this->watch(FrmInit.txtMyQRA);
    this->onKeyDown(FrmInit.TxtMyCall, [](int& /*code*/) { FrmInit.txtMyQRA.SetFocus(); });
    this->strike("a");
    EXPECT_EQ(FrmInit.TxtMyCall.Text.get(), "a");
    EXPECT_EQ(FrmInit.txtMyQRA.Text.get(), "");
    EXPECT_EQ(this->takeLog(),
              Log({"TxtMyCall KeyDown 65", "TxtMyCall KeyPress 97", "txtMyQRA GotFocus", "txtMyQRA KeyUp 65"}));
}

TYPED_TEST_P(KeyRules, KeyUpGoesWhereTheFocusIsWhenTheKeyComesUp)
{
    this->startIn(FrmInit.TxtMyCall);
    this->watch(FrmInit.txtMyQRA);
    this->down("a");
    this->goTo(FrmInit.txtMyQRA);
    this->up("a");
    EXPECT_EQ(this->takeLog(), Log({"txtMyQRA KeyUp 65"}));
}

TYPED_TEST_P(KeyRules, ACodeOfZeroStopsTheKey)
{
    this->startIn(FrmInit.TxtMyCall);
    this->onKeyDown(FrmInit.TxtMyCall, [](int& code) { code = 0; });
    this->strike("a");
    EXPECT_EQ(FrmInit.TxtMyCall.Text.get(), "");
    EXPECT_EQ(this->takeLog(), Log({"TxtMyCall KeyDown 65", "TxtMyCall KeyUp 65"}));
    FrmInit.TxtMyCall.Text = "YO";
    this->strike("Delete");
    EXPECT_EQ(FrmInit.TxtMyCall.Text.get(), "YO") << "the code is that of every key, not of characters only";
}

TYPED_TEST_P(KeyRules, KeyPressMayChangeTheCharacter)
{
    this->startIn(FrmInit.TxtMyCall);
    this->onKeyPress(FrmInit.TxtMyCall, [](char32_t& character) { character = character == U'a' ? U'Ș' : U'x'; });
    this->type("ab");
    EXPECT_EQ(FrmInit.TxtMyCall.Text.get(), "Șx");
}

TYPED_TEST_P(KeyRules, KeyPressMayDropTheCharacter)
{
    this->startIn(FrmInit.TxtMyCall);
    this->onKeyPress(FrmInit.TxtMyCall, [](char32_t& character) { character = character == U'b' ? 0 : character; });
    this->type("abc");
    EXPECT_EQ(FrmInit.TxtMyCall.Text.get(), "ac");
}

TYPED_TEST_P(KeyRules, KeyPressMayDropABackspace)
{
    this->startIn(FrmInit.TxtMyCall);
    this->type("ab");
    this->strike("Backspace");
    EXPECT_EQ(FrmInit.TxtMyCall.Text.get(), "a");
    this->onKeyPress(FrmInit.TxtMyCall, [](char32_t& character) { character = 0; });
    this->strike("Backspace");
    EXPECT_EQ(FrmInit.TxtMyCall.Text.get(), "a");
}

TYPED_TEST_P(KeyRules, ControlKeysHaveAKeyPressAndLeaveNoCharacter)
{
    this->startAndOpenEntry();
    this->watch(FrmQSO.txtIndic);
    FrmQSO.txtIndic.Text = "YO";
    this->goTo(FrmQSO.txtIndic);
    for (const char* key : {"Backspace", "Tab", "Enter", "Esc"})
        this->strike(key);
    EXPECT_EQ(this->takeLog(),
              Log({"txtIndic KeyDown 8", "txtIndic KeyPress 8", "txtIndic KeyUp 8", "txtIndic KeyDown 9",
                   "txtIndic KeyPress 9", "txtIndic KeyUp 9", "txtIndic KeyDown 13", "txtIndic KeyPress 13",
                   "txtIndic KeyUp 13", "txtIndic KeyDown 27", "txtIndic KeyPress 27", "txtIndic KeyUp 27"}));
    EXPECT_EQ(FrmQSO.txtIndic.Text.get(), "YO") << "nothing stood in front of the caret";
}

TYPED_TEST_P(KeyRules, SpaceLeavesABlank)
{
    this->startIn(FrmInit.TxtMyCall);
    this->strike("Space");
    EXPECT_EQ(FrmInit.TxtMyCall.Text.get(), " ");
    EXPECT_EQ(this->takeLog(), Log({"TxtMyCall KeyDown 32", "TxtMyCall KeyPress 32", "TxtMyCall KeyUp 32"}));
}

TYPED_TEST_P(KeyRules, KeysWithoutACharacterHaveNoKeyPress)
{
    this->startIn(FrmInit.TxtMyCall);
    const std::vector<std::pair<std::string, int>> keys = {
        {"PageUp", 33}, {"PageDown", 34}, {"End", 35},    {"Home", 36}, {"Left", 37}, {"Up", 38},   {"Right", 39},
        {"Down", 40},   {"Insert", 45},   {"Delete", 46}, {"F2", 113},  {"F8", 119},  {"F12", 123},
    };
    for (const auto& [key, code] : keys) {
        this->strike(key);
        const std::string number = std::to_string(code);
        EXPECT_EQ(this->takeLog(), Log({"TxtMyCall KeyDown " + number, "TxtMyCall KeyUp " + number})) << key;
    }
}

TYPED_TEST_P(KeyRules, CtrlAndAltTypeNothing)
{
    this->startIn(FrmInit.TxtMyCall);
    this->strike("Ctrl+k");
    EXPECT_EQ(this->takeLog(), Log({"TxtMyCall KeyDown 75", "TxtMyCall KeyUp 75"}));
    this->strike("Alt+k");
    EXPECT_FALSE(this->noted("TxtMyCall KeyPress 107"));
    EXPECT_EQ(FrmInit.TxtMyCall.Text.get(), "");
}

TYPED_TEST_P(KeyRules, ShiftChangesTheCharacterNotTheCode)
{
    this->startIn(FrmInit.TxtMyCall);
    this->strike("A");
    EXPECT_EQ(this->takeLog(), Log({"TxtMyCall KeyDown 65", "TxtMyCall KeyPress 65", "TxtMyCall KeyUp 65"}));
}

TYPED_TEST_P(KeyRules, ALetterOutsideTheAlphabetIsOneCharacter)
{
    this->startIn(FrmInit.TxtMyCall);
    this->strike("ș");
    EXPECT_EQ(FrmInit.TxtMyCall.Text.get(), "ș");
    EXPECT_TRUE(this->noted("TxtMyCall KeyPress 537"));
    this->strike("Backspace");
    EXPECT_EQ(FrmInit.TxtMyCall.Text.get(), "");
}

REGISTER_TYPED_TEST_SUITE_P(KeyRules, TheCharacterComesBetweenKeyPressAndKeyUp,
                            KeyPressAndCharacterStayWithTheFieldOfKeyDown, KeyUpGoesWhereTheFocusIsWhenTheKeyComesUp,
                            ACodeOfZeroStopsTheKey, KeyPressMayChangeTheCharacter, KeyPressMayDropTheCharacter,
                            KeyPressMayDropABackspace, ControlKeysHaveAKeyPressAndLeaveNoCharacter, SpaceLeavesABlank,
                            KeysWithoutACharacterHaveNoKeyPress, CtrlAndAltTypeNothing,
                            ShiftChangesTheCharacterNotTheCode, ALetterOutsideTheAlphabetIsOneCharacter);

}  // namespace test
