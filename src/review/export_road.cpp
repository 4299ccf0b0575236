#include "review/export_road.h"

#include "base/runtime_error.h"
#include "entry/log_table.h"
#include "platform/keys.h"
#include "review/edi_header.h"
#include "review/folders.h"
#include "review/old_files.h"
#include "review/output_modes.h"
#include "review/own_call.h"
#include "review/page.h"
#include "review/reset.h"
#include "review/station_data.h"
#include "review/summary_file.h"
#include "review/summary_sheet.h"
#include "review/sums.h"
#include "review/views.h"
#include "review/writers.h"
#include "runstate/contest_codes.h"
#include "runstate/modul1.h"
#include "runstate/question.h"
#include "runstate/setup_files.h"
#include "screen/frm_anzeigen.h"

namespace review {

namespace {

constexpr int styleYesNoExclamation = 52;
constexpr int styleOkCancelInformation = 65;
constexpr double leftOnSmallScreen = 4000;

/// The contests that know no other band.
void takeOnlyBand()
{
    if (runstate::contestIsOneOf({1, 4, 6})) Modul1.BandCur = 144;
}

void moveOnSmallScreen(screen::Control& control)
{
    if (Modul1.ScaleY < 1) control.Left = leftOnSmallScreen;
}

void chooseFileBand(std::int32_t band)
{
    Modul1.BandCur = band;
    Viz();
}

void chooseDisketteBand(std::int32_t band)
{
    Modul1.BandCur = band;
    FrmAnzeigen.Frame8.Visible = false;
    FrmAnzeigen.Frame6.Visible = true;
    DatInSumm();
    FrmAnzeigen.EnterFlag = leadsToFile;
}

/// The questions behind the input.
void askOn()
{
    Message5();
    if (FrmAnzeigen.EnterFlag != leadsToFile) return;
    if (FrmAnzeigen.EnterAgain == 100) {
        FrmAnzeigen.EnterAgain = 0;
        return;
    }
    Message6();
}

/// The station's data are told on the screen too: a file that cannot be written must not keep the log from its
/// organisers.
void keepStationData()
{
    base::quietly(runstate::WriteInitDat);
}

void backToInput()
{
    screen::TextBox& box = FrmAnzeigen.OutFormat == asEdi ? FrmAnzeigen.TxtCQSOs1 : FrmAnzeigen.TxtSection;
    box.SetFocus();
    FrmAnzeigen.EnterAgain = 100;
    FrmAnzeigen.CmdGata.Visible = true;
}

void printSummary()
{
    keepStationData();
    PSummary();
    Anulat();
}

/// The figures of the contest, counted anew.
void countContest()
{
    FrmAnzeigen.Frame4.Visible = false;
    FrmAnzeigen.LblPkt1.Visible = false;
    if (Modul1.ConcId == runstate::maratonContest)
        SummeYO2();
    else
        ClcSum();
}

bool disketteIsIn()
{
    return runstate::ask("INSERT DISKET IN :A", "Logbuch als ASCII Datei auf Diskette schreiben ",
                         styleOkCancelInformation) == platform::buttonOk;
}

void writeBandInHand()
{
    switch (Modul1.BandCur) {
        case 144:
            return PLog144();
        case 432:
            return PLog432();
        case 1296:
            return PLog1296();
        default:
            return;
    }
}

void writeEdiFile()
{
    if (FrmAnzeigen.OutMode != toDrive && FrmAnzeigen.OutMode != toFolder) return;
    if (Modul1.BandCur == entry::bandGHz) return PLogGHz();
    writeBandInHand();
}

void writeTextFiles()
{
    if (runstate::contestIsOneOf({0, 1, 4, 6})) {
        writeBandInHand();
    } else if (runstate::contestIsOneOf({2, 3, 5, 8, 100})) {
        PLog144();
        PLog432();
        PLog1296();
        if (Modul1.ConcId == 100) PLogGHz();
    } else if (Modul1.ConcId == runstate::maratonContest) {
        PLogYO2();
    } else {
        return;  // the log of six metres goes to its organisers by EDI
    }
    PSumm();
}

}  // namespace

void mnuFormTXT_Click()
{
    FrmAnzeigen.OutMode = toFolder;
    FrmAnzeigen.OutFormat = asText;
    FrmAnzeigen.EnterFlag = leadsToFile;
    Anulat();
    OrdLog();
    hideOtherJobs();
    takeOnlyBand();
    if (Modul1.ConcId != 0) return DatInSumm();
    FrmAnzeigen.Frame10.Visible = true;
    moveOnSmallScreen(FrmAnzeigen.Frame10);
    FrmAnzeigen.CmdGata.Visible = true;
    moveOnSmallScreen(FrmAnzeigen.CmdGata);
}

void MnuASCIIDATEI_Click()
{
    FrmAnzeigen.OutFormat = asText;
    FrmAnzeigen.EnterFlag = leadsToFile;
    Anulat();
    FrmAnzeigen.OutMode = toDrive;
    hideOtherJobs();
    FrmAnzeigen.CmdGata.Visible = true;
    showDisketteBands();
    takeOnlyBand();
    // On six metres too the band buttons are the way on.
    const bool choosesBand = runstate::contestIsOneOf({0, 101});
    FrmAnzeigen.Frame8.Visible = choosesBand;
    if (!choosesBand) DatInSumm();
}

void OpB0144_Click()
{
    chooseFileBand(144);
}

void Opb0432_Click()
{
    chooseFileBand(432);
}

void OpB01296_Click()
{
    chooseFileBand(1296);
}

void Viz()
{
    FrmAnzeigen.Frame10.Visible = false;
    if (FrmAnzeigen.OutMode == toFolder) {
        FrmAnzeigen.Frame6.Visible = true;
        DatInSumm();
    }
    FrmAnzeigen.EnterFlag = leadsToFile;
    if (FrmAnzeigen.OutMode == toArchive) FrmAnzeigen.FraArh.Visible = true;
}

void OpBDsk144_Click()
{
    chooseDisketteBand(144);
}

void OpBDsk432_Click()
{
    chooseDisketteBand(432);
}

void OpBDsk1296_Click()
{
    chooseDisketteBand(1296);
}

void CmdGata_Click()
{
    takeStationData();
    if (FrmAnzeigen.OutFormat == asEdi) SetDateEdi();
    askOn();
}

void TxtClub_KeyDown(int& KeyCode)
{
    if (KeyCode != platform::keyEnter) return;
    takeStationData();
    askOn();
}

void Message5()
{
    if (runstate::ask("ARE YOUR ENTER FINISHED?", "INPUT DATA") != platform::buttonYes) return backToInput();
    FrmAnzeigen.EnterAgain = 0;
    if (FrmAnzeigen.EnterFlag == leadsToFile)
        keepStationData();
    else if (FrmAnzeigen.OutMode == toPrinter)
        printSummary();
}

void Message6()
{
    const bool declared = runstate::ask(
                              "PRIN EXPEDIEREA LOGULUI ELECTRONIC DECLAR CA AM OPERAT STATIA IN LIMITELE LICENTEI SI "
                              "RESPECTIND REGULAMENTUL DE CONCURS !!! I hereby certify that in the contest I have "
                              "operated the transmitter within the limitation of my licence and observed the rules and "
                              "regulation !!!",
                              "DECLARATIE", styleYesNoExclamation) == platform::buttonYes;
    if (declared) {
        Message1();
        if (FrmAnzeigen.OutFormat == asEdi) GrInv();
        return;
    }
    runstate::tell("FARA CONFIRMAREA DECLARATIEI REZULTATELE OBTINUTE NU SINT VALABILE ! ", platform::iconExclamation);
    FrmAnzeigen.CmdGata.Visible = true;
    FrmAnzeigen.Frame6.Visible = true;
}

void Message1()
{
    const int format = FrmAnzeigen.OutFormat;
    Modul1.logUnread = 0;
    if (FrmAnzeigen.OutMode == toFolder) ModifIndic();
    if (FrmAnzeigen.OutMode == toFolder && format == asText) {
        deleteOldFiles();
        countContest();
    }
    if (format != asText && format != asEdi) {
        if (!disketteIsIn()) return Anulat();
        countContest();
    }
    if (format == asEdi) writeEdiFile();
    if (format == asText) writeTextFiles();
    Anulat();
}

}  // namespace review
