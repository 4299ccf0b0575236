#include "screen/keying_choices.h"

#include <string>

#include "base/runtime_error.h"
#include "platform/files.h"
#include "platform/machine.h"
#include "runstate/modul1.h"
#include "screen/frm_init.h"
#include "screen/frm_qso.h"

namespace screen {

namespace {

/// Before the contest runs, a choice leads on to the field that comes next. In a running one the focus stays.
bool choosingAfresh()
{
    return Modul1.ConcReturn == 0;
}

void dropRepeat(CheckBox& box)
{
    box.Visible = false;
    box.Value = 0;
}

}  // namespace

void OpbCwJ_Click()
{
    FrmInit.FramTxtCw.Visible = true;
    Modul1.CwAllowed = 100;
    if (choosingAfresh()) FrmInit.TxtF1.SetFocus();
    FrmInit.ChkCwRpt.Visible = true;
}

void OpbCwN_Click()
{
    FrmInit.FramTxtCw.Visible = false;
    dropRepeat(FrmInit.ChkCwRpt);
    Modul1.CwRptFlag = 0;
    Modul1.CwAllowed = 10;
    FrmQSO.txtPauseCW.Visible = false;
    if (!choosingAfresh()) return;
    FrmInit.TxtMyCall.SetFocus();
    FrmInit.TxtMyCall.caretToEnd();
}

void OpbSSBJ_Click()
{
    Modul1.SsbAllowed = 100;
    OrdWav();
    FrmInit.ChkSSBRpt.Visible = true;
}

void OpbSSBN_Click()
{
    dropRepeat(FrmInit.ChkSSBRpt);
    Modul1.SsbRptFlag = 0;
    Modul1.SsbAllowed = 10;
    FrmQSO.TxtPauseSSB.Visible = false;
    if (choosingAfresh()) FrmInit.TxtMyCall.SetFocus();
}

void ChkCwRpt_Click()
{
    const bool repeats = FrmInit.ChkCwRpt.Value == 1;
    // Taking the mark away clears the flag of voice, not that of CW. The start of the entry sets both from their boxes.
    (repeats ? Modul1.CwRptFlag : Modul1.SsbRptFlag) = repeats ? 100 : 0;
    FrmQSO.TxtF1.BackColor = repeats ? green : yellow;
}

void ChkSSBRpt_Click()
{
    const bool repeats = FrmInit.ChkSSBRpt.Value == 1;
    Modul1.SsbRptFlag = repeats ? 100 : 0;
    FrmQSO.TxtPauseSSB.BackColor = repeats ? green : yellow;
}

void OrdWav()
{
    const std::string folder = Modul1.AppDir + "\\WAVUus";
    base::ResumeNext go([&](const base::RuntimeError& error) {
        if (!platform::folderIsThere(folder)) base::reportSwallowed(error);
    });
    go([&] { platform::makeFolder(folder); });
    if (go.last() == base::existsOrNoAccess) return;
    platform::msgBox("Folderul " + folder +
                     " a fost creiat dar este gol. Pentru functionare cu PC-ul in SSB, trebuiesc creiate in acest "
                     "folder, fisierele F1.WAV...F7WAV ! ");
}

void Soundkarte(bool& flag)
{
    if (platform::machine().sound.outputDevices() >= 1) flag = true;
}

}  // namespace screen
