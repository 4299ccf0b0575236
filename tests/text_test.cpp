// Text: counted in characters, blanks only trimmed, Windows-1250 at the border.
#include "base/text.h"

#include <gtest/gtest.h>

#include "base/runtime_error.h"

namespace {

TEST(Text, CountsCharactersAndNotBytes)
{
    EXPECT_EQ(base::length(""), 0U);
    EXPECT_EQ(base::length("YO2ABC"), 6U);
    EXPECT_EQ(base::length("Țăndărei"), 8U);
    EXPECT_EQ(base::length("a\xFFz"), 3U) << "a broken byte is one character";
}

TEST(Text, CutsByCharacters)
{
    EXPECT_EQ(base::left("Șirul", 2), "Și");
    EXPECT_EQ(base::left("ab", 5), "ab");
    EXPECT_EQ(base::right("599 012", 3), "012");
    EXPECT_EQ(base::right("ană", 1), "ă");
    EXPECT_EQ(base::right("ab", 5), "ab");
    EXPECT_EQ(base::mid("KN16AA", 3, 2), "16");
    EXPECT_EQ(base::mid("KN16AA", 3), "16AA");
    EXPECT_EQ(base::mid("KN", 3, 2), "");
    EXPECT_EQ(base::mid("țâță", 2, 2), "âț");
}

TEST(Text, PositionsCountFromOne)
{
    EXPECT_EQ(base::characterAt("KN", 2), U'N');
    try {
        (void)base::mid("KN", 0, 1);
        FAIL() << "position 0 was taken";
    } catch (const base::RuntimeError& error) {
        EXPECT_EQ(error.number(), base::invalidArgument);
    }
    try {
        (void)base::characterAt("KN", 3);
        FAIL() << "a character behind the end was found";
    } catch (const base::RuntimeError& error) {
        EXPECT_EQ(error.number(), base::invalidArgument);
    }
}

TEST(Text, TrimsBlanksAndNothingElse)
{
    EXPECT_EQ(base::trim("  YO2ABC "), "YO2ABC");
    EXPECT_EQ(base::trim("   "), "");
    EXPECT_EQ(base::trim("\tYO\t"), "\tYO\t");
    EXPECT_EQ(base::trim(" A B "), "A B");
}

TEST(Text, PadsAndCutsToAWidth)
{
    EXPECT_EQ(base::padRight("ab", 4), "ab  ");
    EXPECT_EQ(base::padRight("abcdef", 4), "abcd");
    EXPECT_EQ(base::padRight("ăîș", 4), "ăîș ");
    EXPECT_EQ(base::blanks(3), "   ");
}

TEST(Text, HasCapitalsForTheLettersOfTheCodePage)
{
    EXPECT_EQ(base::upper("yo2abc/p"), "YO2ABC/P");
    EXPECT_EQ(base::upper("ăâîșțşţ"), "ĂÂÎȘȚŞŢ");
    EXPECT_EQ(base::upper("żźžłńšýö÷"), "ŻŹŽŁŃŠÝÖ÷");
    EXPECT_EQ(base::upper("ĂÂÎȘȚŁŽ"), "ĂÂÎȘȚŁŽ") << "capitals stay";
    EXPECT_EQ(base::upper("ß€1?"), "ß€1?") << "what has no capital stays";
}

TEST(Text, ComparesWithoutCase)
{
    EXPECT_TRUE(base::equalIgnoringCase("LogKelvo.mdb", "logkelvo.MDB"));
    EXPECT_TRUE(base::equalIgnoringCase("șir", "ȘIR"));
    EXPECT_FALSE(base::equalIgnoringCase("a", "ab"));
}

TEST(Text, LeavesTheProgramInWindows1250)
{
    EXPECT_EQ(base::toWindows1250("Ana ăâî"), "Ana \xE3\xE2\xEE");
    EXPECT_EQ(base::toWindows1250("ŞşŢţ"), "\xAA\xBA\xDE\xFE");
    EXPECT_EQ(base::toWindows1250("ȘșȚț"), "\xAA\xBA\xDE\xFE") << "comma below becomes cedilla";
    EXPECT_EQ(base::toWindows1250("€ 日 ☃"), "\x80 ? ?");
}

TEST(Text, ComesBackFromWindows1250)
{
    std::string everyByte;
    for (int byte = 0; byte < 256; ++byte)
        everyByte.push_back(static_cast<char>(byte));
    EXPECT_EQ(base::toWindows1250(base::fromWindows1250(everyByte)), everyByte);
    EXPECT_EQ(base::fromWindows1250("\xAA\xFE"), "Şţ");
}

TEST(Text, SurvivesTheWayThroughCharacters)
{
    for (const std::string text : {"", "YO2ABC", "Ștefăniță", "🙂 x"})
        EXPECT_EQ(base::fromCharacters(base::toCharacters(text)), text);
}

}  // namespace
