// The pages on the design screen: everything inside, nothing over anything else, no text cut, room for the rose.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <set>
#include <string>
#include <vector>

#include "base/text.h"
#include "review/page.h"
#include "review/reset.h"
#include "runstate/modul1.h"
#include "screen/frm_anzeigen.h"
#include "screen/frm_init.h"
#include "screen/frm_qso.h"
#include "screen/mnemonic.h"

namespace {

using screen::Control;
using screen::Form;
using screen::FormLife;
using screen::Kind;
using screen::Rectangle;

class FormPlaces : public testing::Test {
 protected:
    void SetUp() override
    {
        screen::rebuild(FrmInit, FormLife::neverLoaded);
        screen::rebuild(FrmQSO, FormLife::neverLoaded);
        screen::rebuild(FrmAnzeigen, FormLife::neverLoaded);
    }
};

using Controls = std::set<const Control*>;

/// Groups of controls of which only one is in view at a time.
using Alternatives = std::vector<Controls>;

bool isDrawn(const Control& control)
{
    if (control.kind == Kind::menuEntry || control.kind == Kind::data || control.kind == Kind::timer) return false;
    if (control.kind == Kind::line || control.kind == Kind::serial) return false;
    return control.kind != Kind::textBox || !static_cast<const screen::TextBox&>(control).parking;
}

bool overlap(const Rectangle& a, const Rectangle& b)
{
    return a.Left < b.Left + b.Width && b.Left < a.Left + a.Width && a.Top < b.Top + b.Height &&
           b.Top < a.Top + a.Height;
}

/// Whether the two are never in view at the same time: both in one of the groups.
bool neverTogether(const Control* a, const Control* b, const Alternatives& groups)
{
    return std::any_of(groups.begin(), groups.end(),
                       [&](const auto& group) { return group.contains(a) && group.contains(b); });
}

void expectNoOverlap(const Form& form, const Alternatives& groups, const Controls& notOnThisPage)
{
    const auto& controls = form.controls();
    const auto onPage = [&](const Control* control) { return isDrawn(*control) && !notOnThisPage.contains(control); };
    for (auto a = controls.begin(); a != controls.end(); ++a)
        for (auto b = a + 1; b != controls.end(); ++b) {
            if (!onPage(*a) || !onPage(*b) || (*a)->container != (*b)->container) continue;
            if (neverTogether(*a, *b, groups)) continue;
            EXPECT_FALSE(overlap((*a)->design, (*b)->design))
                << form.name << ": " << (*a)->name << " and " << (*b)->name;
        }
}

void expectInside(const Form& form, const Controls& notOnThisPage)
{
    for (const Control* control : form.controls()) {
        if (!isDrawn(*control) || notOnThisPage.contains(control)) continue;
        const bool inForm = control->container == nullptr;
        const double width = inForm ? form.Width : control->container->design.Width;
        const double height = inForm ? form.Height : control->container->design.Height;
        const Rectangle& at = control->design;
        EXPECT_GT(at.Width, 0) << control->name;
        EXPECT_GT(at.Height, 0) << control->name;
        EXPECT_GE(at.Left, 0) << control->name;
        EXPECT_GE(at.Top, 0) << control->name;
        EXPECT_LE(at.Left + at.Width, width) << control->name;
        EXPECT_LE(at.Top + at.Height, height) << control->name;
    }
}

/// About the width of a text in twips.
double textWidth(const std::string& text, double points, bool bold)
{
    constexpr double twipsAPoint = 20;
    const double wider = bold ? 1.1 : 1;
    double ems = 0;
    for (const char32_t character : base::toCharacters(text)) {
        const bool wide = character != U' ' && base::upper(character) == character;
        ems += character == U' ' ? 0.35 : (wide ? 0.68 : 0.55) * wider;
    }
    return ems * points * twipsAPoint;
}

void expectTextsFit(const Form& form, const Controls& notOnThisPage)
{
    constexpr double twipsAPoint = 20;
    for (const Control* control : form.controls()) {
        if (!isDrawn(*control) || notOnThisPage.contains(control)) continue;
        const std::string text = screen::withoutMnemonic(screen::captionOf(*control));
        if (text.empty() || control->kind == Kind::frame) continue;
        const bool hasMark = control->kind == Kind::optionButton || control->kind == Kind::checkBox;
        const double lineHeight = control->fontPoints * twipsAPoint * 1.17;
        const double lines = std::floor(control->design.Height / lineHeight);
        EXPECT_GE(lines, 1) << control->name;
        EXPECT_LE(textWidth(text, control->fontPoints, control->bold),
                  lines * control->design.Width - (hasMark ? 300 : 0))
            << control->name;
    }
}

void expectFree(const Form& form, const Rectangle& area, const Controls& notOnThisPage)
{
    for (const Control* control : form.controls()) {
        if (!isDrawn(*control) || control->container != nullptr || notOnThisPage.contains(control)) continue;
        EXPECT_FALSE(overlap(control->design, area)) << control->name << " stands where the rose is drawn";
    }
}

Controls grids(const Form& form)
{
    Controls found;
    for (const Control* control : form.controls())
        if (control->kind == Kind::grid) found.insert(control);
    return found;
}

Alternatives alternativesOfEntry()
{
    return {grids(FrmQSO), {&FrmQSO.LblCod, &FrmQSO.LblCod432, &FrmQSO.LblCod1296, &FrmQSO.LblCodGhz}};
}

void expectInOrder(const Form& form, const Alternatives& alternatives, const Controls& notOnThisPage)
{
    expectInside(form, notOnThisPage);
    expectTextsFit(form, notOnThisPage);
    expectNoOverlap(form, alternatives, notOnThisPage);
}

Controls onlyInMaraton()
{
    return {&FrmQSO.TxtMyName, &FrmQSO.TxtYourName};
}

Controls neverInMaraton()
{
    return {&FrmQSO.Frame3, &FrmQSO.Frame4, &FrmQSO.CmdA,     &FrmQSO.CmdB,    &FrmQSO.LblA,
            &FrmQSO.LblB,   &FrmQSO.CmdGHz, &FrmQSO.LblBand3, &FrmQSO.LblPkt3, &FrmQSO.LblQSO3};
}

TEST_F(FormPlaces, SetUpPageIsInOrder)
{
    Alternatives alternatives{{&FrmInit.FrmConcurs, &FrmInit.FraConcurs}};
    // Either the name or the number is asked for.
    for (const Control* name : std::initializer_list<const Control*>{&FrmInit.LblMyName, &FrmInit.TxtMyName})
        for (const Control* number :
             std::initializer_list<const Control*>{&FrmInit.LblRpNr, &FrmInit.TxtRpNr, &FrmInit.LblInscr})
            alternatives.push_back({name, number});
    expectInOrder(FrmInit, alternatives, {});
}

TEST_F(FormPlaces, EntryFormIsInOrder)
{
    FrmQSO.Frame2.design.Height = 2215;  // with all four rows
    expectInOrder(FrmQSO, alternativesOfEntry(), onlyInMaraton());
}

TEST_F(FormPlaces, EntryFormOfTheMaratonIsInOrder)
{
    FrmQSO.Frame2.design.Height = 1815;  // with three rows
    FrmQSO.takeMaratonPlaces();
    FrmQSO.LblRSTe.Caption = "RSTS CODS QTHLocS  NameS";
    FrmQSO.LblRSTR.Caption = "   RSTR CODR QTHLocR  NameR";
    expectInOrder(FrmQSO, alternativesOfEntry(), neverInMaraton());
    EXPECT_EQ(FrmQSO.Frame2.Height, 1815);
}

TEST_F(FormPlaces, EntryFormOfTheMaratonIsInOrderWithoutTheRose)
{
    FrmQSO.Frame2.design.Height = 1815;
    FrmQSO.takeMaratonPlaces(false);
    FrmQSO.LblRSTe.Caption = "RSTS CODS QTHLocS  NameS";
    FrmQSO.LblRSTR.Caption = "   RSTR CODR QTHLocR  NameR";
    expectInOrder(FrmQSO, alternativesOfEntry(), neverInMaraton());
    for (const Control* field : {&FrmQSO.TxtRSTR1, &FrmQSO.TxtRSTR2, &FrmQSO.TxtRSTr3, &FrmQSO.TxtYourName})
        EXPECT_EQ(field->Top, 1500) << field->name;
}

/// Which jobs of the review form exclude each other. The station data and the button that ends an input may be in view
/// with any of them.
Alternatives alternativesOfReview()
{
    const auto& f = FrmAnzeigen;
    Controls logOrEdiPage = grids(f);
    logOrEdiPage.insert({&f.FraLogEDI1, &f.FraLogEDI2});
    Alternatives jobs{logOrEdiPage,
                      {&f.Frame1, &f.Frame2, &f.Frame3, &f.Frame8, &f.Frame10, &f.FraBandEdi, &f.FraArh},
                      {&f.Frame4, &f.FraArh},
                      {&f.Frame5, &f.FraArh}};
    for (const Control* job : std::initializer_list<const Control*>{
             &f.Frame1, &f.Frame2, &f.Frame3, &f.Frame4, &f.Frame5, &f.Frame8, &f.Frame10, &f.FraBandEdi, &f.FraArh})
        jobs.insert(jobs.end(), {{job, &f.FraLogEDI1}, {job, &f.FraLogEDI2}});
    return jobs;
}

/// The buttons that the contest has taken away.
Controls takenAway()
{
    Controls away;
    for (const Control* control : FrmAnzeigen.controls())
        if (!control->Visible && control->kind == Kind::optionButton) away.insert(control);
    return away;
}

TEST_F(FormPlaces, ReviewFormIsInOrder)
{
    expectInOrder(FrmAnzeigen, alternativesOfReview(), takenAway());
}

TEST_F(FormPlaces, ReviewFormIsInOrderInEveryContest)
{
    for (const int contest : {0, 1, 2, 3, 4, 5, 6, 7, 8, 100, 101}) {
        SCOPED_TRACE(contest);
        screen::rebuild(FrmAnzeigen, FormLife::neverLoaded);
        Modul1.ConcId = static_cast<std::uint16_t>(contest);
        review::showViewButtons();
        review::showEmptyingButtons();
        review::showPrintButtons();
        review::showEdiBands();
        review::showDisketteBands();
        Controls notOnThisPage = takenAway();
        if (contest == 7) {
            const auto& f = FrmAnzeigen;
            FrmAnzeigen.takeMaratonPlaces();
            notOnThisPage.insert({&f.Frame10, &f.FraBandEdi, &f.FraLogEDI1, &f.FraLogEDI2});
        }
        expectInOrder(FrmAnzeigen, alternativesOfReview(), notOnThisPage);
    }
    Modul1 = {};
}

/// The boxes and buttons of a frame stand as they are walked: row by row, from left to right.
void expectReadingOrder(const Control& frame)
{
    const Control* before = nullptr;
    for (const Control* control : FrmAnzeigen.controls()) {
        if (control->container != &frame || control->kind == Kind::label) continue;
        const Rectangle& at = control->design;
        if (before != nullptr) {
            const bool sameRow = at.Top == before->design.Top;
            EXPECT_TRUE(sameRow ? at.Left > before->design.Left : at.Top > before->design.Top)
                << before->name << " and " << control->name;
        }
        before = control;
    }
}

TEST_F(FormPlaces, JobsOfTheReviewFormReadRowByRow)
{
    const auto& f = FrmAnzeigen;
    for (const Control* frame :
         std::initializer_list<const Control*>{&f.Frame1, &f.Frame2, &f.Frame4, &f.Frame5, &f.Frame8, &f.Frame10,
                                               &f.FraBandEdi, &f.FraArh, &f.FraLogEDI1, &f.FraLogEDI2, &f.Frame6})
        expectReadingOrder(*frame);
}

TEST_F(FormPlaces, ThePrintFrameReadsColumnByColumn)
{
    const auto& f = FrmAnzeigen;
    const Control* const logs[] = {&f.OpBD144a, &f.OpBD144b, &f.OpBD432a, &f.OpBD432b, &f.OpBD1296a, &f.OpBD1296b};
    for (std::size_t i = 1; i < std::size(logs); ++i)
        EXPECT_GT(logs[i]->Top, logs[i - 1]->Top) << logs[i]->name;
    EXPECT_EQ(f.OpBDSumm144.Top, f.OpBD144a.Top);
    EXPECT_EQ(f.OpBDSumm432.Top, f.OpBD432a.Top);
    EXPECT_EQ(f.OpbDSumm1296.Top, f.OpBD1296a.Top);
}

TEST_F(FormPlaces, ALogThatIsLookedThroughReachesDownToTheFoot)
{
    const auto& f = FrmAnzeigen;
    review::giveLogThePage();
    EXPECT_EQ(f.DBGrid1.design.Top + f.DBGrid1.design.Height, 8880);
    Controls elsewhere = takenAway();
    elsewhere.insert({&f.Frame3, &f.Frame6, &f.Frame8, &f.Frame10, &f.FraArh, &f.FraBandEdi, &f.FraLogEDI1,
                      &f.FraLogEDI2, &f.CmdGata});
    expectInOrder(FrmAnzeigen, alternativesOfReview(), elsewhere);
    review::hideOtherJobs();
    expectInOrder(FrmAnzeigen, alternativesOfReview(), takenAway());
}

TEST_F(FormPlaces, TheButtonThatEndsAnInputMayMove)
{
    for (const double left : {4000.0, 7000.0}) {
        FrmAnzeigen.CmdGata.place(left, FrmAnzeigen.CmdGata.Top, FrmAnzeigen.CmdGata.Width, FrmAnzeigen.CmdGata.Height);
        expectInOrder(FrmAnzeigen, alternativesOfReview(), takenAway());
    }
    // Its place is not scaled then: on a screen of 640 pixels it still ends inside.
    EXPECT_LE(7000 + FrmAnzeigen.CmdGata.Width * 0.8, 640 * 15);
}

TEST_F(FormPlaces, TwoRowsOfTheScoreFitTheLowFrame)
{
    const auto bottom = [](const Control& control) { return control.design.Top + control.design.Height; };
    EXPECT_LE(bottom(FrmQSO.LblBand1), 1455);
    EXPECT_LE(bottom(FrmQSO.LblBand2), 1815);
    EXPECT_LE(bottom(FrmQSO.LblBand3), 2215);
}

TEST_F(FormPlaces, SomePlacesAreFixed)
{
    EXPECT_EQ(FrmQSO.LblMode.Left, 7200);
    EXPECT_EQ(FrmQSO.LblAnunt.Left, 5280);
    EXPECT_EQ(FrmQSO.LblOffLine.Left, 5400);
    EXPECT_EQ(FrmQSO.LblMixt.Left, 9700);
    EXPECT_EQ(FrmQSO.LblFm.Left, 9100);
    for (const Control* field : {&FrmQSO.TxtRSTR1, &FrmQSO.TxtRSTR2, &FrmQSO.TxtRSTr3})
        EXPECT_EQ(field->Top, 1500) << field->name;
}

/// What the words of a label head must be there, and no field without a word.
void expectAWordForEachField(const screen::Label& label)
{
    std::size_t fields = 0;
    for (const Control* field : label.heads)
        if (field->seen()) ++fields;
    std::size_t words = 0;
    char before = ' ';
    for (const char character : label.Caption) {
        if (before == ' ' && character != ' ') ++words;
        before = character;
    }
    EXPECT_GT(fields, 0U) << label.name;
    EXPECT_EQ(words, fields) << label.name;
}

TEST_F(FormPlaces, EveryFieldOfTheExchangeHasAWordAboveIt)
{
    const auto& f = FrmQSO;
    for (const screen::Label* label : {&f.LblCall, &f.LblRSTe, &f.LblRSTR, &f.LblUTC, &f.LblDate})
        expectAWordForEachField(*label);
    FrmQSO.LblRSTe.Caption = "RSTS CODS QTHLocS  NameS";
    FrmQSO.LblRSTR.Caption = "   RSTR CODR QTHLocR  NameR";
    FrmQSO.TxtMyName.Visible = true;
    FrmQSO.TxtYourName.Visible = true;
    expectAWordForEachField(f.LblRSTe);
    expectAWordForEachField(f.LblRSTR);
}

TEST_F(FormPlaces, TheRoseHasRoom)
{
    expectFree(FrmQSO, {3060, 2250, 2220, 2490}, onlyInMaraton());
}

TEST_F(FormPlaces, TheRoseHasRoomInTheMaraton)
{
    FrmQSO.takeMaratonPlaces();
    expectFree(FrmQSO, {3250, 50, 1500, 1500}, neverInMaraton());
    expectFree(FrmQSO, {2550, 2340, 1500, 2400}, neverInMaraton());  // larger screens
}

TEST_F(FormPlaces, TheHeadingHasRoomBesideTheRoseInTheMaraton)
{
    FrmQSO.takeMaratonPlaces();
    FrmQSO.LblBeam1.place(4800, 400, FrmQSO.LblBeam1.Width, FrmQSO.LblBeam1.Height);
    expectNoOverlap(FrmQSO, alternativesOfEntry(), neverInMaraton());
}

TEST_F(FormPlaces, TheReceivedExchangeMayStepDownOnLowScreens)
{
    FrmQSO.Frame2.design.Height = 2215;
    FrmQSO.takeLowScreenPlaces();
    expectInOrder(FrmQSO, alternativesOfEntry(), onlyInMaraton());
    for (Control* field : {&FrmQSO.TxtRSTR1, &FrmQSO.TxtRSTR2, &FrmQSO.TxtRSTr3})
        field->place(field->design.Left, 2400, field->design.Width, field->design.Height);
    expectNoOverlap(FrmQSO, alternativesOfEntry(), onlyInMaraton());
}

}  // namespace
