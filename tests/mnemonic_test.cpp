#include "screen/mnemonic.h"

#include <gtest/gtest.h>

namespace {

struct PageForm : screen::Form {
    PageForm() : Form("Page")
    {
        opens.Caption = "&MEMORARE LOG";
        below.Caption = "Memorare pe Dis&k";
        entry.Caption = "&DELETE_LOG ";
        first.Caption = "&VIEW";
        second.Caption = "&DELETE";
        one.Caption = "Log 144a";
        two.Caption = " &QRA Loc";
        three.Caption = "Delete";
    }

    screen::MenuEntry opens{this, "opens"};
    screen::MenuEntry below{this, "below", &opens};
    screen::MenuEntry entry{this, "entry"};
    screen::Frame first{this, "first"};
    screen::OptionButton one{this, "one", &first};
    screen::OptionButton two{this, "two", &first};
    screen::Frame second{this, "second"};
    screen::OptionButton three{this, "three", &second};
};

using screen::controlWithMnemonic;
using screen::firstStopIn;

TEST(Mnemonic, TheLetterStandsBehindTheSign)
{
    EXPECT_EQ(screen::mnemonicOf("1_ST_P&age"), U'A');
    EXPECT_EQ(screen::mnemonicOf("DELETE"), 0U);
    EXPECT_EQ(screen::mnemonicOf("DELETE&"), 0U);
    EXPECT_EQ(screen::mnemonicOf(""), 0U);
    EXPECT_EQ(screen::withoutMnemonic("&DELETE"), "DELETE");
}

TEST(Mnemonic, ButtonsAndEntriesAreFound)
{
    const PageForm page;
    EXPECT_EQ(controlWithMnemonic(page, U'q'), &page.two);
    EXPECT_EQ(controlWithMnemonic(page, U'D'), &page.entry);
    EXPECT_EQ(controlWithMnemonic(page, U'M'), nullptr) << "it only opens a menu";
    EXPECT_EQ(controlWithMnemonic(page, U'K'), nullptr) << "it stands in a menu";
    EXPECT_EQ(controlWithMnemonic(page, U'L'), nullptr);
}

TEST(Mnemonic, AFrameIsFoundWhileAControlInItTakesTheFocus)
{
    PageForm page;
    EXPECT_EQ(controlWithMnemonic(page, U'v'), &page.first);
    EXPECT_EQ(firstStopIn(page.first), &page.one);
    page.one.Enabled = false;
    EXPECT_EQ(firstStopIn(page.first), &page.two);
    page.two.Visible = false;
    EXPECT_EQ(firstStopIn(page.first), nullptr);
    EXPECT_EQ(controlWithMnemonic(page, U'v'), nullptr);
    page.two.Visible = true;
    page.first.Visible = false;
    EXPECT_EQ(controlWithMnemonic(page, U'v'), nullptr);
}

TEST(Mnemonic, TheMenuKeepsItsLetters)
{
    PageForm page;
    EXPECT_EQ(controlWithMnemonic(page, U'D'), &page.entry);
    page.entry.Caption = "EXIT";
    EXPECT_EQ(controlWithMnemonic(page, U'D'), &page.second);
    page.opens.Caption = "&DISK";
    EXPECT_EQ(controlWithMnemonic(page, U'D'), nullptr) << "also of an entry that opens a menu";
    page.opens.Visible = false;
    EXPECT_EQ(controlWithMnemonic(page, U'D'), &page.second);
    page.first.Caption = "&QSO";
    EXPECT_EQ(controlWithMnemonic(page, U'Q'), &page.first) << "the first on the page";
}

}  // namespace
