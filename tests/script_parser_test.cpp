// Reading scripts: words, quotes, comments, lines of text, and every statement with its words.
#include "script/parser.h"

#include <gtest/gtest.h>

#include "script/grammar.h"

namespace {

using script::parse;
using script::Script;
using script::Statement;
using script::Verb;

/// Why a script cannot be read, with file and line.
std::string whyNot(const std::string& text)
{
    try {
        parse(text, "s");
    } catch (const script::UnreadableScript& unreadable) {
        return unreadable.what();
    }
    return "it can be read";
}

Statement only(const std::string& text)
{
    const Script script = parse(text, "s");
    EXPECT_EQ(script.statements.size(), 1U) << text;
    return script.statements.at(0);
}

std::vector<std::string> wordsIn(const std::string& text)
{
    std::vector<std::string> words;
    for (const script::Word& word : only(text).words)
        words.push_back(word.text);
    return words;
}

using Words = std::vector<std::string>;

TEST(ScriptParser, PartsWordsByBlanksAndTabs)
{
    EXPECT_EQ(wordsIn("  key \t Tab   Enter  "), (Words{"Tab", "Enter"}));
}

TEST(ScriptParser, TakesTextInQuotesAsOneWord)
{
    EXPECT_EQ(wordsIn(R"(type "YO2 ABC")"), Words{"YO2 ABC"});
    EXPECT_EQ(wordsIn(R"(type "")"), Words{""});
    EXPECT_EQ(wordsIn(R"(type "a\"b\\c")"), Words{R"(a"b\c)"});
}

TEST(ScriptParser, LeavesABackslashBeforeOtherCharactersAlone)
{
    EXPECT_EQ(wordsIn(R"(type "C:\Log")"), Words{R"(C:\Log)"});
    EXPECT_EQ(wordsIn(R"(expect row QRA 1 a\b)"), (Words{"QRA", "1", R"(a\b)"}));
}

TEST(ScriptParser, OpensACommentOnlyOutsideQuotes)
{
    EXPECT_EQ(wordsIn("close # the window"), Words{});
    EXPECT_EQ(wordsIn("click CmdA# at once"), Words{"CmdA"});
    EXPECT_EQ(wordsIn("type \"#1 DE #2\" # said"), Words{"#1 DE #2"});
    EXPECT_TRUE(parse("# nothing\n\n   \n#\n", "s").statements.empty());
}

TEST(ScriptParser, CountsLinesFromOne)
{
    const Script script = parse("# first\nstart\n\nclose\n", "s");
    ASSERT_EQ(script.statements.size(), 2U);
    EXPECT_EQ(script.statements[0].line, 2);
    EXPECT_EQ(script.statements[1].line, 4);
}

TEST(ScriptParser, TakesLineEndsOfEitherKindAndAByteOrderMark)
{
    const Script script = parse("\xEF\xBB\xBFstart\r\nfile \"a\"\r\n|x \r\nclose", "s");
    ASSERT_EQ(script.statements.size(), 3U);
    EXPECT_EQ(script.statements[1].lines, Words{"x "});
}

TEST(ScriptParser, GivesLinesOfTextToTheStatementAbove)
{
    const Statement file = only("file \"a\"\n| one # no comment\n|\n# a comment between\n\n  |\"two\n");
    EXPECT_EQ(file.lines, (Words{" one # no comment", "", "\"two"}));
    EXPECT_EQ(only("expect file \"a\"\n|x\n").lines, Words{"x"});
}

TEST(ScriptParser, RefusesLinesOfTextWhereNoneBelong)
{
    EXPECT_EQ(whyNot("|x\n"), "s:1: no statement stands above this line");
    EXPECT_EQ(whyNot("start\n\n|x\n"), "s:3: no lines belong to this statement: start [WORD]");
}

TEST(ScriptParser, ReadsTheStatementBehindAfter)
{
    const Statement after = only("after 0.25 after 2 file \"a\"\n|x\n");
    EXPECT_EQ(after.verb, Verb::after);
    ASSERT_EQ(after.words.size(), 1U);
    ASSERT_NE(after.later, nullptr);
    EXPECT_EQ(after.later->verb, Verb::after);
    ASSERT_NE(after.later->later, nullptr);
    EXPECT_EQ(after.later->later->verb, Verb::file);
    EXPECT_EQ(after.later->later->line, 1);
    EXPECT_EQ(after.later->later->lines, Words{"x"});
}

TEST(ScriptParser, RefusesWhatCannotBeDoneLater)
{
    EXPECT_EQ(whyNot("after 1 wait 2"), "s:1: time cannot be moved after a time");
    EXPECT_EQ(whyNot("after 1 clik CmdA"), "s:1: there is no statement \"clik\"");
    EXPECT_EQ(whyNot("after 1"), "s:1: too few words (after SECONDS STATEMENT...)");
    EXPECT_EQ(whyNot("after soon close"), "s:1: \"soon\" is not a number of seconds (after SECONDS STATEMENT...)");
}

TEST(ScriptParser, RefusesBrokenQuotes)
{
    EXPECT_EQ(whyNot("type \"YO2"), "s:1: a quotation mark that is not closed");
    EXPECT_EQ(whyNot("type \"YO2\\\""), "s:1: a quotation mark that is not closed");
    EXPECT_EQ(whyNot("type YO\"2\""), "s:1: a quotation mark inside a word");
    EXPECT_EQ(whyNot("type \"YO\"2"), "s:1: a word that touches a quotation mark");
}

TEST(ScriptParser, RefusesWhatIsNotUtf8)
{
    EXPECT_EQ(whyNot("start\ntype \"L\xD6SCHEN\"\n"), "s:2: this is not UTF-8");
    EXPECT_EQ(wordsIn("type \"LÖSCHEN\""), Words{"LÖSCHEN"});
}

TEST(ScriptParser, RefusesUnknownStatements)
{
    EXPECT_EQ(whyNot("start\nclik CmdA\n"), "s:2: there is no statement \"clik\"");
    EXPECT_EQ(whyNot("Start"), "s:1: there is no statement \"Start\"");
    EXPECT_EQ(whyNot("\"start\""), "s:1: there is no statement \"start\"");
    EXPECT_EQ(whyNot("show everything"), "s:1: \"everything\" is not a property, as txtIndic.Text (show PROPERTY)");
    EXPECT_EQ(whyNot("expect txtIndic.Txt 1"),
              "s:1: \"txtIndic.Txt\" is not a property, as txtIndic.Text (expect PROPERTY VALUE)");
}

TEST(ScriptParser, RefusesAWrongNumberOfWords)
{
    EXPECT_EQ(whyNot("close now"), "s:1: too many words (close)");
    EXPECT_EQ(whyNot("click"), "s:1: too few words (click NAME)");
    EXPECT_EQ(whyNot("start a b"), "s:1: too many words (start [WORD])");
    EXPECT_EQ(whyNot("key"), "s:1: too few words (key KEY...)");
    EXPECT_EQ(whyNot("expect rows Uus144a"), "s:1: too few words (expect rows TABLE COUNT)");
    EXPECT_EQ(whyNot("expect row Uus144a 1"), "s:1: too few words (expect row TABLE N VALUE...)");
    EXPECT_EQ(whyNot("message a b 1 2"), "s:1: too many words (message TEXT [TITLE] [STYLE])");
}

struct Line {
    const char* text;
    Verb verb;
};

class EveryStatement : public testing::TestWithParam<Line> {};

TEST_P(EveryStatement, IsKnown)
{
    EXPECT_EQ(only(GetParam().text).verb, GetParam().verb) << GetParam().text;
}

INSTANTIATE_TEST_SUITE_P(
    ScriptParser, EveryStatement,
    testing::Values(
        Line{"now 2026-11-15 12:34:56", Verb::now}, Line{"wait 0.5", Verb::wait}, Line{"after 3 close", Verb::after},
        Line{"screen 800 600", Verb::screen}, Line{"soundcard no", Verb::soundCard}, Line{"port 2", Verb::port},
        Line{"port none", Verb::port}, Line{"printer fail", Verb::printer}, Line{"drive a/b", Verb::drive},
        Line{"drive none", Verb::drive}, Line{"unplug", Verb::unplug}, Line{"file \"a/b\"", Verb::file},
        Line{"wav \"WAVUus/F1.wav\" 2.5", Verb::wav}, Line{"sql LogKelvo.mdb \"DELETE FROM Uus144a\"", Verb::sql},
        Line{"start", Verb::start}, Line{"start auto", Verb::start}, Line{"restart", Verb::restart},
        Line{"click FrmQSO.CmdA", Verb::click}, Line{"focus txtIndic", Verb::focus},
        Line{"dblclick TxtDate", Verb::doubleClick}, Line{"type \"YO\"", Verb::type}, Line{"paste \"YO\"", Verb::paste},
        Line{"key Tab F12 Ctrl+Up a", Verb::key}, Line{"down F1", Verb::keyDown}, Line{"up F1", Verb::keyUp},
        Line{"repeat F1 5", Verb::keyRepeat}, Line{"hold Esc", Verb::hold}, Line{"release Esc", Verb::release},
        Line{"row DBGrid1 -1", Verb::row}, Line{"dblrow DBGrid1 2", Verb::doubleRow}, Line{"close", Verb::close},
        Line{"answer Yes no OK cancel", Verb::answer}, Line{"message \"like\"", Verb::message},
        Line{"message \"a\" \"b\" 36", Verb::message}, Line{"message like \"a\"", Verb::messageLike},
        Line{"message any", Verb::messageAny}, Line{"nomessage", Verb::noMessage},
        Line{"expect txtIndic.Text \"YO\"", Verb::expectProperty},
        Line{"expect FrmQSO.DBGrid1.width12 0", Verb::expectProperty}, Line{"expect focus txtIndic", Verb::expectFocus},
        Line{"expect form FrmQSO", Verb::expectForm}, Line{"expect ended", Verb::expectEnded},
        Line{"expect off CmdA", Verb::expectOff}, Line{"expect state BandCur 144", Verb::expectState},
        Line{"expect rows QRA 0", Verb::expectRows}, Line{"expect row QRA -1 a b", Verb::expectRow},
        Line{"expect grid DBGrid1 1 a", Verb::expectGrid}, Line{"expect gridrows DBGrid1 0", Verb::expectGridRows},
        Line{"expect current DBGrid1 -1", Verb::expectCurrent}, Line{"expect list List1 1 \"2320\"", Verb::expectList},
        Line{"expect keyed 30 \"CQ\"", Verb::expectKeyed}, Line{"expect sounds", Verb::expectSounds},
        Line{"expect sounds \"F1.wav\" \"F2.wav missing\"", Verb::expectSounds},
        Line{"expect file \"Log/a\"", Verb::expectFile}, Line{"nofile \"Log/a\"", Verb::noFile},
        Line{"show txtIndic.Text", Verb::showProperty}, Line{"show controls", Verb::showControls},
        Line{"show state BandCur", Verb::showState}, Line{"show table QRA", Verb::showTable},
        Line{"show grid DBGrid1", Verb::showGrid}, Line{"show file \"a\"", Verb::showFile},
        Line{"show messages", Verb::showMessages}, Line{"show notices", Verb::showNotices},
        Line{"show serial", Verb::showSerial}, Line{"show sounds", Verb::showSounds},
        Line{"show printer", Verb::showPrinter}, Line{"show help", Verb::showHelp}, Line{"show focus", Verb::showFocus},
        Line{"show form", Verb::showForm}));

class WrongWord : public testing::TestWithParam<const char*> {};

TEST_P(WrongWord, MakesTheScriptUnreadable)
{
    EXPECT_NE(whyNot(GetParam()), "it can be read") << GetParam();
}

INSTANTIATE_TEST_SUITE_P(ScriptParser, WrongWord,
                         testing::Values("now 2026-02-30 12:00:00", "now 2026-11-15 24:00:00", "now 15.11.26 12:34",
                                         "wait -1", "wait x", "screen 0 600", "soundcard maybe", "port 0", "port x",
                                         "printer broken", "wav \"a\" long", "key Ctrl+", "key Escape", "down F13",
                                         "repeat F1 -1", "row DBGrid1 0", "row DBGrid1 1.5", "answer Perhaps", "answer",
                                         "message \"a\" \"b\" c", "expect rows QRA many", "expect keyed 0 \"a\"",
                                         "expect Text 1", "file \"\""));

TEST(ScriptParser, HasOneRuleForEveryVerb)
{
    for (int verb = 0; verb <= static_cast<int>(Verb::showForm); ++verb) {
        int found = 0;
        for (const script::Rule& rule : script::rules())
            if (rule.verb == static_cast<Verb>(verb)) ++found;
        EXPECT_EQ(found, 1) << "verb " << verb;
    }
}

}  // namespace
