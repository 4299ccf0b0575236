// The end of every job of the review form.
#include "review/reset.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

#include "runstate/modul1.h"
#include "screen/frm_anzeigen.h"
#include "screen/frm_init.h"
#include "support/running_program.h"

namespace {

const std::vector<std::string_view> letGo = {
    "OpB144a",   "OpB432a",   "OpB1296a",    "OpBD144a",    "OpBD144b",     "OpBD432a",  "OpBD432b",
    "OpBD1296a", "OpBD1296b", "OpbL144a",    "OpbL144b",    "OpbL432a",     "OpbL432b",  "OpBL1296a",
    "OpBL1296b", "OpBDelete", "OpBDSumm144", "OpBDSumm432", "OpbDSumm1296", "OpBQRALoc",
};

const std::vector<std::string_view> hidden = {
    "DBGrid1", "DBGrid2", "DBGrid3", "DBGrid4", "DBGrid5", "DBGrid9", "FraArh", "Frame2", "Frame3", "Frame4", "Frame8",
};

bool isIn(const std::vector<std::string_view>& names, const std::string& name)
{
    return std::find(names.begin(), names.end(), name) != names.end();
}

class Reset : public testing::Test {
 protected:
    void SetUp() override { program.click(FrmInit.mnuLOG); }

    test::RunningProgram program;
};

TEST_F(Reset, LetsGoOfTheButtonsOfTheJobs)
{
    std::size_t seen = 0;
    for (screen::Control* control : FrmAnzeigen.controls()) {
        if (control->kind != screen::Kind::optionButton) continue;
        auto& button = static_cast<screen::OptionButton&>(*control);
        button.Value = true;
        review::Anulat();
        EXPECT_EQ(button.Value, !isIn(letGo, button.name)) << button.name;
        seen += isIn(letGo, button.name) ? 1 : 0;
    }
    EXPECT_EQ(seen, letGo.size());
}

TEST_F(Reset, HidesTheGridsAndFramesOfTheJobs)
{
    for (screen::Control* control : FrmAnzeigen.controls())
        control->Visible = true;
    review::Anulat();
    std::size_t seen = 0;
    for (const screen::Control* control : FrmAnzeigen.controls()) {
        EXPECT_EQ(control->Visible, !isIn(hidden, control->name)) << control->name;
        seen += isIn(hidden, control->name) ? 1 : 0;
    }
    EXPECT_EQ(seen, hidden.size());
}

TEST_F(Reset, ShowsNothingAndChangesNothingElse)
{
    for (screen::Control* control : FrmAnzeigen.controls())
        control->Visible = false;
    Modul1.BandCur = 432;
    Modul1.Etapa = "B";
    Modul1.PrintSel = 1;
    FrmAnzeigen.OutMode = 10;
    FrmAnzeigen.LblQSO1.Caption = "3";
    review::Anulat();
    for (const screen::Control* control : FrmAnzeigen.controls()) {
        EXPECT_FALSE(control->Visible) << control->name;
        EXPECT_TRUE(control->Enabled) << control->name;
    }
    EXPECT_EQ(Modul1.BandCur, 432);
    EXPECT_EQ(Modul1.Etapa, "B");
    EXPECT_EQ(Modul1.PrintSel, 1);
    EXPECT_EQ(FrmAnzeigen.OutMode, 10);
    EXPECT_EQ(FrmAnzeigen.LblQSO1.Caption, "3");
}

}  // namespace
