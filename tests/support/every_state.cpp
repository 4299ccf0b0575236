#include "support/every_state.h"

#include "screen/frm_anzeigen.h"
#include "screen/frm_init.h"
#include "screen/frm_qso.h"

namespace test {

void EveryState::visitAll()
{
    for (const runstate::Contest& contest : runstate::contests()) {
        visitSetUp(contest);
        visitEntry(contest, FrmQSO.Cmd144);
        const std::set<const screen::Control*> offered = offeredBands_;
        for (screen::CommandButton* band : {&FrmQSO.Cmd432, &FrmQSO.Cmd1296, &FrmQSO.CmdGHz})
            if (offered.contains(band)) visitEntry(contest, *band);
        visitPaperLog(contest);
        visitReview(contest);
    }
    face_.reset();
}

void EveryState::visit(const std::string& state)
{
    ASSERT_NE(screen::activeForm(), nullptr) << where_ << state;
    visit_(*screen::activeForm(), where_ + state);
}

/// False where the control cannot be clicked.
bool EveryState::click(screen::Control& control)
{
    if (&control.form != screen::activeForm() || !control.seen() || !control.enabled()) return false;
    face_->click(control);
    return true;
}

void EveryState::strike(const std::string& key)
{
    face_->down(key);
    face_->up(key);
}

/// A fresh installation, with the contest chosen and the computer sending.
void EveryState::beginContest(const runstate::Contest& contest)
{
    where_ = std::string(contest.title) + ": ";
    face_.reset();
    face_ = std::make_unique<ScriptFace>();
    face_->start();
    click(FrmInit.*contest.button);
    click(FrmInit.OpbConcurs);
    click(FrmInit.OpbCwJ);
    click(FrmInit.ChkCwRpt);
    click(FrmInit.OpbSSBJ);
    click(FrmInit.ChkSSBRpt);
}

void EveryState::openEntry()
{
    face_->focus(FrmInit.TxtMyCall);
    face_->type("yo2xyz");
    strike("Enter");
    face_->type("kn05os");
    strike("Enter");
    face_->type("0");
    FrmInit.TxtMyName.Text = "ION";
    click(FrmInit.mnuQSOfahren);
    ASSERT_EQ(screen::activeForm(), &FrmQSO) << where_;
}

void EveryState::visitSetUp(const runstate::Contest& contest)
{
    where_ = std::string(contest.title) + ": ";
    face_.reset();
    face_ = std::make_unique<ScriptFace>();
    face_->start();
    visit("first page");
    click(FrmInit.*contest.button);
    visit("contest chosen");
    beginContest(contest);
    visit("keying chosen");
    click(FrmInit.mnuInputLog);
    visit("paper log on the first page");
}

void EveryState::visitEntry(const runstate::Contest& contest, screen::CommandButton& band)
{
    beginContest(contest);
    openEntry();
    if (&band == &FrmQSO.Cmd144) {
        visit("entry closed");
        noteOfferedBands();
    }
    click(band);  // the only band of a contest is chosen already, and cannot be clicked
    where_ += band.Caption + " ";
    visit("band chosen");
    if (FrmQSO.List1.seen()) {
        face_->focus(FrmQSO.List1);
        strike("Down");
        visit("frequency chosen");
    }
    click(FrmQSO.CmdA);
    visitModes();
    if (click(FrmQSO.CmdB)) visitModes();
    visitDuplicate();
}

void EveryState::noteOfferedBands()
{
    offeredBands_.clear();
    for (const screen::CommandButton* band : {&FrmQSO.Cmd432, &FrmQSO.Cmd1296, &FrmQSO.CmdGHz})
        if (band->seen() && band->enabled()) offeredBands_.insert(band);
}

void EveryState::visitModes()
{
    for (screen::CommandButton* mode : {&FrmQSO.CmdSSB, &FrmQSO.CmdFm, &FrmQSO.CmdMixt, &FrmQSO.CmdCW})
        if (click(*mode)) visit(mode->Caption);
    FrmQSO.TxtCwCurent.Visible = true;  // as while a message is keyed
    visit("sending");
    FrmQSO.TxtCwCurent.Visible = false;
}

void EveryState::visitDuplicate()
{
    for (const char* code : {"001", "002"}) {
        face_->type("yo5aaa");
        strike("Tab");
        face_->type(code);
        if (screen::activeForm()->ActiveControl == &FrmQSO.TxtRSTr3) face_->type("kn16aa");
        if (screen::activeForm()->ActiveControl == &FrmQSO.TxtYourName) {
            face_->type("ana");
            strike("Tab");
        }
        visit(std::string("code ") + code);
        if (!FrmQSO.Frame4.seen()) strike("Enter");
    }
    FrmQSO.CmdEnterCall.Enabled = true;  // as a locator that is finished behind the question leaves it
    visit("question with the button on");
    face_->focus(FrmQSO.txtIndic);
    strike("Esc");
    visit("given up");
    click(FrmQSO.mnuRecup);
    visit("taken back");
}

void EveryState::visitPaperLog(const runstate::Contest& contest)
{
    beginContest(contest);
    click(FrmInit.mnuInputLog);
    openEntry();
    click(FrmQSO.Cmd144);
    click(FrmQSO.CmdA);
    click(FrmQSO.CmdCW);
    visit("paper log");
    face_->type("yo5aaa");
    strike("Tab");
    visit("paper log, call taken");
}

void EveryState::visitReview(const runstate::Contest& contest)
{
    beginContest(contest);
    openEntry();
    click(FrmQSO.Cmd144);
    click(FrmQSO.CmdA);
    click(FrmQSO.CmdCW);
    face_->type("yo5aaa");
    strike("Tab");
    face_->type("001kn16aa");
    strike("Enter");
    click(FrmQSO.mnuAnfang);
    visit("back on the first page");
    click(FrmInit.mnuLOG);
    visit("review");
    click(FrmAnzeigen.mnuLogAnzeigen);
    visit("view");
    visitOptionsOf(FrmAnzeigen.Frame1);
    click(FrmAnzeigen.mnuLogAnzeigen);
    click(FrmAnzeigen.OpB144a);
    strike("Ctrl+Delete");
    visit("row touched");
    click(FrmAnzeigen.mnuLOGDrucken);
    visit("print");
    click(FrmAnzeigen.OpBDSumm144);
    visit("summary to print");
    click(FrmAnzeigen.mnuLOGLöschen);
    visit("empty");
    visitOptionsOf(FrmAnzeigen.Frame2);
    visitTextFiles();
    visitEdi();
    visitArchive();
}

void EveryState::visitOptionsOf(const screen::Frame& frame)
{
    for (screen::Control* control : frame.form.controls()) {
        if (control->container != &frame || control->kind != screen::Kind::optionButton) continue;
        face_->answer(platform::buttonNo);
        if (click(*control)) visit(control->name);
    }
}

void EveryState::visitTextFiles()
{
    click(FrmAnzeigen.mnuFormTXT);
    visit("text file");
    if (click(FrmAnzeigen.OpB0144)) visit("text file of a band");
    click(FrmAnzeigen.MnuASCIIDATEI);
    visit("diskette");
    if (click(FrmAnzeigen.OpBDsk144)) visit("diskette of a band");
}

void EveryState::visitEdi()
{
    for (screen::OptionButton* band :
         {&FrmAnzeigen.OpB144Edi, &FrmAnzeigen.OpB432Edi, &FrmAnzeigen.OpB1296Edi, &FrmAnzeigen.OpBGHzEdi}) {
        click(FrmAnzeigen.mnuFormEDI);
        visit("EDI");
        if (!click(*band)) continue;
        visit(band->name);
        click(FrmAnzeigen.CmdNextPage);
        visit("EDI, second page");
        click(FrmAnzeigen.CmdRetur);
        visit("EDI, first page again");
    }
}

void EveryState::visitArchive()
{
    click(FrmAnzeigen.MnuArhiva);
    visit("archive");
    if (click(FrmAnzeigen.OpB0144)) visit("archive of a band");
}

}  // namespace test
