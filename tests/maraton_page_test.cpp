// The page of the Maraton contest on screens of any size: whatever the operator has in view, nothing covers it.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "band/switching.h"
#include "geo/rose.h"
#include "runstate/modul1.h"
#include "screen/frm_init.h"
#include "screen/frm_qso.h"
#include "support/running_program.h"

namespace {

using screen::Control;
using screen::Kind;

struct Screen {
    int width;
    int height;
};

constexpr Screen screens[] = {{640, 480}, {800, 480}, {800, 600}, {1024, 600}, {1024, 768}, {1280, 720}, {1920, 1080}};

bool isDrawn(const Control& control)
{
    if (control.kind == Kind::menuEntry || control.kind == Kind::data || control.kind == Kind::timer) return false;
    if (control.kind == Kind::line || !control.seen()) return false;
    return control.kind != Kind::textBox || !static_cast<const screen::TextBox&>(control).parking;
}

bool overlap(const Control& a, const Control& b)
{
    return a.Left < b.Left + b.Width && b.Left < a.Left + a.Width && a.Top < b.Top + b.Height &&
           b.Top < a.Top + a.Height;
}

void expectNothingCovered()
{
    std::vector<const Control*> drawn;
    for (const Control* control : FrmQSO.controls())
        if (control->container == nullptr && isDrawn(*control)) drawn.push_back(control);
    ASSERT_GT(drawn.size(), 30U);
    for (auto a = drawn.begin(); a != drawn.end(); ++a)
        for (auto b = a + 1; b != drawn.end(); ++b)
            EXPECT_FALSE(overlap(**a, **b)) << (*a)->name << " and " << (*b)->name;
}

using BandProcedure = void (*)();

void expectInOrderOn(const Screen& size, bool onPaper)
{
    test::RunningProgram program({size.width, size.height});
    program.click(FrmInit.OpBMaraton);
    program.click(FrmInit.OpbTest);
    FrmInit.TxtMyName.Text = "ION";
    FrmInit.txtMyQRA.Text = "KN05OS";
    program.click(FrmInit.mnuQSOfahren);
    FrmQSO.LblOffLine.Visible = onPaper;
    for (const BandProcedure bandProcedure : {band::B144, band::B432, band::B1296}) {
        SCOPED_TRACE(Modul1.BandCur);
        FrmQSO.LblAnunt.Visible = true;
        bandProcedure();
        Modul1.CwAllowed = 100;
        Modul1.CwRptFlag = 100;
        band::CmdCW_Click();
        FrmQSO.LblNeu.Visible = true;
        FrmQSO.TxtCwCurent.Visible = true;
        FrmQSO.LblAnunt.Visible = true;
        geo::Medalion();
        expectNothingCovered();
    }
}

TEST(MaratonPage, CoversNothing)
{
    for (const Screen& size : screens)
        for (const bool onPaper : {false, true}) {
            SCOPED_TRACE(std::to_string(size.width) + "x" + std::to_string(size.height) + (onPaper ? " on paper" : ""));
            expectInOrderOn(size, onPaper);
        }
}

}  // namespace
