#include "entry/undo.h"

#include "base/number.h"
#include "base/text.h"
#include "runstate/modul1.h"
#include "screen/frm_qso.h"

namespace entry {

namespace {

/// Places in the snapshot. The fifteenth stays empty.
enum UndoIndex : std::size_t {
    undoCall = 1,
    undoBeam = 2,
    undoDistance = 3,
    undoTime = 4,
    undoDate = 5,
    undoColour = 6,
    undoBandList = 7,
    undoReport = 8,
    undoCode = 9,
    undoLocator = 10,
    undoIndic = 11,
    undoNew = 12,
    undoTimeDone = 13,
    undoEnterEnabled = 14,
    undoScore = 16,
    undoMicrowaves = 17,
    undoDuplicate = 18,
    undoNeedle = 19,
};

std::string flagText(bool flag)
{
    return flag ? "1" : "0";
}

bool flagOf(UndoIndex index)
{
    return FrmQSO.UndoRec.at(index) == "1";
}

std::string colourText(screen::Colour colour)
{
    return base::toText(colour.red + 256 * colour.green + 65536 * colour.blue);
}

screen::Colour colourOf(const std::string& text)
{
    const auto number = static_cast<unsigned>(base::numericValue(text));
    return {static_cast<std::uint8_t>(number & 0xFFU), static_cast<std::uint8_t>((number >> 8U) & 0xFFU),
            static_cast<std::uint8_t>((number >> 16U) & 0xFFU)};
}

}  // namespace

void MemUndo()
{
    auto& undo = FrmQSO.UndoRec;
    undo.at(undoCall) = FrmQSO.txtIndic.Text;
    undo.at(undoBeam) = FrmQSO.LblBeam1.Caption;
    undo.at(undoDistance) = FrmQSO.LblQRB1.Caption;
    undo.at(undoTime) = FrmQSO.TxtUTC.Text;
    undo.at(undoDate) = FrmQSO.TxtDate.Text;
    undo.at(undoColour) = colourText(FrmQSO.txtIndic.BackColor);
    undo.at(undoBandList) = flagText(FrmQSO.List1.Visible);
    undo.at(undoReport) = FrmQSO.TxtRSTR1.Text;
    undo.at(undoCode) = FrmQSO.TxtRSTR2.Text;
    undo.at(undoLocator) = FrmQSO.TxtRSTr3.Text;
    undo.at(undoIndic) = Modul1.Indic;
    undo.at(undoNew) = flagText(FrmQSO.LblNeu.Visible);
    undo.at(undoTimeDone) = base::toText(FrmQSO.TimeDone);
    undo.at(undoEnterEnabled) = flagText(FrmQSO.CmdEnterCall.Enabled);
    undo.at(undoScore) = flagText(FrmQSO.Frame2.Visible);
    undo.at(undoMicrowaves) = flagText(FrmQSO.Frame3.Visible);
    undo.at(undoDuplicate) = flagText(FrmQSO.Frame4.Visible);
    undo.at(undoNeedle) = flagText(FrmQSO.Line4.Visible);
}

void mnuRecup_Click()
{
    switchRecup(false);
    const auto& undo = FrmQSO.UndoRec;
    FrmQSO.txtIndic.Text = undo.at(undoCall);
    FrmQSO.LblBeam1.Caption = undo.at(undoBeam);
    FrmQSO.LblQRB1.Caption = undo.at(undoDistance);
    FrmQSO.TxtUTC.Text = undo.at(undoTime);
    FrmQSO.TxtDate.Text = undo.at(undoDate);
    FrmQSO.txtIndic.BackColor = colourOf(undo.at(undoColour));
    FrmQSO.List1.Visible = flagOf(undoBandList);
    FrmQSO.TxtRSTR1.Text = undo.at(undoReport);
    FrmQSO.TxtRSTR2.Text = undo.at(undoCode);
    FrmQSO.TxtRSTr3.Text = undo.at(undoLocator);
    Modul1.Indic = undo.at(undoIndic);
    FrmQSO.LblNeu.Visible = flagOf(undoNew);
    FrmQSO.TimeDone = base::toInt16(undo.at(undoTimeDone));
    FrmQSO.CmdEnterCall.Enabled = flagOf(undoEnterEnabled);
    FrmQSO.Frame2.Visible = flagOf(undoScore);
    FrmQSO.Frame3.Visible = flagOf(undoMicrowaves);
    FrmQSO.Frame4.Visible = flagOf(undoDuplicate);
    FrmQSO.Line4.Visible = flagOf(undoNeedle);
    FrmQSO.txtIndic.caretToEnd();
    const bool codeMissing = base::trim(FrmQSO.TxtRSTR2.Text).empty();
    if (!base::trim(FrmQSO.txtIndic.Text).empty() && codeMissing) FrmQSO.TxtRSTR2.SetFocus();
}

void switchRecup(bool on)
{
    FrmQSO.mnuRecup.Visible = on;
    FrmQSO.mnuRecup.Enabled = on;
}

}  // namespace entry
