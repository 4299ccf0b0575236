// The search of the help: what is found, and the way from one place to the next.
#include "desktop/help_search.h"

#include <QScrollBar>

#include "help_window_station.h"

namespace {

using namespace test_page;

using HelpSearchTest = HelpWindowTest;

TEST_F(HelpSearchTest, FindsWithoutRegardToCaseAndMarks)
{
    open(100);
    for (const char* words : {"stergere", "STERGERE", "ștergere", "Ştergere"}) {
        field().setText(QString::fromUtf8(words));
        EXPECT_EQ(count(), "1 of 3") << words;
        EXPECT_EQ(markedText(), "Ștergere") << words;
    }
}

TEST_F(HelpSearchTest, EnterGoesFromHitToHitThroughAllTopics)
{
    open(100);
    key(Qt::Key_F, Qt::ControlModifier);
    type("stergere");
    EXPECT_EQ(count(), "1 of 3");
    EXPECT_EQ(topic(), "c100");
    key(Qt::Key_Return);
    EXPECT_EQ(count(), "2 of 3");
    EXPECT_EQ(topic(), "c200");
    EXPECT_EQ(markedText(), "stergere");
    key(Qt::Key_Return);
    EXPECT_EQ(count(), "3 of 3");
    EXPECT_EQ(topic(), "c300");
    EXPECT_EQ(markedText(), "ȘTERGERE");
    key(Qt::Key_Return);
    EXPECT_EQ(count(), "1 of 3") << "round the end";
    key(Qt::Key_Return, Qt::ShiftModifier);
    EXPECT_EQ(count(), "3 of 3");
    key(Qt::Key_F3);
    EXPECT_EQ(count(), "1 of 3");
    key(Qt::Key_F3, Qt::ShiftModifier);
    EXPECT_EQ(count(), "3 of 3");
    EXPECT_EQ(window_->contents().currentRow(), 3);
}

TEST_F(HelpSearchTest, AHitIsBroughtIntoView)
{
    open(100);
    field().setText(QStringLiteral("paragraful 55"));
    EXPECT_EQ(topic(), "c100");
    EXPECT_EQ(markedText(), "Paragraful 55");
    const auto marks = page().extraSelections();
    ASSERT_FALSE(marks.isEmpty());
    const QRect at = page().cursorRect(marks.front().cursor);
    EXPECT_GE(at.top(), 0);
    EXPECT_LE(at.bottom(), page().viewport()->height());
}

TEST_F(HelpSearchTest, TheSearchBeginsAtThePageInView)
{
    open(300);
    field().setText(QStringLiteral("stergere"));
    EXPECT_EQ(count(), "3 of 3");
    window_->contents().setCurrentRow(2);
    key(Qt::Key_F3);
    EXPECT_EQ(count(), "2 of 3") << "the reader has gone to another topic";
}

TEST_F(HelpSearchTest, TypingAnywhereSearches)
{
    open(100);
    page().setFocus();
    type("tinta");
    EXPECT_EQ(field().text(), QStringLiteral("tinta"));
    EXPECT_EQ(count(), "1 of 1");
    page().setFocus();
    type("sus");
    EXPECT_EQ(field().text(), QStringLiteral("sus")) << "a new search";
    window_->contents().setFocus();
    type("up");
    EXPECT_EQ(field().text(), QStringLiteral("up"));
}

TEST_F(HelpSearchTest, WordsThatAreNowhereAreToldAndForgotten)
{
    open(100);
    field().setText(QStringLiteral("xyzzy"));
    EXPECT_EQ(count(), "not found");
    EXPECT_EQ(topic(), "c100");
    EXPECT_TRUE(page().extraSelections().isEmpty());
    key(Qt::Key_F3);
    EXPECT_EQ(count(), "not found");
    field().setText(QStringLiteral("stergere"));
    EXPECT_FALSE(page().extraSelections().isEmpty());
    field().clear();
    EXPECT_EQ(count(), "");
    EXPECT_TRUE(page().extraSelections().isEmpty());
}

TEST_F(HelpSearchTest, ThePageScrollsFromTheSearchField)
{
    open(100);
    field().setFocus();
    key(Qt::Key_PageDown);
    EXPECT_GT(scrolled(), 0);
    EXPECT_TRUE(field().hasFocus());
}

TEST(FoldedForSearch, EachCharacterStaysOne)
{
    const QString text = QStringLiteral("ĂÂÎȘȚ ăâîșț ŞşŢţ Öß é 144\u00A0×");
    const QString folded = desktop::foldedForSearch(text);
    EXPECT_EQ(folded, QStringLiteral("aaist aaist sstt oß e 144 ×"));
    EXPECT_EQ(folded.size(), text.size());
}

}  // namespace
