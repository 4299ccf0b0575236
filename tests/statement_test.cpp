#include "storage/statement.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "base/runtime_error.h"
#include "storage/like_pattern.h"
#include "storage/tokens.h"
#include "support/error_of.h"

namespace {

using storage::LikePattern;
using storage::parseSelection;
using storage::Selection;
using storage::translateAction;

using test::errorOf;

int selectionError(const std::string& text)
{
    return errorOf([&] { parseSelection(text); });
}

int actionError(const std::string& text)
{
    return errorOf([&] { translateAction(text); });
}

void expectSelection(const std::string& text, const Selection& expected)
{
    const Selection selection = parseSelection(text);
    EXPECT_EQ(selection.table, expected.table) << text;
    EXPECT_EQ(selection.condition, expected.condition) << text;
    EXPECT_EQ(selection.order, expected.order) << text;
    EXPECT_EQ(selection.fixed, expected.fixed) << text;
}

TEST(Selection, takesApartTheStatementsOfTheProgram)
{
    expectSelection("SELECT * FROM Uus144a ", {"Uus144a", "", {}, {}});
    expectSelection("SELECT * FROM Uus144a", {"Uus144a", "", {}, {}});
    expectSelection("SELECT * FROM Uus144a WHERE Callsign='YO2ABC'; ",
                    {"Uus144a", "Callsign='YO2ABC'", {}, {"Callsign"}});
    expectSelection("SELECT * FROM Uus144a WHERE Callsign='YO2ABC'AND Mode='CW'; ",
                    {"Uus144a", "Callsign='YO2ABC'AND Mode='CW'", {}, {"Callsign", "Mode"}});
    expectSelection("SELECT * FROM UusGHz WHERE Callsign='YO2ABC' AND Freq ='2320'; ",
                    {"UusGHz", "Callsign='YO2ABC' AND Freq ='2320'", {}, {"Callsign", "Freq"}});
    expectSelection("SELECT * FROM Uus144a WHERE Pct>''; ", {"Uus144a", "Pct>''", {}, {}});
    expectSelection("SELECT * FROM UusLGYO2 ORDER BY ID", {"UusLGYO2", "", {"ID"}, {}});
    expectSelection("SELECT * FROM UusLGYO2 ORDER BY Bnd , ID ", {"UusLGYO2", "", {"Bnd", "ID"}, {}});
    expectSelection("SELECT * FROM UusLGYO2 WHERE Bnd='144' ORDER BY ID ", {"UusLGYO2", "Bnd='144'", {"ID"}, {"Bnd"}});
    expectSelection("SELECT * FROM UusLGYO2 WHERE Bnd='144' ORDER BY Bnd , ID; ",
                    {"UusLGYO2", "Bnd='144'", {"Bnd", "ID"}, {"Bnd"}});
    expectSelection("SELECT * From QRA ORDER BY Call", {"QRA", "", {"Call"}, {}});
}

TEST(Selection, takesABareTableName)
{
    expectSelection("QRA", {"QRA", "", {}, {}});
    expectSelection(" Uus144a ; ", {"Uus144a", "", {}, {}});
}

TEST(Selection, givesTheSearchForCallsARange)
{
    expectSelection("SELECT * FROM Uus144A WHERE Callsign LIKE 'YO2*' ORDER BY Callsign ; ",
                    {"Uus144A",
                     "(Callsign LIKE 'YO2*' AND Callsign >= 'YO2' COLLATE NOCASE AND Callsign < 'YO3' COLLATE NOCASE)",
                     {"Callsign"},
                     {}});
}

TEST(Selection, givesNoRangeWhereNoHeadIsLiteralOrTheLikeIsNotWhole)
{
    expectSelection("SELECT * FROM T WHERE Callsign LIKE '*'", {"T", "Callsign LIKE '*'", {}, {}});
    expectSelection("SELECT * FROM T WHERE Call || QRA_LOC LIKE 'YO*'", {"T", "Call || QRA_LOC LIKE 'YO*'", {}, {}});
    expectSelection("SELECT * FROM T WHERE Call LIKE 'YO' || '*'", {"T", "Call LIKE 'YO' || '*'", {}, {}});
    expectSelection("SELECT * FROM T WHERE ID BETWEEN 1 AND Call LIKE 'YO*'",
                    {"T", "ID BETWEEN 1 AND Call LIKE 'YO*'", {}, {}});
}

TEST(Selection, leavesQuotedTextsAlone)
{
    expectSelection("SELECT * FROM T WHERE A='x LIKE ''y*'' ORDER BY ; WHERE'",
                    {"T", "A='x LIKE ''y*'' ORDER BY ; WHERE'", {}, {"A"}});
}

TEST(Selection, knowsWhichColumnsHaveOneValue)
{
    const auto fixed = [](const std::string& condition) {
        return parseSelection("SELECT * FROM T WHERE " + condition + " ORDER BY A").fixed;
    };
    using Names = std::vector<std::string>;
    EXPECT_EQ(fixed("A='1'"), Names{"A"});
    EXPECT_EQ(fixed("[A]='1' and B='2'"), (Names{"A", "B"}));
    for (const char* condition : {"A='1' OR B='2'", "NOT A='1'", "A<'1'", "A='1' || 'x'", "A=B", "(A='1')",
                                  "A='1' AND B LIKE '2'", "A='1' AND NOT B='2'"})
        EXPECT_EQ(fixed(condition), Names{}) << condition;
}

TEST(Selection, refusesWhatFollowsTheFirstStatement)
{
    EXPECT_EQ(selectionError("SELECT * FROM Uus144a WHERE Callsign='X'; DELETE * FROM Uus144a; --'; "),
              base::invalidArgument);
    EXPECT_EQ(selectionError("SELECT * FROM Uus144a; SELECT * FROM Uus144b"), base::invalidArgument);
    EXPECT_EQ(selectionError("SELECT * FROM Uus144a ;; ; "), 0);
}

TEST(Selection, refusesWhatIsNone)
{
    EXPECT_EQ(selectionError(""), base::invalidArgument);
    EXPECT_EQ(selectionError(";"), base::invalidArgument);
    EXPECT_EQ(selectionError("DELETE * FROM T"), base::invalidArgument);
    EXPECT_EQ(selectionError("SELECT Callsign FROM T"), base::invalidArgument);
    EXPECT_EQ(selectionError("SELECT * FROM"), base::invalidArgument);
    EXPECT_EQ(selectionError("SELECT * FROM 'T'"), base::invalidArgument);
    EXPECT_EQ(selectionError("SELECT * FROM T WHERE"), base::invalidArgument);
    EXPECT_EQ(selectionError("SELECT * FROM T WHERE A='1') OR (A='2'"), base::invalidArgument);
    EXPECT_EQ(selectionError("SELECT * FROM T LIMIT 5"), base::invalidArgument);
    EXPECT_EQ(selectionError("SELECT * FROM T ORDER BY"), base::invalidArgument);
    EXPECT_EQ(selectionError("SELECT * FROM T ORDER BY A B"), base::invalidArgument);
    EXPECT_EQ(selectionError("SELECT * FROM T ORDER BY A,"), base::invalidArgument);
    EXPECT_EQ(selectionError("SELECT * FROM T WHERE A='O'Neil'"), base::invalidArgument);
    EXPECT_EQ(selectionError("SELECT * FROM T WHERE A=?"), base::invalidArgument);
    EXPECT_EQ(selectionError("SELECT * FROM T WHERE A=1 -- and more"), base::invalidArgument);
    EXPECT_EQ(selectionError("SELECT * FROM T WHERE A LIKE '[A-'"), base::invalidArgument);
}

TEST(Action, dropsTheStarBehindDelete)
{
    EXPECT_EQ(translateAction("DELETE * FROM Uus144a"), "DELETE FROM Uus144a");
    EXPECT_EQ(translateAction("delete  *  from Uus144a WHERE Sent='DELETE * FROM'"),
              "DELETE from Uus144a WHERE Sent='DELETE * FROM'");
    EXPECT_EQ(translateAction("DELETE FROM Uus144a"), "DELETE FROM Uus144a");
}

TEST(Action, leavesTheRestAsItIs)
{
    const std::string insert =
        "INSERT INTO Uus144a (Callsign, Data , UTC, Sent, Rcvd, Mode, Freq, QRALoc, Pct)  VALUES "
        "('YO2ABC','15.11.26','12:34','59 *','LIKE ''%''','DELETE *','144','','0');";
    EXPECT_EQ(translateAction(insert), insert);
    EXPECT_EQ(translateAction("UPDATE Uus144a SET Pct = '0' WHERE Callsign = 'YO2ABC';"),
              "UPDATE Uus144a SET Pct = '0' WHERE Callsign = 'YO2ABC';");
}

TEST(Action, refusesWhatChangesNothing)
{
    EXPECT_EQ(actionError("SELECT * FROM T"), base::invalidArgument);
    EXPECT_EQ(actionError("PRAGMA synchronous=OFF"), base::invalidArgument);
    EXPECT_EQ(actionError("BEGIN"), base::invalidArgument);
    EXPECT_EQ(actionError(""), base::invalidArgument);
}

TEST(Action, refusesQuotesThatDoNotCloseAndComments)
{
    EXPECT_EQ(actionError("INSERT INTO QRA VALUES ('O'Neil','KN')"), base::invalidArgument);
    EXPECT_EQ(actionError("INSERT INTO QRA VALUES ('X'); DELETE * FROM Uus144a; --')"), base::invalidArgument);
    EXPECT_EQ(actionError("DELETE /* all */ FROM QRA"), base::invalidArgument);
    EXPECT_EQ(actionError("DELETE FROM [QRA"), base::invalidArgument);
    EXPECT_EQ(actionError(std::string("DELETE FROM QRA\0 WHERE 0", 23)), base::invalidArgument);
}

TEST(Tokens, quoteAndUnquote)
{
    EXPECT_EQ(storage::textToken("O'Neil"), "'O''Neil'");
    EXPECT_EQ(storage::textIn(storage::tokensOf("'O''Neil'").at(0)), "O'Neil");
    EXPECT_EQ(storage::nameIn(storage::tokensOf("[Call sign]").at(0)), "Call sign");
    EXPECT_EQ(storage::nameIn(storage::tokensOf("Callsign").at(0)), "Callsign");
}

TEST(LikePattern, wildcards)
{
    EXPECT_TRUE(LikePattern("YO*").matches("YO2ABC"));
    EXPECT_TRUE(LikePattern("YO*").matches("YO"));
    EXPECT_FALSE(LikePattern("YO*").matches("DYO"));
    EXPECT_TRUE(LikePattern("*").matches(""));
    EXPECT_TRUE(LikePattern("*/P").matches("YO2ABC/P"));
    EXPECT_TRUE(LikePattern("Y*B*C").matches("YO2BBAC"));
    EXPECT_FALSE(LikePattern("Y*B*C").matches("YO2BBACD"));
    EXPECT_TRUE(LikePattern("YO?ABC").matches("YO2ABC"));
    EXPECT_FALSE(LikePattern("YO?ABC").matches("YOABC"));
    EXPECT_TRUE(LikePattern("YO#*").matches("YO2ABC"));
    EXPECT_FALSE(LikePattern("YO#*").matches("YOABC"));
    EXPECT_FALSE(LikePattern("").matches("Y"));
    EXPECT_TRUE(LikePattern("").matches(""));
}

TEST(LikePattern, sets)
{
    EXPECT_TRUE(LikePattern("YO[2-4]*").matches("YO3X"));
    EXPECT_FALSE(LikePattern("YO[2-4]*").matches("YO5X"));
    EXPECT_TRUE(LikePattern("YO[!2-4]*").matches("YO5X"));
    EXPECT_FALSE(LikePattern("YO[!2-4]*").matches("YO3X"));
    EXPECT_TRUE(LikePattern("[*]").matches("*"));
    EXPECT_FALSE(LikePattern("[*]").matches("A"));
    EXPECT_TRUE(LikePattern("[a-c]x").matches("Bx"));
    EXPECT_TRUE(LikePattern("[A-]").matches("-"));
    EXPECT_TRUE(LikePattern("[[]").matches("["));
    EXPECT_TRUE(LikePattern("]").matches("]"));
    EXPECT_TRUE(LikePattern("[!]").matches("!"));
    EXPECT_TRUE(LikePattern("A[]B").matches("AB"));
}

TEST(LikePattern, percentAndUnderscoreAreOrdinary)
{
    EXPECT_TRUE(LikePattern("50%_").matches("50%_"));
    EXPECT_FALSE(LikePattern("50%").matches("500"));
    EXPECT_FALSE(LikePattern("5_").matches("50"));
}

TEST(LikePattern, bothCasesAreTheSame)
{
    EXPECT_TRUE(LikePattern("yo*").matches("YO2ABC"));
    EXPECT_TRUE(LikePattern("YO*").matches("yo2abc"));
    EXPECT_TRUE(LikePattern("ș?").matches("Șț"));
}

TEST(LikePattern, literalHead)
{
    EXPECT_EQ(LikePattern("YO2*").literalHead(), "YO2");
    EXPECT_EQ(LikePattern("yo2").literalHead(), "YO2");
    EXPECT_EQ(LikePattern("YO?2*").literalHead(), "YO");
    EXPECT_EQ(LikePattern("*YO").literalHead(), "");
    EXPECT_EQ(LikePattern("Aș*").literalHead(), "A");
}

TEST(LikePattern, brokenPatternsAreErrors)
{
    EXPECT_EQ(errorOf([] { LikePattern("YO[2"); }), base::invalidArgument);
    EXPECT_EQ(errorOf([] { LikePattern("[4-2]"); }), base::invalidArgument);
}

}  // namespace
