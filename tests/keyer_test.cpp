// The CW keyer on the lines: what it does is held against a second model of Morse code, element by element.
#include "keyer/cw.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <random>
#include <string>
#include <vector>

#include "base/runtime_error.h"
#include "platform/machine.h"
#include "runstate/modul1.h"
#include "screen/frm_qso.h"
#include "support/morse_model.h"
#include "support/running_program.h"

namespace {

using platform::MonotonicTime;
using std::chrono::milliseconds;
using test::LineLog;

const platform::Key endKey{.code = platform::keyEnd};
const platform::Key escapeKey{.code = platform::keyEscape};

std::string allSymbols()
{
    std::string symbols;
    for (const test::MorseCode& row : test::morseCodes)
        symbols += row.symbol;
    return symbols;
}

/// What is left of a text on the air.
std::string audible(const std::string& text)
{
    std::string audible;
    for (const char symbol : text)
        if (symbol == ' ' || !test::codeOf(symbol).empty()) audible += symbol;
    return audible.find_first_not_of(' ') == std::string::npos ? "" : audible;
}

class Keyer : public testing::Test {
 protected:
    void SetUp() override
    {
        program_.machine().description.port = 1;
        Modul1.CwPort = 1;
        Modul1.ModeCur = "CW";
        Modul1.CwAllowed = 100;
    }

    void TearDown() override { program_.machine().clock.setSleeper({}); }

    /// Sends a text and gives what the lines did meanwhile.
    const std::vector<script::TimedEvent>& send(const std::string& text, int wpm = 30)
    {
        lines().clear();
        FrmQSO.Wpm = static_cast<float>(wpm);
        FrmQSO.TxtCw = text;
        began_ = program_.machine().clock.monotonic();
        keyer::GoCW();
        return lines();
    }

    LineLog sent(const std::string& text, int wpm = 30) { return test::logOf(send(text, wpm)); }

    std::vector<script::TimedEvent>& lines() { return program_.machine().record.serial; }
    script::VirtualKeyboard& keyboard() { return program_.machine().keyboard; }

    /// Does something once so much time of the message has gone by.
    void at(milliseconds time, std::function<void()> action)
    {
        const bool first = actions_.empty();
        actions_.push_back({time, std::move(action)});
        if (first) program_.machine().clock.setSleeper([this](MonotonicTime deadline) { sleepUntil(deadline); });
    }

    void tap(const platform::Key& key)
    {
        keyboard().press(key);
        keyboard().release(key);
    }

    /// Takes the actions away.
    void again() { actions_.clear(); }

    test::RunningProgram program_;

 private:
    struct Action {
        milliseconds time;
        std::function<void()> action;
    };

    void sleepUntil(MonotonicTime deadline)
    {
        script::VirtualClock& clock = program_.machine().clock;
        while (!actions_.empty() && began_ + actions_.front().time <= deadline) {
            const Action next = actions_.front();
            actions_.erase(actions_.begin());
            clock.moveTo(began_ + next.time);
            next.action();
        }
        clock.moveTo(deadline);
    }

