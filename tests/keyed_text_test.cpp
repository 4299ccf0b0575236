// Reading back what was keyed, at 30 words a minute: dot 37 ms, dash 110 ms, letters 154 ms apart, a blank 147 ms more.
#include "script/keyed_text.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "script/step_failed.h"
#include "support/morse_model.h"

namespace {

using script::TimedEvent;
using std::chrono::milliseconds;
using std::chrono::nanoseconds;

/// A hand on the lines.
class Lines {
 public:
    Lines& on()
    {
        write("open 1");
        return write("RTS on");
    }
    Lines& off()
    {
        write("RTS off");
        return write("close");
    }
    Lines& mark(nanoseconds time)
    {
        write("DTR on");
        pass(time);
        return write("DTR off");
    }
    Lines& dot() { return mark(milliseconds(37)); }
    Lines& dash() { return mark(milliseconds(110)); }
    Lines& gap() { return pass(milliseconds(37)); }
    Lines& letter() { return pass(milliseconds(154)); }
    Lines& blank() { return pass(milliseconds(147)); }
    Lines& pass(nanoseconds time)
    {
        now_ += time;
        return *this;
    }
    Lines& write(const std::string& what)
    {
        events_.push_back({now_, what});
        return *this;
    }
    const std::vector<TimedEvent>& events() const { return events_; }

