// What the three forms have in common: names of controls, tables and grids, the way of Tab, parking places.
#include <gtest/gtest.h>

#include <fstream>
#include <regex>
#include <set>
#include <string>
#include <vector>

#include "screen/frm_anzeigen.h"
#include "screen/frm_init.h"
#include "screen/frm_qso.h"
#include "support/form_expectations.h"

namespace {

using screen::Control;
using screen::Form;
using screen::FormLife;
using screen::Kind;
using test_support::expectCaptions;

class Forms : public testing::Test {
 protected:
    void SetUp() override
    {
        screen::rebuild(FrmInit, FormLife::neverLoaded);
        screen::rebuild(FrmQSO, FormLife::neverLoaded);
        screen::rebuild(FrmAnzeigen, FormLife::neverLoaded);
    }
};

/// Names of the members that a header declares as controls, each with the name that it registers under.
std::vector<std::pair<std::string, std::string>> declaredControls(const std::string& header)
{
    std::ifstream file(std::string(KELVO_SOURCE_FOLDER) + "/src/screen/" + header);
    EXPECT_TRUE(file.is_open()) << header;
    const std::regex declaration(R"re(^    \w+ ([^ {]+)\{this, "([^"]+)".*\};.*)re");
    std::vector<std::pair<std::string, std::string>> found;
    for (std::string line; std::getline(file, line);) {
        std::smatch match;
        if (std::regex_match(line, match, declaration)) found.emplace_back(match[1], match[2]);
    }
    return found;
}

void expectNamesOfMembers(const Form& form, const std::string& header)
{
    const auto declared = declaredControls(header);
    ASSERT_EQ(form.controls().size(), declared.size()) << header;
    for (std::size_t i = 0; i < declared.size(); ++i) {
        EXPECT_EQ(declared[i].second, declared[i].first) << header;
        EXPECT_EQ(form.controls()[i]->name, declared[i].second) << "order of " << header;
        EXPECT_EQ(form.find(declared[i].second), form.controls()[i]) << "two controls of one name";
    }
}

TEST_F(Forms, ControlsRegisterUnderTheirMemberNames)
{
    expectNamesOfMembers(FrmInit, "frm_init.h");
    expectNamesOfMembers(FrmQSO, "frm_qso.h");
    expectNamesOfMembers(FrmAnzeigen, "frm_anzeigen.h");
}

TEST_F(Forms, ContainersAreDeclaredBeforeWhatTheyHold)
{
    for (const Form* form :
         {static_cast<Form*>(&FrmInit), static_cast<Form*>(&FrmQSO), static_cast<Form*>(&FrmAnzeigen)}) {
        std::set<const Control*> seen;
        for (const Control* control : form->controls()) {
            EXPECT_TRUE(control->container == nullptr || seen.contains(control->container)) << control->name;
            seen.insert(control);
        }
    }
}

TEST_F(Forms, DataControlsHaveTheirFirstRecordSources)
{
    struct SourceRow {
        const char* name;
        const char* entry;
        const char* review;
    };
    const SourceRow rows[] = {
        {"QRA", "QRA", "QRA"},
        {"Uus144a", "open", "Uus144a"},
        {"Uus144b", "", "Uus144b"},
        {"Uus432a", "Uus432a", "Uus432a"},
        {"Uus432b", "Uus432b", "Uus432b"},
        {"Uus1296a", "Uus1296a", "Uus1296a"},
        {"Uus1296b", "Uus1296b", "Uus1296b"},
        {"UusGHz", "UusGHZ", "UusGHZ"},
        {"UusLGYO2", "UusLGYO2", "UusLGYO2"},
    };
    const auto sourceOf = [](const Form& form, const char* name) {
        const auto* data = dynamic_cast<const screen::DataControl*>(form.find(name));
        return data != nullptr ? data->RecordSource : "no such control";
    };
    for (const SourceRow& row : rows) {
        EXPECT_EQ(sourceOf(FrmQSO, row.name), row.entry) << row.name;
        EXPECT_EQ(sourceOf(FrmAnzeigen, row.name), row.review) << row.name;
    }
}

TEST_F(Forms, GridsShowTheirTables)
{
    struct GridRow {
        const char* grid;
        const char* data;
    };
    const GridRow rows[] = {
        {"DBGrid1", "Uus144a"},  {"DBGrid2", "Uus144b"}, {"DBGrid3", "Uus432a"},
        {"DBGrid4", "Uus432b"},  {"DBGrid5", "QRA"},     {"DBGrid6", "Uus1296a"},
        {"DBGrid7", "Uus1296b"}, {"DBGrid8", "UusGHz"},  {"DBGrid9", "UusLGYO2"},
    };
    const auto expectGrid = [](const Form& form, const GridRow& row, screen::RowGesture gesture) {
        const auto* grid = dynamic_cast<const screen::Grid*>(form.find(row.grid));
        ASSERT_NE(grid, nullptr) << form.name << row.grid;
        EXPECT_EQ(grid->data, form.find(row.data)) << form.name << row.grid;
        EXPECT_EQ(grid->gesture, gesture) << form.name << row.grid;
        EXPECT_FALSE(grid->Visible) << form.name << row.grid;
    };
    for (const GridRow& row : rows) {
        expectGrid(FrmQSO, row, screen::RowGesture::doubleClick);
        expectGrid(FrmAnzeigen, row, screen::RowGesture::click);
    }
}

TEST_F(Forms, ReviewFormHasItsMenu)
{
    const auto& f = FrmAnzeigen;
    EXPECT_EQ(f.Caption, "Anzeigen");
    expectCaptions({
        {f.mnuBeenden, "E&XIT"},
        {f.mnuAnfang, "1_ST_P&AGE"},
        {f.mnuLogAnzeigen, "VIEW_LO&G "},
        {f.mnuLOGDrucken, "P&RINT_LOG"},
        {f.mnuLOG, "&MEMORARE LOG"},
        {f.MnuASCIIDATEI, "Memorare pe Dis&k"},
        {f.mnuFormTXT, "Memorare format TXT"},
        {f.mnuFormEDI, "Memorare format EDI"},
        {f.mnuLOGLöschen, "&DELETE_LOG "},
        {f.mnuHelp3, "HELP"},
    });
    EXPECT_EQ(f.mnuFormEDI.container, &f.MnuHDDLOG);
    EXPECT_EQ(f.MnuHDDLOG.container, &f.mnuLOG);
}

bool takesKeys(const Control& control)
{
    return control.kind == Kind::textBox || control.kind == Kind::commandButton || control.kind == Kind::optionButton ||
           control.kind == Kind::checkBox || control.kind == Kind::listBox || control.kind == Kind::grid;
}

TEST_F(Forms, TabWalksTheSetUpPageAndTheReviewFormAndNothingOnTheEntryForm)
{
    for (const Form* form : {static_cast<Form*>(&FrmInit), static_cast<Form*>(&FrmAnzeigen)})
        for (const Control* control : form->controls())
            EXPECT_EQ(control->TabStop, takesKeys(*control) && control != &FrmAnzeigen.TxtFoc) << control->name;
    for (const Control* control : FrmQSO.controls())
        EXPECT_FALSE(control->TabStop) << control->name;
}

TEST_F(Forms, ParkingPlacesCanAlwaysTakeTheFocus)
{
    for (screen::TextBox* place : {&FrmQSO.TxtRez, &FrmAnzeigen.TxtFoc}) {
        EXPECT_TRUE(place->parking) << place->name;
        place->SetFocus();
        EXPECT_EQ(place->form.ActiveControl, place);
    }
}

TEST_F(Forms, CallsCodesReportsLocatorsDatesAndTimesKeepInputMethodsOut)
{
    const auto& i = FrmInit;
    const auto& q = FrmQSO;
    for (const screen::TextBox* plain :
         {&i.TxtMyCall, &i.txtMyQRA, &i.TxtTime, &i.TxtRpNr, &i.TxtSD, &i.TxtST, &q.txtIndic, &q.TxtRSTR1, &q.TxtRSTR2,
          &q.TxtRSTr3, &q.TxtRSTE1, &q.txtRSTE2, &q.txtRSTe3, &q.TxtUTC, &q.TxtDate})
        EXPECT_FALSE(plain->inputMethod) << plain->name;
    for (const screen::TextBox* name : {&i.TxtMyName, &q.TxtMyName, &q.TxtYourName})
        EXPECT_TRUE(name->inputMethod) << name->name;
}

}  // namespace
