// The machine under a scripted program: clock, boxes, keys, files, and how values are written.
#include <gtest/gtest.h>

#include <fstream>
#include <limits>
#include <regex>

#include "base/text.h"
#include "platform/files.h"
#include "script/folder_files.h"
#include "script/key_names.h"
#include "script/number_words.h"
#include "script/state_variables.h"
#include "script/step_failed.h"
#include "script/value.h"
#include "script/virtual_machine.h"
#include "script/words.h"
#include "support/temporary_folder.h"

namespace {

using namespace std::chrono_literals;
using platform::Button;
using platform::Key;
using platform::PolledKey;
using script::keyNamed;
using script::keyTyping;
using script::StepFailed;
using script::Value;
using script::VirtualMachine;

platform::LocalTime at(const char* day, const char* time)
{
    return script::calendarDay(day).value() + script::timeOfDay(time).value();
}

class ScriptMachine : public testing::Test {
 protected:
    test::TemporaryFolder folder_;
    VirtualMachine machine_{folder_.path()};
};

TEST_F(ScriptMachine, BeginsAtItsDefaults)
{
    const platform::Machine& drivers = machine_.drivers();
    EXPECT_EQ(drivers.clock.now(), at("2026-01-01", "12:00:00"));
    EXPECT_EQ(drivers.clock.monotonic(), 0ns);
    EXPECT_EQ(drivers.sound.outputDevices(), 1);
    EXPECT_EQ(drivers.screen.size().width, 800);
    EXPECT_EQ(drivers.screen.size().height, 600);
    EXPECT_EQ(drivers.installation.commandLine(), "");
    EXPECT_EQ(drivers.notices.last(), "");
    EXPECT_FALSE(machine_.description.port.has_value());
    EXPECT_FALSE(machine_.description.drive.has_value());
    EXPECT_EQ(machine_.description.printer, script::PrinterState::there);
}

TEST_F(ScriptMachine, KnowsItsFolderFromTheRootWithoutASeparatorAtTheEnd)
{
    EXPECT_EQ(machine_.folder(), platform::pathText(folder_.path()));
    EXPECT_EQ(VirtualMachine(folder_.path() / "").folder(), machine_.folder());
    EXPECT_EQ(VirtualMachine(folder_.path() / "a" / "..").folder(), machine_.folder());
}

TEST_F(ScriptMachine, FindsFilesInAnySpelling)
{
    std::filesystem::create_directory(folder_.file("Log"));
    test::writeFile(folder_.path() / "Log" / "A.txt", "");
    EXPECT_EQ(machine_.fileAt("log/a.TXT"), folder_.path() / "Log" / "A.txt");
    EXPECT_EQ(machine_.fileAt("LOG/b.txt"), folder_.path() / "Log" / "b.txt");
}

TEST_F(ScriptMachine, MovesTheCalendarWithTheClock)
{
    script::VirtualClock& clock = machine_.clock;
    clock.sleepUntil(1500ms);
    EXPECT_EQ(clock.monotonic(), 1500ms);
    EXPECT_EQ(clock.now(), at("2026-01-01", "12:00:01"));
    clock.sleepUntil(1s);
    EXPECT_EQ(clock.monotonic(), 1500ms) << "time never goes back";
    clock.setCalendar(at("2026-12-31", "23:59:59"));
    EXPECT_EQ(clock.now(), at("2026-12-31", "23:59:59"));
    EXPECT_EQ(clock.monotonic(), 1500ms);
    clock.sleepUntil(2499ms);
    EXPECT_EQ(clock.now(), at("2026-12-31", "23:59:59"));
    clock.sleepUntil(2500ms);
    EXPECT_EQ(clock.now(), at("2027-01-01", "00:00:00"));
}

TEST_F(ScriptMachine, KeepsTheNoticesOfAllRunsAndTheLastOfEach)
{
    platform::Notices& notices = machine_.drivers().notices;
    machine_.beginRun("");
    notices.notice("one");
    notices.notice("two");
    EXPECT_EQ(notices.last(), "two");
    machine_.beginRun("AUTO");
    EXPECT_EQ(notices.last(), "");
    EXPECT_EQ(machine_.record.notices, (std::vector<std::string>{"one", "two"}));
    EXPECT_EQ(machine_.drivers().installation.commandLine(), "AUTO");
}

TEST_F(ScriptMachine, CountsMomentsFromTheFirstStart)
{
    machine_.clock.sleepUntil(10s);
    machine_.beginRun("");
    machine_.clock.sleepUntil(10s + 1234567us);
    machine_.beginRun("");
    machine_.drivers().help.open(400);
    ASSERT_EQ(machine_.record.help.size(), 1U);
    EXPECT_EQ(machine_.record.print(machine_.record.help[0]), "1234.567 400");
}

TEST_F(ScriptMachine, GivesSoundsOnceForChecking)
{
    machine_.record.sounds.push_back({1s, "F1.wav"});
    EXPECT_EQ(machine_.record.takeSounds(), std::vector<std::string>{"F1.wav"});
    EXPECT_TRUE(machine_.record.takeSounds().empty());
    machine_.record.sounds.push_back({2s, "F2.wav missing"});
    EXPECT_EQ(machine_.record.takeSounds(), std::vector<std::string>{"F2.wav missing"});
}

class ScriptBoxes : public testing::Test {
 protected:
    Button ask(int style) { return boxes_.show({"Sure ?", "EXIT", style}); }