 private:
    nanoseconds now_{5000};
    std::vector<TimedEvent> events_;
};

std::string text(const Lines& lines, float wpm = 30)
{
    return script::keyedText(lines.events(), wpm);
}

/// What was found instead of a mark or a space of the speed, nothing when all were.
std::string oddity(const Lines& lines, float wpm = 30)
{
    try {
        script::keyedText(lines.events(), wpm);
        return "";
    } catch (const script::StepFailed& failure) {
        return failure.got;
    }
}

TEST(KeyedText, ReadsLettersAndBlanks)
{
    const Lines a = Lines().on().dot().gap().dash().letter().blank().off();
    EXPECT_EQ(text(a), "A");
    const Lines tea = Lines().on().dash().letter().dot().letter().blank().dot().gap().dash().letter().blank().off();
    EXPECT_EQ(text(tea), "TE A");
    const Lines wide = Lines().on().dot().letter().blank().blank().dot().letter().blank().off();
    EXPECT_EQ(text(wide), "E  E");
}

TEST(KeyedText, ReadsEverySymbolOfTheTableAtEverySpeed)
{
    for (int wpm = 10; wpm <= 40; wpm += 2)
        for (const test::MorseCode& row : test::morseCodes) {
            const test::MorseTimes times = test::morseTimes(wpm);
            Lines lines;
            lines.on();
            for (const char element : std::string_view(row.code))
                lines.mark(milliseconds(element == '-' ? times.dash : times.dot)).pass(milliseconds(times.dot));
            lines.pass(milliseconds(times.letter + times.blank)).off();
            EXPECT_EQ(text(lines, static_cast<float>(wpm)), std::string(1, row.symbol)) << wpm;
        }
}

TEST(KeyedText, JoinsMessagesByOneBlank)
{
    Lines lines;
    lines.on().dot().letter().blank().off().pass(std::chrono::seconds(3));
    lines.on().dash().letter().blank().off();
    EXPECT_EQ(text(lines), "E T");
}

TEST(KeyedText, HearsNothingOfAMessageWithoutAMark)
{
    EXPECT_EQ(text(Lines()), "");
    EXPECT_EQ(text(Lines().on().blank().off()), "");
    Lines voice;
    voice.on().pass(std::chrono::seconds(4)).off();
    EXPECT_EQ(text(voice), "");
    voice.on().dot().letter().blank().off();
    voice.on().pass(milliseconds(1234)).off();
    voice.on().dash().letter().blank().off();
    EXPECT_EQ(text(voice), "E T");
}

TEST(KeyedText, RefusesAMarkOfAnotherLength)
{
    for (const int odd : {1, 36, 38, 73, 109, 111, 220}) {
        SCOPED_TRACE(odd);
        const Lines first = Lines().on().mark(milliseconds(odd)).gap().dash().letter().blank().off();
        EXPECT_EQ(oddity(first), "a mark of " + std::to_string(odd) + ".000000 ms");
        const Lines last = Lines().on().dot().gap().mark(milliseconds(odd)).letter().blank().off();
        EXPECT_EQ(oddity(last), "a mark of " + std::to_string(odd) + ".000000 ms");
    }
    const Lines fraction = Lines().on().mark(nanoseconds(37'000'001)).letter().blank().off();
    EXPECT_NE(oddity(fraction), "");
}

TEST(KeyedText, RefusesASpaceOfAnotherLength)
{
    for (const int odd : {0, 1, 36, 38, 110, 153, 155, 300, 302, 447, 449}) {
        SCOPED_TRACE(odd);
        const Lines lines = Lines().on().dot().pass(milliseconds(odd)).dot().letter().blank().off();
        EXPECT_EQ(oddity(lines), std::to_string(odd) + ".000000 ms");
    }
    const Lines late = Lines().on().pass(milliseconds(1)).dot().letter().blank().off();
    EXPECT_NE(oddity(late), "");
}

TEST(KeyedText, RefusesAClosingSpaceOfAnotherLength)
{
    for (const int odd : {302, 350, 447})
        EXPECT_NE(oddity(Lines().on().dot().pass(milliseconds(odd)).off()), "") << odd;
}

TEST(KeyedText, RefusesAnotherSpeed)
{
    const Lines lines = Lines().on().dot().gap().dash().letter().blank().off();
    for (const int wpm : {10, 12, 28, 32, 40})
        EXPECT_NE(oddity(lines, static_cast<float>(wpm)), "") << wpm;
}

TEST(KeyedText, ReadsBlanksBeforeTheFirstMark)
{
    // A character that is not sent, and a blank behind it.
    EXPECT_EQ(text(Lines().on().blank().dot().letter().blank().off()), " E");
    EXPECT_EQ(text(Lines().on().dot().letter().blank().blank().off()), "E ");
}

TEST(KeyedText, ReadsACodeThatNobodyKnowsAsAStar)
{
    Lines lines;
    lines.on();
    for (int element = 0; element < 6; ++element)
        lines.dot().gap();
    lines.pass(milliseconds(117)).dot().letter().blank().off();
    EXPECT_EQ(text(lines), "*E");
}

TEST(KeyedText, ReadsWhatWasSentOfALetterThatAStopKeyCut)
{
    EXPECT_EQ(text(Lines().on().dash().gap().dot().gap().blank().off()), "N");
    EXPECT_EQ(text(Lines().on().dot().letter().dash().gap().blank().off()), "ET");
}

TEST(KeyedText, ReadsWhatWasSentBeforeTheTransmitterWasCutOff)
{
    // In the middle of a mark, in a gap, in a space, between two letters; by the port or by the adapter.
    Lines lines;
    lines.on().dot().letter().write("DTR on").pass(milliseconds(20)).write("DTR off").off();
    EXPECT_EQ(text(lines), "E");
    EXPECT_EQ(text(Lines().on().dot().letter().write("DTR on").pass(milliseconds(20)).write("close")), "E");
    EXPECT_EQ(text(Lines().on().dot().gap().dash().pass(milliseconds(5)).off()), "A");
    EXPECT_EQ(text(Lines().on().dot().gap().dash().pass(milliseconds(100)).write("close")), "A");
    EXPECT_EQ(text(Lines().on().dot().letter().pass(milliseconds(3)).off()), "E");
    EXPECT_EQ(text(Lines().on().off()), "");
    Lines cut;
    cut.on().dot().letter().blank().off();
    cut.on().write("DTR on").pass(milliseconds(20)).write("close");
    EXPECT_EQ(text(cut), "E");
}

TEST(KeyedText, SaysNothingOfAMessageThatIsNotOver)
{
    EXPECT_EQ(text(Lines().on().dot().letter().dash()), "");
}

}  // namespace