    MonotonicTime began_{};
    std::vector<Action> actions_;
};

// ---- What is sent

TEST_F(Keyer, SendsAnEAtThirtyWords)
{
    // Key down 37 ms, up 37 ms, the letter space of 117 ms and the word space of 147 ms.
    EXPECT_EQ(sent("E"), (LineLog{"0 open 1", "0 RTS on", "0 DTR on", "37 DTR off", "338 RTS off", "338 close"}));
    EXPECT_FALSE(FrmQSO.MSComm1.PortOpen);
    EXPECT_EQ(FrmQSO.MSComm1.Settings, "19200,N,8,1");
    EXPECT_EQ(FrmQSO.MSComm1.CommPort, 1);
    EXPECT_EQ(FrmQSO.MorseCnt, 44);
    EXPECT_EQ(FrmQSO.TickBase, 20);
}

TEST_F(Keyer, SendsEverySymbolAtEverySpeed)
{
    for (int wpm = 10; wpm <= 40; wpm += 2)
        for (const test::MorseCode& row : test::morseCodes) {
            const std::string text(1, row.symbol);
            ASSERT_EQ(sent(text, wpm), test::keyedLines(text, wpm)) << text << " at " << wpm;
            ASSERT_EQ(test::heardText(lines(), wpm), text) << "at " << wpm;
        }
}

TEST_F(Keyer, SendsTheWholeTableAsOneMessage)
{
    for (const int wpm : {9, 10, 11, 12, 13, 14, 30, 38, 39, 40}) {
        ASSERT_EQ(sent(allSymbols(), wpm), test::keyedLines(allSymbols(), wpm)) << wpm;
        ASSERT_EQ(test::heardText(lines(), wpm), allSymbols()) << wpm;
    }
}

TEST_F(Keyer, SendsAnyText)
{
    std::mt19937 random(20261115);
    // Most of them in the table, some that are not sent, and blanks.
    const std::string characters = allSymbols() + "EEETTTAAA0123456789     bcde#@;:_\"'()+-*%&$!\\|[]{}^`\t";
    std::uniform_int_distribution<std::size_t> anyCharacter(0, characters.size() - 1);
    std::uniform_int_distribution<std::size_t> anyLength(0, 60);
    std::uniform_int_distribution<int> anySpeed(5, 20);
    for (int message = 0; message < 3000; ++message) {
        std::string text(anyLength(random), ' ');
        for (char& character : text)
            character = characters[anyCharacter(random)];
        const int wpm = 2 * anySpeed(random);
        ASSERT_EQ(sent(text, wpm), test::keyedLines(text, wpm)) << "\"" << text << "\" at " << wpm;
        const std::size_t first = text.find_first_not_of(' ');
        const std::string trimmed =
            first == std::string::npos ? "" : text.substr(first, text.find_last_not_of(' ') - first + 1);
        if (!audible(trimmed).empty()) {
            ASSERT_EQ(test::heardText(lines(), wpm), audible(trimmed)) << "\"" << text << "\" at " << wpm;
        }
    }
}

TEST_F(Keyer, SendsOnlyTheWordSpaceOfBlanks)
{
    for (const char* text : {"", " ", "        "})
        EXPECT_EQ(sent(text), (LineLog{"0 open 1", "0 RTS on", "147 RTS off", "147 close"})) << text;
}

TEST_F(Keyer, SendsNothingOfCharactersOutsideTheTable)
{
    EXPECT_EQ(sent("e"), sent(""));
    EXPECT_EQ(sent("E\xC4\x82tA"), sent("EA"));
    EXPECT_EQ(sent("#E#"), sent("E"));
    EXPECT_EQ(sent("!  E"), (LineLog{"0 open 1", "0 RTS on", "294 DTR on", "331 DTR off", "632 RTS off", "632 close"}));
}

TEST_F(Keyer, SendsProsignsOfLowerCase)
{
    EXPECT_EQ(sent("aEs~"), test::keyedLines("aEs~", 30));
    EXPECT_EQ(test::heardText(lines(), 30), "aEs~");
}

TEST_F(Keyer, KeepsTheElementsOfThirteenWordsBelowThat)
{
    // 20 / 13 ticks are 84.53 ms; the spaces are those of 11 and of 8 words.
    EXPECT_EQ(sent("E", 12), (LineLog{"0 open 1", "0 RTS on", "0 DTR on", "85 DTR off", "843 RTS off", "843 close"}));
    EXPECT_EQ(sent("E", 10), (LineLog{"0 open 1", "0 RTS on", "0 DTR on", "85 DTR off", "1000 RTS off", "1000 close"}));
}

TEST_F(Keyer, ShowsWhatItSendsAndHidesItBehind)
{
    std::vector<std::string> shown;
    for (int time = 10; time < 600; time += 40)
        at(milliseconds(time), [&] {
            EXPECT_TRUE(FrmQSO.TxtCwCurent.Visible);
            EXPECT_TRUE(FrmQSO.MSComm1.PortOpen);
            if (shown.empty() || shown.back() != FrmQSO.TxtCwCurent.Text.get())
                shown.push_back(FrmQSO.TxtCwCurent.Text);
        });
    EXPECT_FALSE(FrmQSO.TxtCwCurent.Visible);
    send("  E;E %E ");
    EXPECT_EQ(shown, (std::vector<std::string>{"E", "E;E", "E;E ", "E;E %E"}));
    EXPECT_FALSE(FrmQSO.TxtCwCurent.Visible);
}

TEST_F(Keyer, SendsNothingOfAMessageThatNobodyCanCount)
{
    EXPECT_EQ(sent(std::string(32768, 'E')), (LineLog{"0 open 1", "0 RTS on", "0 RTS off", "0 close"}));
    EXPECT_EQ(program_.notices().size(), 1U);
    EXPECT_FALSE(FrmQSO.TxtCwCurent.Visible);
}

TEST_F(Keyer, SendsTheLongestMessageThatCanBeCounted)
{
    const std::string longest = "E" + std::string(32765, '%') + "T";
    // To its last character at once; the way there is long.
    at(milliseconds(10), [] { FrmQSO.CharIdx = 32766; });
    send(longest);
    EXPECT_EQ(test::logOf(lines()).at(2), "0 DTR on");
    EXPECT_EQ(test::logOf(lines()).at(4), "191 DTR on");
    EXPECT_EQ(test::logOf(lines()).at(5), "301 DTR off");
    EXPECT_EQ(lines().size(), 8U);
    EXPECT_FALSE(FrmQSO.MSComm1.PortOpen);
}

// ---- Stop keys

/// Moments of a message at which a key can go down: in the middle of each mark and each gap.
std::vector<milliseconds> middles(const LineLog& log)
{
    std::vector<long> changes;
    for (const std::string& line : log)
        if (line.find("DTR") != std::string::npos) changes.push_back(std::stol(line));
    std::vector<milliseconds> middles;
    for (std::size_t i = 0; i < changes.size(); i += 2) {
        middles.emplace_back((changes[i] + changes[i + 1]) / 2);
        middles.emplace_back(changes[i + 1] + 10);
    }
    return middles;
}

TEST_F(Keyer, StopsBehindTheElementThatIsRunning)
{
    const std::string text = "C Q5";
    const std::vector<milliseconds> moments = middles(test::keyedLines(text, 30));
    ASSERT_EQ(moments.size(), 2U * (4 + 4 + 5));
    for (const platform::Key& key : {endKey, escapeKey})
        for (std::size_t moment = 0; moment < moments.size(); ++moment)
            for (const bool held : {false, true}) {
                again();
                at(moments[moment], [&] { held ? keyboard().hold(key) : tap(key); });
                const int nextElement = static_cast<int>(moment) / 2 + 1;
                EXPECT_EQ(sent(text), test::keyedLines(text, 30, [&](int element) { return element == nextElement; }))
                    << "at " << moments[moment].count() << " ms" << (held ? ", held" : "");
                keyboard().letGo(key);
            }
}

TEST_F(Keyer, StopsInTheSpaceBetweenTwoWords)
{
    at(milliseconds(250), [&] { tap(endKey); });
    EXPECT_EQ(sent("E E"), (LineLog{"0 open 1", "0 RTS on", "0 DTR on", "37 DTR off", "485 RTS off", "485 close"}));
}

TEST_F(Keyer, ForgetsKeysThatWentDownBeforeTheMessage)
{
    tap(escapeKey);
    tap(endKey);
    EXPECT_EQ(sent("CQ"), test::keyedLines("CQ", 30));
}

TEST_F(Keyer, SendsNothingWhileAStopKeyIsHeldFromTheBeginning)
{
    keyboard().hold(escapeKey);
    EXPECT_EQ(sent("CQ"), (LineLog{"0 open 1", "0 RTS on", "147 RTS off", "147 close"}));
    keyboard().letGo(escapeKey);
    EXPECT_EQ(sent("CQ"), test::keyedLines("CQ", 30));
}

TEST_F(Keyer, IsStoppedInCwByTheComputerOnly)
{
    at(milliseconds(100), [&] { tap(endKey); });
    Modul1.ModeCur = "SSB";
    EXPECT_EQ(sent("CQ"), test::keyedLines("CQ", 30));
    again();
    at(milliseconds(100), [&] { tap(escapeKey); });
    Modul1.ModeCur = "CW";
    Modul1.CwAllowed = 10;
    EXPECT_EQ(sent("CQ"), test::keyedLines("CQ", 30));
}

std::string longText(std::size_t length)
{
    const std::string pattern = "PARIS CQ TEST 73 ";
    std::string text;
    for (std::size_t i = 0; i < length; ++i)
        text += i + 1 == length ? 'E' : pattern[i % pattern.size()];
    return text;
}

/// When an element of a message begins, as it is sent without a stop.
milliseconds beginOf(const std::string& text, std::size_t element)
{
    return middles(test::keyedLines(text, 30)).at(2 * element);
}

TEST_F(Keyer, GoesOnBehindCharacterHundredOfALongerMessage)
{
    for (const std::size_t length : {99U, 100U, 101U, 102U, 150U}) {
        const std::string text = longText(length);
        for (const std::size_t element : {0U, 1U, 2U, 30U, 100U, 200U}) {
            again();
            at(beginOf(text, element), [&] { tap(escapeKey); });
            const LineLog expected =
                test::keyedLines(text, 30, [&](int each) { return each == static_cast<int>(element) + 1; });
            EXPECT_EQ(sent(text), expected) << length << " characters, element " << element;
        }
    }
}

TEST_F(Keyer, GoesBackToCharacterHundredAndOneWhenItIsStoppedBehindThat)
{
    // The elements behind character 101 are sent twice, up to where the key came.
    const std::string text = longText(150);
    const std::size_t before = middles(test::keyedLines(text.substr(0, 100), 30)).size() / 2;
    for (const std::size_t element : {before + 3, before + 20, before + 60}) {
        again();
        at(beginOf(text, element), [&] { tap(endKey); });
        const LineLog expected =
            test::keyedLines(text, 30, [&](int each) { return each == static_cast<int>(element) + 1; });
        EXPECT_EQ(sent(text), expected) << element;
    }
}

TEST_F(Keyer, WaitsBehindCharacterHundredWhileTheKeyIsHeld)
{
    const std::string text = longText(130);
    at(milliseconds(1000), [&] { keyboard().hold(escapeKey); });
    at(milliseconds(5000), [&] { keyboard().letGo(escapeKey); });
    const LineLog log = sent(text);
    const LineLog rest = test::keyedLines(text.substr(100), 30);
    const auto firstLate = std::find_if(log.begin(), log.end(), [](const std::string& line) {
        return std::stol(line) >= 5000 && line.find("DTR on") != std::string::npos;
    });
    // From there on it is the message from character 101.
    ASSERT_EQ(static_cast<std::size_t>(log.end() - firstLate), rest.size() - 2);
    const long begin = std::stol(*firstLate);
    EXPECT_LE(begin, 5002);
    for (std::size_t i = 2; i < rest.size(); ++i) {
        const std::string& line = *(firstLate + static_cast<std::ptrdiff_t>(i - 2));
        EXPECT_EQ(std::to_string(std::stol(line) - begin) + line.substr(line.find(' ')), rest[i]);
    }
    EXPECT_LT(std::stol(*(firstLate - 1)), 1200);
}

// ---- Endings

TEST_F(Keyer, EndsWhenTheAdapterIsPulled)
{
    const std::vector<milliseconds> moments = middles(test::keyedLines("CQ", 30));
    for (const milliseconds moment : moments) {
        program_.machine().description.portPulled = false;
        again();
        at(moment, [&] {
            program_.machine().description.portPulled = true;
            program_.machine().serialPort.pull();
        });
        send("CQ");
        EXPECT_EQ(lines().back().what, "close") << moment.count();
        EXPECT_EQ(test::logOf(lines()).back(), std::to_string(moment.count()) + " close");
        EXPECT_FALSE(FrmQSO.MSComm1.PortOpen);
        EXPECT_FALSE(FrmQSO.TxtCwCurent.Visible);
        EXPECT_FALSE(program_.box().has_value());
    }
}

TEST_F(Keyer, KeepsTheLengthOfElementsWhenAHandlerWasLate)
{
    // A handler that took its time while the space behind the first letter ran: the second comes late, in full length.
    at(milliseconds(150),
       [&] { program_.machine().clock.moveTo(program_.machine().clock.monotonic() + milliseconds(300)); });
    EXPECT_EQ(sent("ET"), (LineLog{"0 open 1", "0 RTS on", "0 DTR on", "37 DTR off", "450 DTR on", "560 DTR off",
                                   "861 RTS off", "861 close"}));
}

TEST_F(Keyer, RaisesTheErrorOfAMissingPortBehindTheMessage)
{
    for (const int port : {0, 2, -1, 32767}) {
        Modul1.CwPort = static_cast<std::int16_t>(port);
        int number = 0;
        try {
            send("CQ");
        } catch (const base::RuntimeError& error) {
            number = error.number();
        }
        EXPECT_EQ(number, base::noSuchPort) << port;
        EXPECT_TRUE(lines().empty());
        const auto box = program_.box();
        ASSERT_TRUE(box.has_value());
        EXPECT_EQ(box->request.text, "PortComm inexistent !");
        EXPECT_EQ(box->request.title, "");
        EXPECT_EQ(box->request.style, 48);
        EXPECT_EQ(Modul1.ConcReturn, 100);
        EXPECT_EQ(screen::activeForm()->name, "FrmInit");
    }
}

TEST_F(Keyer, CountsTheSecondsOfTheDay)
{
    program_.machine().clock.setCalendar(std::chrono::local_days(std::chrono::year(2026) / 11 / 15) +
                                         std::chrono::seconds(86399));
    keyer::Tmr();
    EXPECT_FLOAT_EQ(FrmQSO.SecNow, 86399);
    program_.machine().clock.setCalendar(std::chrono::local_days(std::chrono::year(2026) / 11 / 15) +
                                         std::chrono::seconds(12 * 3600 + 34 * 60 + 56));
    keyer::Tmr();
    EXPECT_FLOAT_EQ(FrmQSO.SecNow, 45296);
}

}  // namespace