    void SetUp() override
    {
        boxes_.setComplaint([this](const std::string& expected, const std::string& got) {
            complaints_.push_back(expected + " got " + got);
        });
    }

    script::ScriptedBoxes boxes_;
    std::vector<std::string> complaints_;
};

TEST_F(ScriptBoxes, AnswerABoxWithOneButtonWithoutAnAnswer)
{
    boxes_.queueAnswer(platform::buttonYes, 3);
    EXPECT_EQ(ask(48), platform::buttonOk);
    EXPECT_TRUE(complaints_.empty());
    EXPECT_EQ(boxes_.linesOfAnswersLeft(), std::vector<int>{3});
}

TEST_F(ScriptBoxes, TakeAnswersInOrder)
{
    for (const Button button : {platform::buttonYes, platform::buttonNo, platform::buttonCancel, platform::buttonOk})
        boxes_.queueAnswer(button, 1);
    EXPECT_EQ(ask(36), platform::buttonYes);
    EXPECT_EQ(ask(292), platform::buttonNo);
    EXPECT_EQ(ask(3), platform::buttonCancel);
    EXPECT_EQ(ask(65), platform::buttonOk);
    EXPECT_TRUE(complaints_.empty());
    EXPECT_TRUE(boxes_.linesOfAnswersLeft().empty());
}

TEST_F(ScriptBoxes, RefuseAQuestionWithoutAnAnswer)
{
    EXPECT_EQ(ask(36), platform::buttonNo);
    EXPECT_EQ(ask(3), platform::buttonNo);
    EXPECT_EQ(ask(1), platform::buttonCancel);
    EXPECT_EQ(complaints_, (std::vector<std::string>{"an answer Yes or No to \"Sure ?\" got none",
                                                     "an answer Yes or No or Cancel to \"Sure ?\" got none",
                                                     "an answer OK or Cancel to \"Sure ?\" got none"}));
}

TEST_F(ScriptBoxes, RefuseAnAnswerThatTheBoxDoesNotOffer)
{
    boxes_.queueAnswer(platform::buttonOk, 1);
    EXPECT_EQ(ask(36), platform::buttonNo);
    EXPECT_EQ(complaints_, std::vector<std::string>{"an answer Yes or No to \"Sure ?\" got OK"});
    EXPECT_TRUE(boxes_.linesOfAnswersLeft().empty());
}

TEST_F(ScriptBoxes, KeepEveryBoxForChecking)
{
    boxes_.queueAnswer(platform::buttonYes, 1);
    ask(36);
    boxes_.show({"Falsche Eingabe", "", 0});
    ASSERT_EQ(boxes_.all().size(), 2U);
    EXPECT_EQ(script::boxText(boxes_.all()[0]), "36|EXIT|Sure ?|Yes");
    EXPECT_EQ(script::boxText(boxes_.all()[1]), "0||Falsche Eingabe|OK");
    ASSERT_NE(boxes_.oldestUnchecked(), nullptr);
    EXPECT_EQ(boxes_.takeUnchecked()->request.text, "Sure ?");
    EXPECT_EQ(boxes_.takeUnchecked()->request.text, "Falsche Eingabe");
    EXPECT_FALSE(boxes_.takeUnchecked().has_value());
    EXPECT_EQ(boxes_.oldestUnchecked(), nullptr);
    EXPECT_EQ(boxes_.all().size(), 2U);
}

TEST(ScriptKeyboard, RemembersAPressUntilTheNextLook)
{
    script::VirtualKeyboard keyboard;
    const Key escape = keyNamed("Esc").value();
    EXPECT_FALSE(keyboard.pressed(PolledKey::escape));
    keyboard.press(escape);
    keyboard.release(escape);
    EXPECT_FALSE(keyboard.pressed(PolledKey::end));
    EXPECT_TRUE(keyboard.pressed(PolledKey::escape));
    EXPECT_FALSE(keyboard.pressed(PolledKey::escape));
    keyboard.press(escape);
    keyboard.release(escape);
    keyboard.forget();
    EXPECT_FALSE(keyboard.pressed(PolledKey::escape));
}

TEST(ScriptKeyboard, KeepsAHeldKeyDown)
{
    script::VirtualKeyboard keyboard;
    const Key end = keyNamed("End").value();
    keyboard.hold(end);
    keyboard.forget();
    EXPECT_TRUE(keyboard.pressed(PolledKey::end));
    EXPECT_TRUE(keyboard.pressed(PolledKey::end));
    EXPECT_FALSE(keyboard.isDown(end)) << "holding is not pressing";
    keyboard.letGo(end);
    EXPECT_FALSE(keyboard.pressed(PolledKey::end));
}

TEST(ScriptKeyboard, KnowsAKeyWhateverShiftDoes)
{
    script::VirtualKeyboard keyboard;
    keyboard.press(keyTyping(U'A'));
    EXPECT_TRUE(keyboard.isDown(keyTyping(U'a')));
    keyboard.release(keyTyping(U'a'));
    EXPECT_FALSE(keyboard.isDown(keyTyping(U'A')));
}

void expectKey(const Key& key, int code, char32_t character, bool shift)
{
    EXPECT_EQ(key.code, code);
    EXPECT_EQ(key.character, character);
    EXPECT_EQ(key.shift, shift);
    EXPECT_FALSE(key.ctrl || key.alt);
}

TEST(ScriptKeys, TypeCharactersWithTheUsualCodes)
{
    expectKey(keyTyping(U'a'), 'A', U'a', false);
    expectKey(keyTyping(U'A'), 'A', U'A', true);
    expectKey(keyTyping(U'7'), '7', U'7', false);
    expectKey(keyTyping(U' '), 32, U' ', false);
    expectKey(keyTyping(U'/'), 191, U'/', false);
    expectKey(keyTyping(U'?'), 191, U'?', true);
    expectKey(keyTyping(U'.'), 190, U'.', false);
    expectKey(keyTyping(U','), 188, U',', false);
    expectKey(keyTyping(U'-'), 189, U'-', false);
    expectKey(keyTyping(U'('), '9', U'(', true);
    expectKey(keyTyping(U'ö'), 0, U'ö', false);
    expectKey(keyTyping(U'\t'), 9, 0, false);
}

TEST(ScriptKeys, HaveNames)
{
    const std::pair<const char*, int> names[] = {
        {"Tab", 9},     {"Enter", 13},    {"Esc", 27},  {"Backspace", 8}, {"Delete", 46}, {"Insert", 45},
        {"Home", 36},   {"End", 35},      {"Left", 37}, {"Right", 39},    {"Up", 38},     {"Down", 40},
        {"PageUp", 33}, {"PageDown", 34}, {"F1", 112},  {"F12", 123},     {"tab", 9},
    };
    for (const auto& [name, code] : names) {
        SCOPED_TRACE(name);
        ASSERT_TRUE(keyNamed(name).has_value());
        expectKey(*keyNamed(name), code, 0, false);
    }
    expectKey(keyNamed("Space").value(), 32, U' ', false);
    expectKey(keyNamed("q").value(), 'Q', U'q', false);
    EXPECT_FALSE(keyNamed("Return").has_value());
    EXPECT_FALSE(keyNamed("F0").has_value());
    EXPECT_FALSE(keyNamed("").has_value());
}

TEST(ScriptKeys, TakeModifiers)
{
    const Key up = keyNamed("Ctrl+Up").value();
    EXPECT_TRUE(up.ctrl);
    EXPECT_EQ(up.code, 38);
    const Key letter = keyNamed("alt+Q").value();
    EXPECT_TRUE(letter.alt);
    EXPECT_EQ(letter.character, U'Q');
    EXPECT_FALSE(letter.shift);
    EXPECT_FALSE(keyNamed("Ctrl+V").value().shift);
    const Key tab = keyNamed("Shift+Tab").value();
    EXPECT_TRUE(tab.shift);
    EXPECT_EQ(tab.character, 0U);
    expectKey(keyNamed("Shift+a").value(), 'A', U'A', true);
    expectKey(keyNamed("Shift+1").value(), '1', U'!', true);
    expectKey(keyNamed("+").value(), 187, U'+', true);
    const Key all = keyNamed("Shift+Ctrl+Alt++").value();
    EXPECT_TRUE(all.shift && all.ctrl && all.alt);
    EXPECT_EQ(all.character, U'+');
    EXPECT_FALSE(keyNamed("Ctrl+").has_value());
}

TEST(ScriptNumbers, AreReadStrictly)
{
    EXPECT_EQ(script::wholeNumber("-12"), -12);
    EXPECT_EQ(script::wholeNumber("1.5"), std::nullopt);
    EXPECT_EQ(script::wholeNumber(""), std::nullopt);
    EXPECT_EQ(script::wholeNumber("-"), std::nullopt);
    EXPECT_EQ(script::wholeNumber("9999999999"), std::nullopt);
    EXPECT_EQ(script::decimalNumber("-1.25"), -1.25);
    EXPECT_EQ(script::decimalNumber("1e3"), std::nullopt);
    EXPECT_EQ(script::decimalNumber("inf"), std::nullopt);
    EXPECT_EQ(script::seconds("0.000001"), 1us);
    EXPECT_EQ(script::seconds("-1"), std::nullopt);
    EXPECT_EQ(script::colour("0,128,255"), (screen::Colour{0, 128, 255}));
    EXPECT_EQ(script::colour("0,128,256"), std::nullopt);
    EXPECT_EQ(script::colour("0,128"), std::nullopt);
    EXPECT_EQ(script::calendarDay("0099-01-01"), std::nullopt);
    EXPECT_EQ(script::calendarDay("2024-02-29"), std::chrono::local_days(std::chrono::year(2024) / 2 / 29));
}

TEST(ScriptValues, AreShownAsScriptsWriteThem)
{
    EXPECT_EQ(script::shown(Value(std::string("YO2\"\\"))), R"("YO2\"\\")");
    EXPECT_EQ(script::shown(Value(144L)), "144");
    EXPECT_EQ(script::shown(Value(0.1)), "0.100000");
    EXPECT_EQ(script::shown(Value(-1e-9)), "0.000000");
    EXPECT_EQ(script::shown(Value(static_cast<double>(0.8F))), "0.800000");
    EXPECT_EQ(script::shown(Value(std::numeric_limits<double>::max())).size(), 316U);
    EXPECT_EQ(script::shown(Value(true)), "yes");
    EXPECT_EQ(script::shown(Value(false)), "no");
    EXPECT_EQ(script::shown(Value(screen::buttonFace)), "240,240,240");
}

TEST(ScriptValues, AreMeantByWords)
{
    EXPECT_TRUE(script::means("YO2", Value(std::string("YO2"))));
    EXPECT_FALSE(script::means("yo2", Value(std::string("YO2"))));
    EXPECT_TRUE(script::means("144", Value(144L)));
    EXPECT_FALSE(script::means("144x", Value(144L)));
    EXPECT_TRUE(script::means("3.14159265", Value(3.14159265358979)));
    EXPECT_FALSE(script::means("3.1416", Value(3.14159265358979)));
    EXPECT_TRUE(script::means("1200", Value(1200.0)));
    for (const char* yes : {"yes", "1", "Yes"})
        EXPECT_TRUE(script::means(yes, Value(true))) << yes;
    for (const char* no : {"no", "0"})
        EXPECT_TRUE(script::means(no, Value(false))) << no;
    EXPECT_FALSE(script::means("maybe", Value(false)));
    EXPECT_TRUE(script::means("255,0,0", Value(screen::red)));
    EXPECT_FALSE(script::means("red", Value(screen::red)));
}

TEST(ScriptValues, MakeRowsWithEscapedSigns)
{
    EXPECT_EQ(script::rowText(std::vector<std::optional<std::string>>{"1", "a|b", "c\\d", std::nullopt, ""}),
              R"(1|a\|b|c\\d|\N|)");
    EXPECT_EQ(script::rowText(std::vector<std::string>{}), "");
}

/// Names of the variables that a header declares, by the pattern of their types.
std::vector<std::string> declaredVariables(const std::string& header, const std::string& types)
{
    std::ifstream file(std::string(KELVO_SOURCE_FOLDER) + "/src/" + header);
    EXPECT_TRUE(file.is_open()) << header;
    const std::regex declaration("^    (" + types + ") (\\w+)( = [^;]*)?;.*");
    std::vector<std::string> names;
    for (std::string line; std::getline(file, line);) {
        std::smatch match;
        if (std::regex_match(line, match, declaration)) names.push_back(match[2]);
    }
    return names;
}

TEST(ScriptState, KnowsEveryVariableOfTheRunStateAndOfTheForms)
{
    const std::string types = "std::string|std::u?int\\d+_t|float|double";
    const std::vector<std::string> shared = declaredVariables("runstate/modul1.h", types);
    EXPECT_GT(shared.size(), 100U);
    for (const std::string& name : shared) {
        ASSERT_TRUE(script::stateVariable(base::upper(name)).has_value()) << name;
        EXPECT_EQ(script::stateVariable(name)->name, name);
    }
    const std::vector<std::string> members = declaredVariables("screen/frm_qso.h", types);
    EXPECT_GT(members.size(), 20U);
    for (const std::string& name : members)
        EXPECT_TRUE(script::stateVariable("FrmQSO." + name).has_value()) << name;
    const std::vector<std::string> ofReview = declaredVariables("screen/frm_anzeigen.h", types);
    EXPECT_GT(ofReview.size(), 10U);
    for (const std::string& name : ofReview)
        EXPECT_TRUE(script::stateVariable("FrmAnzeigen." + name).has_value()) << name;
    EXPECT_FALSE(script::stateVariable("DupLock").has_value());
    EXPECT_FALSE(script::stateVariable("FrmInit.BandCur").has_value());
}

class ScriptFiles : public testing::Test {
 protected:
    StepFailed failureOf(const std::vector<std::string>& lines)
    {
        try {
            script::mustHaveLines(file_, lines);
        } catch (const StepFailed& failure) {
            return failure;
        }
        return {"no failure", ""};
    }

