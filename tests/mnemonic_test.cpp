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
    screen::CommandButton button{this, "button"};
    screen::TextBox box{this, "box"};
    screen::ListBox list{this, "list"};
    screen::Label label{this, "label"};
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

TEST(Mnemonic, ThePageGivesLettersThatNoCaptionMarks)
{
    PageForm page;
    page.box.accessKey = U'5';
    page.list.accessKey = U'Y';
    page.label.accessKey = U'Z';
    page.two.accessKey = U'7';
    EXPECT_EQ(controlWithMnemonic(page, U'5'), &page.box);
    EXPECT_EQ(controlWithMnemonic(page, U'y'), &page.list);
    EXPECT_EQ(controlWithMnemonic(page, U'Z'), nullptr) << "a label takes no click";
    EXPECT_EQ(controlWithMnemonic(page, U'Q'), &page.two);
    EXPECT_EQ(controlWithMnemonic(page, U'7'), nullptr) << "the caption marks another letter";
    EXPECT_EQ(controlWithMnemonic(page, U'\0'), nullptr);
    page.box.Enabled = false;
    EXPECT_EQ(controlWithMnemonic(page, U'5'), nullptr);
}

TEST(Mnemonic, WhatAFrameAsksGoesBeforeThePage)
{
    PageForm page;
    page.button.Caption = "&Enter";
    EXPECT_EQ(controlWithMnemonic(page, U'E'), &page.button);
    page.three.Caption = "Ant&erior";
    EXPECT_EQ(controlWithMnemonic(page, U'E'), &page.three);
    page.second.Visible = false;
    EXPECT_EQ(controlWithMnemonic(page, U'E'), &page.button);
    page.second.Visible = true;
    page.entry.Caption = "&EXIT";
    EXPECT_EQ(controlWithMnemonic(page, U'E'), &page.entry);
}

TEST(Mnemonic, ALetterOfThePageIsMarkedInTheCaptionThatHasIt)
{
    PageForm page;
    const auto marked = [&](const char* caption, char32_t key) {
        page.one.Caption = caption;
        page.one.accessKey = key;
        return screen::markedCaption(page.one);
    };
    EXPECT_EQ(marked("144", U'4'), "1&44");
    EXPECT_EQ(marked("Etapa A", U'P'), "Eta&pa A");
    EXPECT_EQ(marked("6m", U'4'), "6m");
    EXPECT_EQ(marked("144", 0), "144");
    EXPECT_EQ(marked("1&44 MHz", U'1'), "1&44 MHz") << "it has a letter of its own";
}

}  // namespace
