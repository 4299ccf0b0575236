// The way to an EDI file: the bands on offer, what the pages are filled with, and the turning of the page.
#include "review/edi_road.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "runstate/modul1.h"
#include "screen/frm_anzeigen.h"
#include "screen/frm_init.h"
#include "support/filled_log.h"

namespace {

using Form = screen::FrmAnzeigenForm;

constexpr int allContests[] = {0, 1, 2, 3, 4, 5, 6, 7, 8, 100, 101};

struct Choice {
    screen::OptionButton Form::*button;
    const char* band;
    int bandBehind;
};

constexpr Choice choices[] = {
    {&Form::OpB144Edi, "144", 144},
    {&Form::OpB432Edi, "432", 432},
    {&Form::OpB1296Edi, "1296", 1296},
    {&Form::OpBGHzEdi, "GHz", 1},
};

struct Figures {
    const char* qsos;
    const char* points;
    const char* score;
};

/// The figures behind a choice, in the order of `choices`; nothing where none are filled in.
struct FiguresRow {
    int contest;
    std::optional<Figures> figures[4];
};

// Table by table, QSOs and points: 144 A 1 and 1, B 2 and 20; 432 A 3 and 300, B 4 and 4000; 1296 A 5 and 50000,
// B 6 and 600000; GHz 7 and 700000.
const std::optional<Figures> none = std::nullopt;
const Figures gHz = {"7", "700000", "750301"};

const FiguresRow figuresRows[] = {
    {0, {Figures{"3", "21", "21"}, Figures{"7", "4300", "4300"}, Figures{"11", "650000", "650000"}, gHz}},
    {1, {Figures{"3", "21", "21"}, none, none, gHz}},
    {2, {Figures{"1", "1", "50301"}, Figures{"3", "300", "50301"}, Figures{"5", "50000", "50301"}, gHz}},
    {3, {Figures{"1", "1", "50301"}, Figures{"3", "300", "50301"}, Figures{"5", "50000", "50301"}, gHz}},
    {4, {Figures{"1", "1", "1"}, none, none, gHz}},
    {5, {Figures{"1", "1", "50301"}, Figures{"3", "300", "50301"}, Figures{"5", "50000", "50301"}, gHz}},
    {6, {Figures{"3", "21", "21"}, none, none, gHz}},
    {7, {none, none, none, none}},
    {8, {Figures{"1", "1", "50301"}, Figures{"3", "300", "50301"}, Figures{"5", "50000", "50301"}, gHz}},
    {100, {Figures{"1", "1", "50301"}, Figures{"3", "300", "750301"}, Figures{"5", "50000", "750301"}, gHz}},
    {101, {Figures{"1", "1", "1"}, none, none, gHz}},
};

class EdiRoad : public test::FilledLog {
 protected:
    void SetUp() override
    {
        program.click(FrmInit.mnuLOG);
        Modul1.MyCall = "YO2XYZ/P";
        Modul1.MyQRA = "KN05OS";
    }

    /// A fresh form, at the choice of the band.
    void beginIn(int id)
    {
        program.click(FrmAnzeigen.mnuAnfang);
        contest(id);
        program.click(FrmInit.mnuLOG);
        Modul1.MyCall = "YO2XYZ/P";
        program.click(FrmAnzeigen.mnuFormEDI);
        while (program.box()) {
        }
    }

    void fillAllTables()
    {
        addRows("Uus144a", 1, "'1'");
        addRows("Uus144b", 2, "'10'");
        addRows("Uus432a", 3, "'100'");
        addRows("Uus432b", 4, "'1000'");
        addRows("Uus1296a", 5, "'10000'");
        addRows("Uus1296b", 6, "'100000'");
        addRows("UusGHz", 7, "'100000'");
    }

    void addRows(const std::string& table, int rows, const std::string& points)
    {
        for (int row = 0; row < rows; ++row)
            addPoints(table, points);
    }

    static void choose(const Choice& choice)
    {
        // By the handler: a contest hides the bands that it does not have.
        (FrmAnzeigen.*choice.button).Click();
    }

    static std::string bandsOnOffer()
    {
        std::string text;
        for (const Choice& choice : choices)
            if ((FrmAnzeigen.*choice.button).Visible)
                text += (text.empty() ? "" : " ") + (FrmAnzeigen.*choice.button).Caption;
        return text;
    }