    test::TemporaryFolder folder_;
    std::filesystem::path file_ = folder_.path() / "Log" / "a.txt";
};

TEST_F(ScriptFiles, AreWrittenInWindows1250WithCrLf)
{
    script::writeTextFile(file_, {"Șerban", "", " x "});
    EXPECT_EQ(test::readFile(file_),
              "\xAA"
              "erban\r\n\r\n x \r\n");
    EXPECT_EQ(script::linesOf(file_), (std::vector<std::string>{"Şerban", "", " x "}));
    script::mustHaveLines(file_, {"Șerban", "", " x "});
    script::writeTextFile(file_, {});
    EXPECT_EQ(test::readFile(file_), "");
    script::mustHaveLines(file_, {});
}

TEST_F(ScriptFiles, AreComparedLineByLine)
{
    script::writeTextFile(file_, {"one", "two"});
    EXPECT_EQ(failureOf({"one", "2"}).expected, "line 2 of a.txt \"2\"");
    EXPECT_EQ(failureOf({"one", "2"}).got, "\"two\"");
    EXPECT_EQ(failureOf({"one ", "two"}).got, "\"one\"");
    EXPECT_EQ(failureOf({"one", "two", ""}).expected, "line 3 of a.txt \"\"");
    EXPECT_EQ(failureOf({"one", "two", ""}).got, "the end of the file");
    EXPECT_EQ(failureOf({"one"}).expected, "the end of a.txt behind line 1");
    EXPECT_EQ(failureOf({"one"}).got, "\"two\"");
    test::writeFile(file_, "one\r\ntwo");
    EXPECT_EQ(failureOf({"one", "two"}).got, "\"two\" without CR LF");
    test::writeFile(file_, "one\ntwo\r\n");
    EXPECT_EQ(failureOf({"one", "two"}).got, "\"one\ntwo\"");
}

TEST_F(ScriptFiles, AreMissedWhenTheyAreNotThere)
{
    EXPECT_EQ(failureOf({}).expected, "a file a.txt");
    EXPECT_EQ(failureOf({}).got, "none");
    std::filesystem::create_directories(file_);
    EXPECT_EQ(failureOf({}).got, "none");
    EXPECT_THROW(script::writeTextFile(file_, {}), StepFailed);
    EXPECT_THROW(script::linesOf(file_), StepFailed);
}

TEST_F(ScriptFiles, OfSoundHaveTheirLengthInTheHead)
{
    script::writeSoundFile(file_, 2500ms);
    const std::string bytes = test::readFile(file_);
    constexpr std::size_t head = 44;
    ASSERT_EQ(bytes.size(), head + 20000);
    EXPECT_EQ(bytes.substr(0, 4) + bytes.substr(8, 8), "RIFFWAVEfmt ");
    const auto number = [&](std::size_t from) {
        return static_cast<unsigned char>(bytes[from]) + 256 * static_cast<unsigned char>(bytes[from + 1]) +
               65536 * static_cast<unsigned char>(bytes[from + 2]);
    };
    EXPECT_EQ(number(4), 20000 + 36);
    EXPECT_EQ(number(28), 8000) << "bytes a second";
    EXPECT_EQ(bytes.substr(36, 4), "data");
    EXPECT_EQ(number(40), 20000);
    script::writeSoundFile(file_, 0s);
    EXPECT_EQ(test::readFile(file_).size(), head);
}

}  // namespace
