// Editing the text of a field by its keys.
#pragma once

#include "support/face.h"

namespace test {

template <typename SomeFace>
class EditingRules : public Desk<SomeFace> {
 protected:
    void startWith(const std::string& text)
    {
        this->startIn(FrmInit.TxtMyCall);
        this->type(text);
        this->takeLog();
    }

    void strikeAll(std::initializer_list<const char*> keys)
    {
        for (const char* key : keys)
            this->strike(key);
    }

    static std::string text() { return FrmInit.TxtMyCall.Text; }
    static std::pair<std::size_t, std::size_t> selection()
    {
        return {FrmInit.TxtMyCall.SelStart, FrmInit.TxtMyCall.SelLength};
    }
};
TYPED_TEST_SUITE_P(EditingRules);

TYPED_TEST_P(EditingRules, TheCaretMovesAndTypingHappensThere)
{
    this->startWith("YO2");
    this->strikeAll({"Left", "Left"});
    this->type("x");
    EXPECT_EQ(this->text(), "YxO2");
    this->strike("End");
    this->type("y");
    EXPECT_EQ(this->text(), "YxO2y");
    this->strike("Home");
    this->type("z");
    EXPECT_EQ(this->text(), "zYxO2y");
    this->strikeAll({"Home", "Left", "Right"});
    this->type("w");
    EXPECT_EQ(this->text(), "zwYxO2y");
}

TYPED_TEST_P(EditingRules, BackspaceAndDelete)
{
    this->startWith("abcd");
    this->strikeAll({"Left", "Left", "Backspace"});
    EXPECT_EQ(this->text(), "acd");
    this->strike("Delete");
    EXPECT_EQ(this->text(), "ad");
    this->strikeAll({"Home", "Backspace"});
    EXPECT_EQ(this->text(), "ad");
    this->strikeAll({"End", "Delete"});
    EXPECT_EQ(this->text(), "ad");
}

TYPED_TEST_P(EditingRules, ShiftSelectsAndTypingReplaces)
{
    this->startWith("abcd");
    this->strikeAll({"Shift+Left", "Shift+Left"});
    EXPECT_EQ(this->selection(), std::make_pair(std::size_t{2}, std::size_t{2}));
    this->type("x");
    EXPECT_EQ(this->text(), "abx");
    this->strike("Shift+Home");
    EXPECT_EQ(this->selection(), std::make_pair(std::size_t{0}, std::size_t{3}));
    this->strike("Shift+Right");
    EXPECT_EQ(this->selection(), std::make_pair(std::size_t{1}, std::size_t{2}))
        << "the end that moves is the left one";
    this->strike("Backspace");
    EXPECT_EQ(this->text(), "a");
    this->strikeAll({"Home", "Shift+End", "Delete"});
    EXPECT_EQ(this->text(), "");
}

TYPED_TEST_P(EditingRules, AnArrowLeavesTheSelectionAtThatEnd)
{
    this->startWith("abcd");
    this->strikeAll({"Home", "Right", "Shift+Right", "Shift+Right", "Right"});
    EXPECT_EQ(this->selection(), std::make_pair(std::size_t{3}, std::size_t{0}));
    this->strikeAll({"Shift+Left", "Shift+Left", "Left"});
    EXPECT_EQ(this->selection(), std::make_pair(std::size_t{1}, std::size_t{0}));
}

TYPED_TEST_P(EditingRules, CopyCutAndPaste)
{
    this->startWith("abcd");
    this->strikeAll({"Ctrl+a", "Ctrl+c", "End", "Ctrl+v"});
    EXPECT_EQ(this->text(), "abcdabcd");
    this->strikeAll({"Home", "Shift+Right", "Shift+Right", "Ctrl+x"});
    EXPECT_EQ(this->text(), "cdabcd");
    this->strikeAll({"End", "Ctrl+v", "Ctrl+v"});
    EXPECT_EQ(this->text(), "cdabcdabab");
}

TYPED_TEST_P(EditingRules, WithoutASelectionTheClipboardStays)
{
    this->startWith("abcd");
    this->strikeAll({"Shift+Left", "Ctrl+c", "End", "Ctrl+c", "Ctrl+x", "Ctrl+v"});
    EXPECT_EQ(this->text(), "abcdd");
}

TYPED_TEST_P(EditingRules, APasteIsTypedCharacterByCharacter)
{
    this->startWith("");
    this->onKeyPress(FrmInit.TxtMyCall, [](char32_t& character) {
        if (character == U'-') character = 0;
        if (character == U'b') character = U'B';
    });
    this->paste("a-bș");
    EXPECT_EQ(this->takeLog(), Log({"TxtMyCall KeyPress 97", "TxtMyCall KeyPress 45", "TxtMyCall KeyPress 98",
                                    "TxtMyCall KeyPress 537"}));
    EXPECT_EQ(this->text(), "aBș");
}

TYPED_TEST_P(EditingRules, APasteReplacesTheSelectionAndTypesNoControlCharacters)
{
    this->startWith("abcd");
    this->strikeAll({"Home", "Shift+Right", "Shift+Right"});
    this->takeLog();
    this->paste("x\ty\n");
    EXPECT_EQ(this->text(), "xycd");
    EXPECT_EQ(this->takeLog(), Log({"TxtMyCall KeyPress 120", "TxtMyCall KeyPress 121"}));
}

TYPED_TEST_P(EditingRules, TypingCanBeTakenBack)
{
    this->startWith("ab");
    this->strike("Backspace");
    this->type("c");
    this->strike("Ctrl+z");
    EXPECT_EQ(this->text(), "a");
    this->strike("Ctrl+z");
    EXPECT_EQ(this->text(), "ab");
    this->strikeAll({"Ctrl+z", "Ctrl+z", "Ctrl+z"});
    EXPECT_EQ(this->text(), "");
}

TYPED_TEST_P(EditingRules, ATextThatTheProgramSetsHasTheCaretInFront)
{
    this->startWith("ab");
    this->strike("Shift+Left");
    this->onKeyDown(FrmInit.TxtMyCall, [](int& code) {
        if (code == platform::keyF2) FrmInit.TxtMyCall.Text = "YO2";
    });
    this->strike("F2");
    EXPECT_EQ(this->selection(), std::make_pair(std::size_t{0}, std::size_t{0}));
    this->type("x");
    EXPECT_EQ(this->text(), "xYO2");
    this->strikeAll({"Ctrl+z", "Ctrl+z"});
    EXPECT_EQ(this->text(), "YO2") << "what was typed before the program set the text is gone";
}

TYPED_TEST_P(EditingRules, LettersOutsideTheAlphabetAreOneCharacterEach)
{
    this->startWith("șță");
    this->strikeAll({"Left", "Backspace"});
    EXPECT_EQ(this->text(), "șă");
    this->strikeAll({"Shift+Home", "Ctrl+c", "End", "Ctrl+v"});
    EXPECT_EQ(this->text(), "șăș");
}

REGISTER_TYPED_TEST_SUITE_P(EditingRules, TheCaretMovesAndTypingHappensThere, BackspaceAndDelete,
                            ShiftSelectsAndTypingReplaces, AnArrowLeavesTheSelectionAtThatEnd, CopyCutAndPaste,
                            WithoutASelectionTheClipboardStays, APasteIsTypedCharacterByCharacter,
                            APasteReplacesTheSelectionAndTypesNoControlCharacters, TypingCanBeTakenBack,
                            ATextThatTheProgramSetsHasTheCaretInFront, LettersOutsideTheAlphabetAreOneCharacterEach);

}  // namespace test