    void expectEmptyLogTold()
    {
        const auto box = program.box();
        ASSERT_TRUE(box);
        EXPECT_EQ(box->request.text, "Fisier fara date !");
        EXPECT_FALSE(program.box()) << "told once";
        EXPECT_FALSE(FrmAnzeigen.FraLogEDI1.Visible);
        EXPECT_TRUE(FrmAnzeigen.FraBandEdi.Visible) << "another band can be chosen";
    }
};

TEST_F(EdiRoad, OffersTheBandsOfTheContest)
{
    struct OfferRow {
        int contest;
        const char* bands;
    };
    constexpr OfferRow offerRows[] = {
        {0, "1&44 MHz 4&32 MHz 1&296 MHz"},
        {1, "1&44 MHz"},
        {2, "1&44 MHz 4&32 MHz 1&296 MHz"},
        {3, "1&44 MHz 4&32 MHz 1&296 MHz"},
        {4, "1&44 MHz"},
        {5, "1&44 MHz 4&32 MHz 1&296 MHz"},
        {6, "1&44 MHz"},
        {8, "1&44 MHz 4&32 MHz 1&296 MHz"},
        {100, "1&44 MHz 4&32 MHz 1&296 MHz GHz"},
        {101, "50 MHz"},
    };
    for (const OfferRow& row : offerRows) {
        beginIn(row.contest);
        EXPECT_EQ(bandsOnOffer(), row.bands) << row.contest;
    }
    beginIn(7);
    EXPECT_FALSE(FrmAnzeigen.FraBandEdi.Visible) << "the entry is off";
    review::mnuFormEDI_Click();
    EXPECT_EQ(bandsOnOffer(), "1&44 MHz 4&32 MHz 1&296 MHz GHz");
}

TEST_F(EdiRoad, BeginsWithTheChoiceOfTheBandAlone)
{
    for (screen::Frame* frame : {&FrmAnzeigen.FraLogEDI1, &FrmAnzeigen.FraLogEDI2, &FrmAnzeigen.Frame6,
                                 &FrmAnzeigen.FraArh, &FrmAnzeigen.Frame1, &FrmAnzeigen.Frame10})
        frame->Visible = true;
    FrmAnzeigen.CmdGata.Visible = true;
    program.click(FrmAnzeigen.mnuFormEDI);
    EXPECT_EQ(FrmAnzeigen.OutMode, 10);
    EXPECT_EQ(FrmAnzeigen.OutFormat, 100);
    EXPECT_EQ(FrmAnzeigen.EnterFlag, 10);
    EXPECT_TRUE(std::filesystem::is_directory(program.folder() / "LOG"));
    for (const screen::Control* control : FrmAnzeigen.controls())
        if (control->kind == screen::Kind::frame) {
            EXPECT_EQ(control->Visible, control->name == "FraBandEdi") << control->name;
        }
    EXPECT_FALSE(FrmAnzeigen.CmdGata.Visible);
}

TEST_F(EdiRoad, ClaimsTheFiguresOfContestAndBand)
{
    fillAllTables();
    for (const FiguresRow& row : figuresRows) {
        for (std::size_t choice = 0; choice < std::size(choices); ++choice) {
            SCOPED_TRACE("contest " + std::to_string(row.contest) + " on " + choices[choice].band);
            beginIn(row.contest);
            if (row.contest == 7) review::mnuFormEDI_Click();
            for (screen::TextBox* box : {&FrmAnzeigen.TxtCQSOs1, &FrmAnzeigen.TxtCQSOP, &FrmAnzeigen.TxtCToSc})
                box->Text = "old";
            choose(choices[choice]);
            const Figures expected = row.figures[choice].value_or(Figures{"old", "old", "old"});
            EXPECT_EQ(FrmAnzeigen.TxtCQSOs1.Text.get(), expected.qsos);
            EXPECT_EQ(FrmAnzeigen.TxtCQSOP.Text.get(), expected.points);
            EXPECT_EQ(FrmAnzeigen.TxtCToSc.Text.get(), expected.score);
            EXPECT_EQ(Modul1.BandCur, choices[choice].bandBehind);
            EXPECT_TRUE(FrmAnzeigen.FraLogEDI1.Visible);
            EXPECT_FALSE(FrmAnzeigen.FraBandEdi.Visible);
            EXPECT_FALSE(FrmAnzeigen.Frame4.Visible);
            EXPECT_FALSE(program.box());
        }
    }
}

TEST_F(EdiRoad, FillsThePageOfTheContest)
{
    fillAllTables();
    for (const int id : allContests) {
        for (const Choice& choice : choices) {
            SCOPED_TRACE("contest " + std::to_string(id) + " on " + choice.band);
            beginIn(id);
            choose(choice);
            const std::string band = id == 101 && choice.bandBehind == 144 ? "50" : choice.band;
            EXPECT_EQ(FrmAnzeigen.TxtPBand.Text.get(), band);
            EXPECT_EQ(FrmAnzeigen.TxtPCall.Text.get(), "YO2XYZ/P");
            EXPECT_EQ(FrmAnzeigen.TxtPWWLo.Text.get(), "") << "left to the operator";
            EXPECT_EQ(FrmAnzeigen.TxtTDate1.Text.get(), "15.11.26 ");
            EXPECT_EQ(FrmAnzeigen.TxtTDate2.Text.get(), "15.11.26 ");
        }
    }
}

TEST_F(EdiRoad, NamesTheContest)
{
    struct NameRow {
        int contest;
        const char* name;
    };
    constexpr NameRow nameRows[] = {
        {0, "CAMPIONATELE NATIONALE UUS"},
        {1, "TROFEUL CARPATI "},
        {2, "Concurs Cluj Napoca"},
        {3, "Floarea de mina"},
        {4, "Oltenia 144 MHz"},
        {5, "Constructor masini "},
        {6, "Ziua Telecom"},
        {7, "Lugoj Maraton"},
        {8, "Zi de vara"},
        {100, "Camp. Internat. UUS"},
        {101, "Oltenia 6 m"},
    };
    fillAllTables();
    for (const NameRow& row : nameRows) {
        beginIn(row.contest);
        choose(choices[0]);
        EXPECT_EQ(FrmAnzeigen.TxtTName.Text.get(), row.name) << row.contest;
    }
}

TEST_F(EdiRoad, AnnouncesTheBandMultiplierOn432Alone)
{
    struct MultiplierRow {
        int contest;
        const char* on432;
    };
    constexpr MultiplierRow multiplierRows[] = {
        {0, "5"}, {1, "1"}, {2, "1"}, {3, "5"},   {4, "1"},   {5, "2"},
        {6, "1"}, {7, "2"}, {8, "1"}, {100, "5"}, {101, "1"},
    };
    fillAllTables();
    for (const MultiplierRow& row : multiplierRows) {
        for (const Choice& choice : choices) {
            beginIn(row.contest);
            choose(choice);
            EXPECT_EQ(FrmAnzeigen.TxtCQSOs2.Text.get(), choice.bandBehind == 432 ? row.on432 : "1")
                << row.contest << " on " << choice.band;
        }
    }
}

TEST_F(EdiRoad, LeavesTheMultiplierOfAnEarlierChoiceStanding)
{
    fillAllTables();
    beginIn(3);
    choose(choices[1]);
    choose(choices[2]);
    EXPECT_EQ(FrmAnzeigen.TxtCQSOs2.Text.get(), "5");
}

TEST_F(EdiRoad, HidesTheLogInView)
{
    fillAllTables();
    for (const Choice& choice : choices) {
        beginIn(100);
        FrmAnzeigen.DBGrid8.Visible = true;
        choose(choice);
        for (const screen::Control* control : FrmAnzeigen.controls())
            if (control->kind == screen::Kind::grid) {
                EXPECT_FALSE(control->Visible) << control->name << " on " << choice.band;
            }
    }
}

TEST_F(EdiRoad, EndsAtAnEmptyLog)
{
    for (const int id : allContests) {
        for (const Choice& choice : choices) {
            SCOPED_TRACE("contest " + std::to_string(id) + " on " + choice.band);
            beginIn(id);
            if (id == 7) review::mnuFormEDI_Click();
            choose(choice);
            expectEmptyLogTold();
        }
    }
}

TEST_F(EdiRoad, TakesALogWithoutRowsInStageBForEmptyWhereItLooksThere)
{
    addRows("Uus144a", 1, "'1'");
    for (const int id : {0, 1, 4, 6, 101}) {
        SCOPED_TRACE(id);
        beginIn(id);
        choose(choices[0]);
        EXPECT_EQ(FrmAnzeigen.TxtCQSOs1.Text.get(), "1");
        EXPECT_EQ(FrmAnzeigen.TxtCODXC3.Text.get(), "1");
        expectEmptyLogTold();
    }
    for (const int id : {2, 3, 5, 8, 100}) {
        SCOPED_TRACE(id);
        beginIn(id);
        choose(choices[0]);
        EXPECT_FALSE(program.box());
        EXPECT_TRUE(FrmAnzeigen.FraLogEDI1.Visible);
    }
}

TEST_F(EdiRoad, TakesALogWithoutRowsInStageAForEmptyToo)
{
    addRows("Uus144b", 2, "'1'");
    beginIn(1);
    choose(choices[0]);
    EXPECT_EQ(FrmAnzeigen.TxtCQSOs1.Text.get(), "2");
    expectEmptyLogTold();
}

TEST_F(EdiRoad, TurnsThePage)
{
    fillAllTables();
    beginIn(3);
    choose(choices[0]);
    EXPECT_FALSE(FrmAnzeigen.CmdGata.Visible);
    const double left = FrmAnzeigen.CmdGata.Left;
    program.click(FrmAnzeigen.CmdNextPage);
    EXPECT_FALSE(FrmAnzeigen.FraLogEDI1.Visible);
    EXPECT_TRUE(FrmAnzeigen.FraLogEDI2.Visible);
    EXPECT_TRUE(FrmAnzeigen.CmdGata.Visible);
    EXPECT_EQ(FrmAnzeigen.CmdGata.Left, left);
    program.click(FrmAnzeigen.CmdRetur);
    EXPECT_TRUE(FrmAnzeigen.FraLogEDI1.Visible);
    EXPECT_FALSE(FrmAnzeigen.FraLogEDI2.Visible);
    EXPECT_FALSE(FrmAnzeigen.CmdGata.Visible);
}

TEST(EdiRoadOnASmallScreen, MovesTheButtonThatEndsTheInput)
{
    test::RunningProgram program({640, 480});
    program.click(FrmInit.mnuLOG);
    review::CmdNextPage_Click();
    EXPECT_EQ(FrmAnzeigen.CmdGata.Left, 7000);
}

}  // namespace
