#include "desktop/key_translator.h"

#include <gtest/gtest.h>

#include <memory>

namespace {

using desktop::KeyTranslator;

/// One event of the toolkit. Without a text it is the letter itself.
struct Stroke {
    int key = 0;
    QString text = {};
    Qt::KeyboardModifiers modifiers = Qt::NoModifier;
    quint32 scanCode = 0;
    quint64 instant = 0;
    bool repeat = false;

    std::unique_ptr<QKeyEvent> event(QEvent::Type type) const
    {
        auto made = std::make_unique<QKeyEvent>(type, key, modifiers, scanCode, 0, 0, text, repeat);
        made->setTimestamp(instant);
        return made;
    }
};

KeyTranslator::Entries down(KeyTranslator& translator, const Stroke& stroke)
{
    return translator.keyDown(*stroke.event(QEvent::KeyPress));
}

KeyTranslator::Entries up(KeyTranslator& translator, const Stroke& stroke)
{
    return translator.keyUp(*stroke.event(QEvent::KeyRelease));
}

platform::Key keyOf(const Stroke& stroke)
{
    return desktop::keyOf(*stroke.event(QEvent::KeyPress));
}

/// Entries as a short text: "v" down, "r" repeat, "^" up, then the character or the code.
std::string told(const KeyTranslator::Entries& entries)
{
    std::string text;
    for (const app::QueueEntry& entry : entries) {
        const auto name = [](const platform::Key& key) {
            return key.character > U' ' ? std::string(1, static_cast<char>(key.character)) : std::to_string(key.code);
        };
        if (!text.empty()) text += ' ';
        if (const auto* down = std::get_if<app::KeyWentDown>(&entry))
            text += (down->repeat ? "r" : "v") + name(down->key);
        if (const auto* up = std::get_if<app::KeyWentUp>(&entry)) text += "^" + name(up->key);
    }
    return text;
}

TEST(KeyTranslatorTest, LettersHaveTheCodeOfTheCapital)
{
    const platform::Key key = keyOf({Qt::Key_A, "a"});
    EXPECT_EQ(key.code, 'A');
    EXPECT_EQ(key.character, U'a');
    EXPECT_FALSE(key.shift);
    EXPECT_EQ(keyOf({Qt::Key_A, "A", Qt::ShiftModifier}).character, U'A');
    EXPECT_TRUE(keyOf({Qt::Key_A, "A", Qt::ShiftModifier}).shift);
}

TEST(KeyTranslatorTest, KeypadDigitsTypeDigits)
{
    const platform::Key key = keyOf({Qt::Key_7, "7", Qt::KeypadModifier});
    EXPECT_EQ(key.code, '7');
    EXPECT_EQ(key.character, U'7');
    EXPECT_EQ(keyOf({Qt::Key_Enter, "\r", Qt::KeypadModifier}).code, platform::keyEnter);
}

TEST(KeyTranslatorTest, KeysOfTheFlowHaveTheirCodes)
{
    EXPECT_EQ(keyOf({Qt::Key_Tab, "\t"}).code, 9);
    EXPECT_EQ(keyOf({Qt::Key_Backtab, "", Qt::ShiftModifier}).code, 9);
    EXPECT_EQ(keyOf({Qt::Key_Return, "\r"}).code, 13);
    EXPECT_EQ(keyOf({Qt::Key_Escape, "\x1b"}).code, 27);
    EXPECT_EQ(keyOf({Qt::Key_Space, " "}).code, 32);
    EXPECT_EQ(keyOf({Qt::Key_PageUp}).code, 33);
    EXPECT_EQ(keyOf({Qt::Key_End}).code, 35);
    EXPECT_EQ(keyOf({Qt::Key_Insert}).code, 45);
    EXPECT_EQ(keyOf({Qt::Key_F1}).code, 112);
    EXPECT_EQ(keyOf({Qt::Key_F12}).code, 123);
}

TEST(KeyTranslatorTest, ControlCharactersAreNotTyped)
{
    EXPECT_EQ(keyOf({Qt::Key_Tab, "\t"}).character, U'\0');
    EXPECT_EQ(keyOf({Qt::Key_Delete, "\x7f"}).character, U'\0');
    const platform::Key copy = keyOf({Qt::Key_C, "\x03", Qt::ControlModifier});
    EXPECT_EQ(copy.code, 'C');
    EXPECT_EQ(copy.character, U'\0');
    EXPECT_TRUE(copy.ctrl);
}

TEST(KeyTranslatorTest, SignsHaveACharacterAndNoCode)
{
    EXPECT_EQ(keyOf({Qt::Key_Slash, "/"}).code, 0);
    EXPECT_EQ(keyOf({Qt::Key_Slash, "/"}).character, U'/');
    EXPECT_EQ(keyOf({0x0218, QString(QChar(0x0218))}).character, U'\u0218');
}

TEST(KeyTranslatorTest, AltAndALetterTellTheLetterEvenWithoutText)
{
    const platform::Key key = keyOf({Qt::Key_O, "", Qt::AltModifier});
    EXPECT_TRUE(key.alt);
    EXPECT_EQ(key.character, U'O');
}

TEST(KeyTranslatorTest, AThirdShiftTypesItsCharacter)
{
    const platform::Key key = keyOf({Qt::Key_At, "@", Qt::ControlModifier | Qt::AltModifier});
    EXPECT_EQ(key.character, U'@');
    EXPECT_FALSE(key.ctrl);
    EXPECT_FALSE(key.alt);
}

TEST(KeyTranslatorTest, KeysOfTheSystemAreNobodys)
{
    KeyTranslator translator;
    EXPECT_EQ(told(down(translator, Stroke{Qt::Key_F4, "", Qt::AltModifier})), "");
    EXPECT_EQ(told(down(translator, Stroke{Qt::Key_L, "l", Qt::MetaModifier})), "");
    EXPECT_EQ(told(down(translator, Stroke{Qt::Key_4, "4", Qt::AltModifier | Qt::KeypadModifier})), "")
        << "some systems compose characters by their numbers with it";
    EXPECT_NE(told(down(translator, Stroke{Qt::Key_4, "4", Qt::AltModifier})), "");
    EXPECT_EQ(told(down(translator, Stroke{Qt::Key_Shift, "", Qt::ShiftModifier})), "");
    EXPECT_EQ(told(up(translator, Stroke{Qt::Key_Shift})), "");
}

TEST(KeyTranslatorTest, AReleaseIsKeptBackForAMoment)
{
    KeyTranslator translator;
    const Stroke a{Qt::Key_A, "a", Qt::NoModifier, 38, 100};
    EXPECT_EQ(told(down(translator, a)), "va");
    EXPECT_EQ(told(up(translator, a)), "");
    EXPECT_TRUE(translator.holdsRelease());
    EXPECT_EQ(told(translator.turned()), "^a");
    EXPECT_FALSE(translator.holdsRelease());
    EXPECT_EQ(told(translator.turned()), "");
}

TEST(KeyTranslatorTest, ReleaseAndPressAtOneInstantAreARepeat)
{
    KeyTranslator translator;
    Stroke a{Qt::Key_A, "a", Qt::NoModifier, 38, 100};
    down(translator, a);
    a.instant = 600;
    up(translator, a);
    EXPECT_EQ(told(down(translator, a)), "ra");
    a.instant = 630;
    up(translator, a);
    EXPECT_EQ(told(down(translator, a)), "ra");
    up(translator, a);
    EXPECT_EQ(told(translator.turned()), "^a");
}

TEST(KeyTranslatorTest, ARepeatThatIsSeenTooLateIsNoPress)
{
    KeyTranslator translator;
    Stroke tab{Qt::Key_Tab, "\t", Qt::NoModifier, 23, 100};
    down(translator, tab);
    tab.instant = 600;
    up(translator, tab);
    EXPECT_EQ(told(translator.turned()), "^9");
    EXPECT_EQ(told(down(translator, tab)), "");
    tab.instant = 640;
    EXPECT_EQ(told(up(translator, tab)), "");
    EXPECT_EQ(told(down(translator, tab)), "") << "and so are those behind it";
    tab.instant = 700;
    EXPECT_EQ(told(up(translator, tab)), "");
    EXPECT_FALSE(translator.holdsRelease());
    tab.instant = 800;
    EXPECT_EQ(told(down(translator, tab)), "v9");
}

TEST(KeyTranslatorTest, ARepeatOfAKeyThatWentDownElsewhereIsNoPress)
{
    KeyTranslator translator;
    const Stroke enter{Qt::Key_Return, "\r", Qt::NoModifier, 36, 600};
    EXPECT_EQ(told(up(translator, enter)), "");
    EXPECT_EQ(told(down(translator, enter)), "");
}

TEST(KeyTranslatorTest, TheSameKeyTwiceIsNoRepeat)
{
    KeyTranslator translator;
    Stroke four{Qt::Key_4, "4", Qt::NoModifier, 13, 100};
    down(translator, four);
    four.instant = 150;
    up(translator, four);
    four.instant = 151;
    EXPECT_EQ(told(down(translator, four)), "^4 v4");
}

TEST(KeyTranslatorTest, WithoutAnInstantNothingIsARepeat)
{
    KeyTranslator translator;
    const Stroke four{Qt::Key_4, "4"};
    down(translator, four);
    up(translator, four);
    EXPECT_EQ(told(down(translator, four)), "^4 v4");
}

TEST(KeyTranslatorTest, TheNextKeyDoesNotOvertakeAHeldRelease)
{
    KeyTranslator translator;
    const Stroke one{Qt::Key_1, "1", Qt::NoModifier, 10, 100};
    const Stroke two{Qt::Key_2, "2", Qt::NoModifier, 11, 100};
    down(translator, one);
    up(translator, one);
    EXPECT_EQ(told(down(translator, two)), "^1 v2");
}

TEST(KeyTranslatorTest, TheKeyboardsOwnRepeatsAreMarked)
{
    KeyTranslator translator;
    Stroke enter{Qt::Key_Return, "\r", Qt::NoModifier, 36, 100};
    EXPECT_EQ(told(down(translator, enter)), "v13");
    enter.repeat = true;
    EXPECT_EQ(told(up(translator, enter)), "");
    EXPECT_EQ(told(down(translator, enter)), "r13");
    enter.repeat = false;
    up(translator, enter);
    EXPECT_EQ(told(translator.turned()), "^13");
}

TEST(KeyTranslatorTest, AKeyThatWentDownElsewhereNeitherRepeatsNorComesUp)
{
    KeyTranslator translator;
    Stroke enter{Qt::Key_Return, "\r", Qt::NoModifier, 36, 100, true};
    EXPECT_EQ(told(down(translator, enter)), "");
    enter.repeat = false;
    EXPECT_EQ(told(up(translator, enter)), "");
    EXPECT_EQ(told(translator.turned()), "");
}

TEST(KeyTranslatorTest, AKeyIsTheSameWhenShiftCameUpBeforeIt)
{
    KeyTranslator translator;
    EXPECT_EQ(told(down(translator, {Qt::Key_Question, "?", Qt::ShiftModifier, 61, 100})), "v?");
    up(translator, {Qt::Key_Slash, "/", Qt::NoModifier, 61, 200});
    EXPECT_EQ(told(translator.turned()), "^?");
}

TEST(KeyTranslatorTest, AnotherApplicationGetsTheKeyboardAndAllKeysComeUp)
{
    KeyTranslator translator;
    const Stroke a{Qt::Key_A, "a", Qt::NoModifier, 38, 100};
    const Stroke b{Qt::Key_B, "b", Qt::NoModifier, 56, 110};
    down(translator, a);
    down(translator, b);
    EXPECT_EQ(told(translator.allUp()), "^a ^b");
    EXPECT_EQ(told(up(translator, a)), "");
    EXPECT_EQ(told(translator.turned()), "");
}

TEST(KeyTranslatorTest, APressWhoseReleaseWasNeverSeenIsAPressAgain)
{
    KeyTranslator translator;
    const Stroke enter{Qt::Key_Return, "\r", Qt::NoModifier, 36, 100};
    down(translator, enter);
    EXPECT_EQ(told(down(translator, enter)), "v13");
}

/// As after a message box that was gone before its key came up: no window sees the release, and the toolkit goes on
/// taking the key for one that is held.
TEST(KeyTranslatorTest, ARepeatThatCannotBeOneIsAPress)
{
    KeyTranslator translator;
    Stroke enter{Qt::Key_Return, "\r"};
    enter.instant = 1000;
    EXPECT_FALSE(translator.wentDown(*enter.event(QEvent::KeyPress)));
    enter.repeat = true;
    enter.instant = 1500;
    EXPECT_EQ(told(down(translator, enter)), "") << "held over the box, it repeats";
    EXPECT_EQ(told(down(translator, enter)), "") << "the same event in another window";
    Stroke letter{Qt::Key_A, "a"};
    letter.instant = 1600;
    EXPECT_EQ(told(down(translator, letter)), "va");
    enter.instant = 1700;
    EXPECT_EQ(told(down(translator, enter)), "v13") << "the letter came between";
    enter.instant = 2200;
    EXPECT_EQ(told(down(translator, enter)), "r13");
    enter.instant = 4000;
    EXPECT_EQ(told(down(translator, enter)), "v13") << "no key is silent for so long";
}

TEST(KeyTranslatorTest, AModifierLeavesTheKeyBesideItRepeating)
{
    KeyTranslator translator;
    Stroke letter{Qt::Key_A, "a"};
    letter.instant = 1000;
    EXPECT_EQ(told(down(translator, letter)), "va");
    Stroke shift{Qt::Key_Shift};
    shift.instant = 1100;
    down(translator, shift);
    letter.repeat = true;
    letter.instant = 1200;
    EXPECT_EQ(told(down(translator, letter)), "ra");
}

}  // namespace
