#include "screen/editing.h"

#include <gtest/gtest.h>

#include "screen/form.h"

namespace {

using platform::Key;

class Editing : public testing::Test {
 protected:
    void set(const std::string& text, std::size_t caret, std::size_t selected = 0)
    {
        box.Text = text;
        box.SelStart = caret;
        box.SelLength = selected;
    }

    void strike(int code, bool shift = false) { screen::editWithKey(box, Key{.code = code, .shift = shift}); }
    void strikeWithCtrl(int code) { screen::editWithKey(box, Key{.code = code, .ctrl = true}); }

    /// The text with "|" for the caret, and "[" and "]" around the selection.
    std::string state() const
    {
        std::string text = box.Text;
        if (box.SelLength == 0) return text.insert(box.SelStart, "|");
        const bool caretInFront = box.caretAtSelectionStart;
        text.insert(box.SelStart + box.SelLength, caretInFront ? "]" : "]|");
        return text.insert(box.SelStart, caretInFront ? "|[" : "[");
    }

    screen::Form form{"Page"};
    screen::TextBox box{&form, "box"};
};

TEST_F(Editing, ATextThatIsSetHasTheCaretInFrontAndNoHistory)
{
    set("abc", 1, 2);
    screen::typeCharacter(box, U'x');
    box.Text = "def";
    EXPECT_EQ(state(), "|def");
    EXPECT_TRUE(box.typingHistory.empty());
}

TEST_F(Editing, TypingReplacesTheSelection)
{
    set("abc", 1, 2);
    screen::typeCharacter(box, U'x');
    EXPECT_EQ(state(), "ax|");
    screen::typeCharacter(box, U'Ș');
    EXPECT_EQ(box.Text.get(), "axȘ");
    EXPECT_EQ(box.SelStart, 3U);
}

TEST_F(Editing, BackspaceTakesTheCharacterInFrontOrTheSelection)
{
    set("abc", 0);
    screen::eraseBackwards(box);
    EXPECT_EQ(state(), "|abc");
    set("abc", 2);
    screen::eraseBackwards(box);
    EXPECT_EQ(state(), "a|c");
    set("abc", 1, 2);
    screen::eraseBackwards(box);
    EXPECT_EQ(state(), "a|");
}

TEST_F(Editing, TheTextAfterABackspaceIsForetold)
{
    const struct {
        std::size_t caret;
        std::size_t selected;
    } places[] = {{0, 0}, {2, 0}, {4, 0}, {1, 2}, {0, 4}};
    for (const auto& place : places) {
        set("aȘcd", place.caret, place.selected);
        const std::string foretold = screen::textAfterBackspace(box);
        screen::eraseBackwards(box);
        EXPECT_EQ(foretold, box.Text.get()) << place.caret << " " << place.selected;
    }
}

TEST_F(Editing, DeleteTakesTheCharacterBehindOrTheSelection)
{
    set("abc", 3);
    strike(platform::keyDelete);
    EXPECT_EQ(state(), "abc|");
    set("abc", 1);
    strike(platform::keyDelete);
    EXPECT_EQ(state(), "a|c");
    set("abc", 0, 2);
    strike(platform::keyDelete);
    EXPECT_EQ(state(), "|c");
}

TEST_F(Editing, ArrowsHomeAndEndMoveTheCaret)
{
    set("abc", 1);
    strike(platform::keyRight);
    EXPECT_EQ(state(), "ab|c");
    strike(platform::keyEnd);
    strike(platform::keyRight);
    EXPECT_EQ(state(), "abc|");
    strike(platform::keyLeft);
    EXPECT_EQ(state(), "ab|c");
    strike(platform::keyHome);
    strike(platform::keyLeft);
    EXPECT_EQ(state(), "|abc");
}

TEST_F(Editing, ShiftSelectsFromWhereTheCaretWas)
{
    set("abcd", 2);
    strike(platform::keyLeft, true);
    EXPECT_EQ(state(), "a|[b]cd");
    strike(platform::keyRight, true);
    EXPECT_EQ(state(), "ab|cd");
    strike(platform::keyRight, true);
    EXPECT_EQ(state(), "ab[c]|d");
    strike(platform::keyHome, true);
    EXPECT_EQ(state(), "|[ab]cd");
    strike(platform::keyEnd, true);
    EXPECT_EQ(state(), "ab[cd]|");
}

TEST_F(Editing, AnArrowWithoutShiftGoesToThatEndOfTheSelection)
{
    set("abcd", 1, 2);
    strike(platform::keyLeft);
    EXPECT_EQ(state(), "a|bcd");
    set("abcd", 1, 2);
    strike(platform::keyRight);
    EXPECT_EQ(state(), "abc|d");
}

TEST_F(Editing, ThePointerPlacesTheCaretAndExtendsFromIt)
{
    set("abcd", 0);
    screen::placeCaret(box, 3, false);
    EXPECT_EQ(state(), "abc|d");
    screen::placeCaret(box, 1, true);
    EXPECT_EQ(state(), "a|[bc]d");
    screen::placeCaret(box, 99, true);
    EXPECT_EQ(state(), "abc[d]|");
}

TEST_F(Editing, CtrlAndASelectsAll)
{
    set("abc", 2);
    strikeWithCtrl('A');
    EXPECT_EQ(state(), "[abc]|");
    strike(platform::keyLeft, true);
    EXPECT_EQ(state(), "[ab]|c");
}

TEST_F(Editing, UndoTakesBackOneStepAfterTheOther)
{
    set("ab", 2);
    screen::typeCharacter(box, U'c');
    screen::eraseBackwards(box);
    screen::eraseBackwards(box);
    strike(platform::keyHome);
    strike(platform::keyDelete);
    EXPECT_EQ(state(), "|");
    strikeWithCtrl('Z');
    EXPECT_EQ(state(), "|a");
    strikeWithCtrl('Z');
    EXPECT_EQ(state(), "ab|");
    strikeWithCtrl('Z');
    EXPECT_EQ(state(), "abc|");
    strikeWithCtrl('Z');
    EXPECT_EQ(state(), "ab|");
    strikeWithCtrl('Z');
    EXPECT_EQ(state(), "ab|") << "nothing was typed before that";
}

TEST_F(Editing, UndoRemembersALongWhileAndNotForEver)
{
    set("", 0);
    for (int i = 0; i < 1000; ++i)
        screen::typeCharacter(box, U'a');
    const std::size_t remembered = box.typingHistory.size();
    EXPECT_GE(remembered, 100U);
    EXPECT_LT(remembered, 1000U);
    for (int i = 0; i < 1000; ++i)
        strikeWithCtrl('Z');
    EXPECT_EQ(box.Text.get().size(), 1000 - remembered);
}

TEST_F(Editing, OtherKeysDoNothing)
{
    set("abc", 1, 1);
    for (const int code : {platform::keyUp + 0, platform::keyDown + 0, platform::keyInsert + 0, platform::keyF2 + 0,
                           platform::keyPageUp + 0})
        strike(code);
    strikeWithCtrl('Q');
    EXPECT_EQ(state(), "a[b]|c");
}

}  // namespace
