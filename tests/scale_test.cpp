// The rule of the two scale factors.
#include "screen/scale.h"

#include <gtest/gtest.h>

#include "runstate/modul1.h"
#include "screen/frm_init.h"
#include "screen/frm_qso.h"

namespace {

class Scale : public testing::Test {
 protected:
    void SetUp() override
    {
        Modul1 = {};
        screen::rebuild(FrmInit, screen::FormLife::neverLoaded);
        screen::rebuild(FrmQSO, screen::FormLife::neverLoaded);
    }

    static void setFactors(float x, float y)
    {
        Modul1.ScaleX = x;
        Modul1.ScaleY = y;
    }
};

void expectScaled(const screen::Form& form, double x, double y)
{
    for (const screen::Control* control : form.controls()) {
        EXPECT_DOUBLE_EQ(control->Left, control->design.Left * x) << control->name;
        EXPECT_DOUBLE_EQ(control->Top, control->design.Top * y) << control->name;
        EXPECT_DOUBLE_EQ(control->Width, control->design.Width * x) << control->name;
        EXPECT_DOUBLE_EQ(control->Height, control->design.Height * y) << control->name;
    }
}

TEST_F(Scale, EachAxisHasItsFactor)
{
    setFactors(2.5F, 1.5F);
    screen::qso::MFormMare();
    EXPECT_EQ(FrmQSO.LblMode.Left, 18000);
    EXPECT_EQ(FrmQSO.LblAnunt.Left, 13200);
    EXPECT_EQ(FrmQSO.LblOffLine.Left, 13500);
    EXPECT_EQ(FrmQSO.LblMixt.Left, 24250);
    EXPECT_EQ(FrmQSO.LblFm.Left, 22750);
    EXPECT_EQ(FrmQSO.TxtRSTR1.Top, 2250);
    EXPECT_EQ(FrmQSO.Frame2.Height, 2182.5);
    expectScaled(FrmQSO, 2.5, 1.5);
}

TEST_F(Scale, BothFormsFollowSmallAndLargeScreens)
{
    setFactors(0.5F, 0.75F);
    screen::init::MForm();
    screen::qso::MForm();
    expectScaled(FrmInit, 0.5, 0.75);
    expectScaled(FrmQSO, 0.5, 0.75);

    setFactors(1.5F, 1.25F);
    screen::init::MFormMare();
    screen::qso::MFormMare();
    expectScaled(FrmInit, 1.5, 1.25);
    expectScaled(FrmQSO, 1.5, 1.25);
}

TEST_F(Scale, TheDesignScreenIsTheDesign)
{
    setFactors(1, 1);
    screen::qso::MFormMare();
    expectScaled(FrmQSO, 1, 1);
}

TEST_F(Scale, ScalingTwiceIsScalingOnce)
{
    setFactors(2, 2);
    screen::qso::MFormMare();
    screen::qso::MFormMare();
    EXPECT_EQ(FrmQSO.LblMode.Left, 14400);
}

TEST_F(Scale, FontsStay)
{
    const double points = FrmQSO.txtIndic.fontPoints;
    setFactors(2, 2);
    screen::qso::MFormMare();
    EXPECT_EQ(FrmQSO.txtIndic.fontPoints, points);
}

TEST_F(Scale, TheEndsOfTheNeedleStay)
{
    FrmQSO.Line4.X1 = 4350;
    FrmQSO.Line4.Y2 = 3050;
    setFactors(2, 2);
    screen::qso::MFormMare();
    EXPECT_EQ(FrmQSO.Line4.X1, 4350);
    EXPECT_EQ(FrmQSO.Line4.Y2, 3050);
}

TEST_F(Scale, AHeightSetByTheContestSurvivesScaling)
{
    setFactors(2, 2);
    screen::setDesignHeight(FrmQSO.Frame2, 1815);
    EXPECT_EQ(FrmQSO.Frame2.Height, 3630);
    screen::qso::MFormMare();
    EXPECT_EQ(FrmQSO.Frame2.Height, 3630);
}

TEST_F(Scale, LowScreensMakeRoomForTheExchangeThatStepsDown)
{
    constexpr double lowestTop = 2400;
    setFactors(1, 0.75F);
    screen::qso::MForm();
    for (const screen::Control* label : {&FrmQSO.LblBeam1, &FrmQSO.LblQRB1})
        EXPECT_LE(label->Top + label->Height, lowestTop * 0.75) << label->name;

    // In the Maraton it does not step down.
    Modul1.ConcId = 7;
    FrmQSO.takeMaratonPlaces();
    const double top = FrmQSO.LblBeam1.design.Top;
    screen::qso::MForm();
    EXPECT_EQ(FrmQSO.LblBeam1.Top, top * 0.75);
}

TEST_F(Scale, TheMaratonPlacesAreScaledLikeAllOthers)
{
    setFactors(2, 2);
    FrmQSO.takeMaratonPlaces();
    screen::qso::MFormMare();
    EXPECT_EQ(FrmQSO.DBGrid9.Width, 2 * 8280);
    expectScaled(FrmQSO, 2, 2);
}

}  // namespace
