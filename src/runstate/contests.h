// The catalogue of contests: eleven codes, every name a contest carries, and what choosing it does to the forms.
#pragma once

#include <cstdint>
#include <span>
#include <string_view>

#include "screen/frm_init.h"

namespace runstate {

/// What a contest does to a control of the entry form: nothing, or one of two.
enum class Change { leave, no, yes };

/// What the entry form looks like for a contest.
struct EntryPage {
    Change upperBands;      ///< Cmd432 and Cmd1296 in view
    Change band144Enabled;  ///< Cmd144 can be clicked
    Change microwaves;      ///< CmdGHz in view
    Change lamp144;         ///< Lbl144 in view
    bool fixedBand;         ///< 144 is the only band: BandCur is preset
    bool fixedStage;        ///< stage A is the only one and is preset
    Change stages;          ///< CmdA and CmdB in view
    Change mixedMode;       ///< CmdMixt in view
    const char* prompt;     ///< what is still to be chosen; nullptr leaves the text
    double scoreHeight;     ///< of Frame2 in twips, 0 leaves it
    bool thirdRow;          ///< a third row of the score
    bool fourthRow;         ///< a fourth row, of the GHz group
    bool oneRow;            ///< the second row goes
};

struct Contest {
    std::uint16_t id;
    screen::OptionButton screen::FrmInitForm::*button;
    const char* title;          ///< LblTypTest when it is chosen
    const char* restoredTitle;  ///< LblTypTest when the page comes back
    const char* shownName;      ///< LblConc
    const char* shortName;      ///< ConcShort
    const char* reportName;     ///< in EDI files and reports
    EntryPage page;             ///< when the contest is chosen
    EntryPage reloadedPage;     ///< when the entry form is loaded again
};

std::span<const Contest> contests();

/// Contest by code, nullptr for a code outside the catalogue.
const Contest* contestById(int id);

/// What a contest is called in EDI files and reports, with its trailing blanks; empty for a code outside the catalogue.
std::string_view NameConcurs(int id);

void OpBCampNatUUS_Click();
void OpbCarpati_Click();
void OpbCluj_Click();
void OpBFloareademina_Click();
void OpbOltenia_Click();
void OpBConstrMas_Click();
void OpBTelecom_Click();
void OpBMaraton_Click();
void OpbZPV_Click();
void OpBCampInternUUS_Click();
void OpbOltenia6m_Click();

/// CONCURS mode: the locator memory learns.
void OpbConcurs_Click();
/// TEST mode: it does not.
void OpbTest_Click();

/// Places the controls of the entry form for the size of the screen.
void layOutEntryForm();

/// Applies a page to the entry form.
void applyPage(const EntryPage& page);

/// Gives the entry form that is loaded again what the contest in hand needs.
void restorePage();

}  // namespace runstate
