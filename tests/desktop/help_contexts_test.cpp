// Which pages of help the program asks for: every menu entry of every form, and F1.
#include <gtest/gtest.h>

#include "desktop/help_book.h"
#include "support/script_player.h"

namespace {

struct EntryRow {
    const char* entry;
    const char* context;
};

class HelpContexts : public test::ScriptPlayer {
 protected:
    void SetUp() override
    {
        ScriptPlayer::SetUp();
        play("start\n");
    }

    std::vector<std::string> asked()
    {
        std::vector<std::string> contexts;
        for (const script::TimedEvent& event : player_->machine().record.help)
            contexts.push_back(event.what);
        return contexts;
    }

    /// Clicks all entries below the help menu of the form on the screen: each is in the table, and no other one.
    void checkMenu(const screen::Form& form, const std::string& menu, const std::vector<EntryRow>& rows)
    {
        std::size_t entries = 0;
        for (const screen::Control* control : form.controls())
            if (control->kind == screen::Kind::menuEntry && control->container != nullptr &&
                control->container->name == menu)
                ++entries;
        EXPECT_EQ(entries, rows.size()) << "an entry that nobody checks";
        for (const EntryRow& row : rows) {
            const screen::Control* entry = form.find(row.entry);
            ASSERT_NE(entry, nullptr) << row.entry;
            EXPECT_EQ(entry->container, form.find(menu)) << row.entry;
            player_->machine().record.help.clear();
            play(std::string("click ") + row.entry + "\n");
            EXPECT_EQ(asked(), std::vector<std::string>{row.context}) << row.entry;
            all_.push_back(row.context);
        }
    }

    void toEntry() { play("click OpBFloareademina\nclick OpbTest\nclick mnuQSOfahren\nexpect form FrmQSO\n"); }
    void toReview() { play("click mnuLOG\nexpect form FrmAnzeigen\n"); }
    void checkFirstPage()
    {
        checkMenu(FrmInit, "mnuHelp1", {{"mnuInit", "100"}, {"mnuInDat", "200"}, {"mnuOutInit", "300"}});
    }
    void checkEntryPage()
    {
        checkMenu(FrmQSO, "mnuHelp2",
                  {{"mnuDescr", "400"},
                   {"mnuSchimb", "500"},
                   {"mnuInDat", "600"},
                   {"mnuModif", "700"},
                   {"mnuOutPag", "800"}});
    }
    void checkReviewPage()
    {
        checkMenu(FrmAnzeigen, "mnuHelp3",
                  {{"mnuVizLog", "900"},
                   {"mnuTipLog", "1000"},
                   {"mnuMemLog", "1100"},
                   {"MnuStergLog", "1200"},
                   {"mnuOutPrel", "1300"}});
    }

    std::vector<std::string> all_;  ///< context numbers that the program can send
};

TEST_F(HelpContexts, EachMenuOpensItsPages)
{
    checkFirstPage();
    toEntry();
    checkEntryPage();
    play("click mnuAnfang\n");
    toReview();
    checkReviewPage();
    EXPECT_EQ(all_.size(), 13U);
    EXPECT_EQ(player_->tally().failed, 0);
}

TEST_F(HelpContexts, EachNumberHasItsTopicInBothLanguages)
{
    const desktop::HelpBook book = desktop::HelpBook::fromFile(QStringLiteral(KELVO_PROGRAM_FOLDER "/Sontrel.HLP"));
    checkFirstPage();
    toEntry();
    checkEntryPage();
    play("click mnuAnfang\n");
    toReview();
    checkReviewPage();
    for (const std::string& context : all_) {
        const auto topic = book.topicOf(std::stoi(context));
        ASSERT_TRUE(topic.has_value()) << context;
        EXPECT_FALSE(book.topics()[*topic].romanianTitle.isEmpty()) << context;
        EXPECT_FALSE(book.topics()[*topic].englishTitle.isEmpty()) << context;
        EXPECT_NE(book.topics()[*topic].romanianTitle, book.topics()[*topic].englishTitle) << context;
    }
}

TEST_F(HelpContexts, F1OpensThePageOfEachForm)
{
    play("focus OpbCwN\nkey F1\n");
    EXPECT_EQ(asked(), std::vector<std::string>({"100"}));
    toEntry();
    play("focus CmdAbbruchX\nkey F1\n");
    EXPECT_EQ(asked(), std::vector<std::string>({"100", "400"}));
    play("click mnuAnfang\n");
    toReview();
    play("key F1\nclick mnuLogAnzeigen\nkey F1\n");
    EXPECT_EQ(asked(), std::vector<std::string>({"100", "400", "900", "900"}));
    EXPECT_EQ(player_->tally().failed, 0);
}

TEST_F(HelpContexts, F1IsTheCallingMessageInTheFieldsOfTheExchange)
{
    toEntry();
    play("click Cmd144\nclick CmdSSB\ntype \"HA5ABC\"\nkey Tab\n");
    for (const char* field : {"txtIndic", "TxtRSTR1", "TxtRSTR2", "TxtRSTr3", "TxtRSTE1", "txtRSTE2", "txtRSTe3"}) {
        play(std::string("focus ") + field + "\nkey F1\n");
        EXPECT_TRUE(asked().empty()) << field;
    }
}

}  // namespace
