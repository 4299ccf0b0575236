#include "review/archive.h"

#include <string>

#include "base/runtime_error.h"
#include "base/text.h"
#include "platform/files.h"
#include "platform/keys.h"
#include "platform/machine.h"
#include "review/folders.h"
#include "review/output_modes.h"
#include "review/reset.h"
#include "review/writers.h"
#include "runstate/modul1.h"
#include "runstate/question.h"
#include "screen/frm_anzeigen.h"

namespace review {

namespace {

constexpr int yesNoQuestionDefaultNo = 292;
constexpr const char* oneUp = "..";
constexpr std::size_t lengthOfExtension = 4;

std::string inFolder(const std::string& folder, const std::string& name)
{
    return folder.ends_with('/') || folder.ends_with('\\') ? folder + name : folder + "\\" + name;
}

/// Shows a folder in both lists. When it cannot be read, they stay as they are.
void showFolder(const std::string& folder)
{
    const platform::FolderContents contents = platform::readFolder(folder);
    FrmAnzeigen.DirListPath = folder;
    FrmAnzeigen.FilListPath = folder;
    FrmAnzeigen.DirList.Clear();
    if (platform::folderAbove(folder) != platform::pathText(platform::resolve(folder)))
        FrmAnzeigen.DirList.AddItem(oneUp);
    for (const std::string& name : contents.folders)
        FrmAnzeigen.DirList.AddItem(name);
    FrmAnzeigen.FilList.Clear();
    for (const std::string& name : contents.files)
        FrmAnzeigen.FilList.AddItem(name);
}

/// A folder or a drive that is not to be read is nothing that the operator has to be told.
void browse(const std::string& folder)
{
    base::quietly<base::noSuchFolder, base::existsOrNoAccess>([&] { showFolder(folder); });
}

void goUp()
{
    browse(platform::folderAbove(FrmAnzeigen.DirListPath));
}

/// All three lists as they begin: the drive of the program, and its archives.
void showArchives()
{
    FrmAnzeigen.DrvList.Clear();
    for (const std::string& name : platform::machine().volumes.names())
        FrmAnzeigen.DrvList.AddItem(name);
    FrmAnzeigen.DrvList.ListIndex = FrmAnzeigen.DrvList.items.empty() ? -1 : 0;
    browse(archiveFolder());
}

void finish()
{
    showArchives();
    FrmAnzeigen.TxtNameDat.Text = "";
}

/// Cuts an extension from the name, and notes the format that it stands for.
void cutExtension(const char* capital, const char* small, std::uint16_t format)
{
    const std::string extension = base::right(FrmAnzeigen.ArhName, lengthOfExtension);
    if (extension != capital && extension != small) return;
    FrmAnzeigen.ArhSelExt = format;
    FrmAnzeigen.ArhName = base::left(FrmAnzeigen.ArhName, base::length(FrmAnzeigen.ArhName) - lengthOfExtension);
    FrmAnzeigen.TxtNameDat.Text = FrmAnzeigen.ArhName;
}

/// The name that is asked for is that in the box; the one that is used is that of the last key.
void writeArchive(std::uint16_t format)
{
    FrmAnzeigen.ArhFormat = format;
    if (base::trim(FrmAnzeigen.TxtNameDat.Text).empty()) {
        runstate::tell("Complectati NUMELE FISIERULUI ! ");
        FrmAnzeigen.TxtNameDat.SetFocus();
        return;
    }
    Mem();
    finish();
}

void deleteArchive()
{
    if (FrmAnzeigen.ArhSelExt != archiveAsText && FrmAnzeigen.ArhSelExt != archiveAsAdif) return;
    const std::string file = FrmAnzeigen.ArhName + (FrmAnzeigen.ArhSelExt == archiveAsText ? ".txt" : ".adi");
    if (!platform::isFileName(file)) throw base::RuntimeError(base::noSuchFile, file + " is not there");
    platform::deleteFile(inFolder(archiveFolder(), file));
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

void writeThreeBands()
{
    Modul1.Etapa = "A";
    PLog144();
    PLog432();
    PLog1296();
}

void writeContest()
{
    switch (Modul1.ConcId) {
        case 0:
            Modul1.Etapa = "A";
            return writeBandInHand();
        case 1:
        case 4:
        case 6:
            return PLog144();
        case 2:
        case 3:
        case 5:
        case 8:
            return writeThreeBands();
        case 100:
            writeThreeBands();
            return PLogGHz();
        case 7:
            return PLogYO2();
        default:
            return;
    }
}

}  // namespace

void MnuArhiva_Click()
{
    Anulat();
    OrdArhiva();
    FrmAnzeigen.OutMode = toArchive;
    FrmAnzeigen.EnterFlag = leadsToFile;
    hideOtherJobs();
    const bool bandByBand = Modul1.ConcId == 0;
    FrmAnzeigen.Frame10.Visible = bandByBand;
    FrmAnzeigen.FraArh.Visible = !bandByBand;
    showArchives();
}

void TxtNameDat_KeyPress(char32_t& KeyAscii)
{
    KeyAscii = base::upper(KeyAscii);
    FrmAnzeigen.ArhName = FrmAnzeigen.TxtNameDat.Text;
    cutExtension(".TXT", ".txt", archiveAsText);
    cutExtension(".ADI", ".adi", archiveAsAdif);
}

void DrvList_Click()
{
    browse(inFolder(FrmAnzeigen.DrvList.Text(), ""));
}

void DirList_Click()
{
    const std::string chosen = FrmAnzeigen.DirList.Text();
    if (chosen == oneUp) return goUp();
    browse(inFolder(FrmAnzeigen.DirListPath, chosen));
}

void DirList_KeyDown(int& KeyCode)
{
    if (KeyCode == platform::keyBackspace) goUp();
}

void FilList_Click()
{
    FrmAnzeigen.TxtNameDat.Text = FrmAnzeigen.FilList.Text();
}

void CmdMem_Click()
{
    writeArchive(archiveAsText);
}

void CmdArhivADI_Click()
{
    writeArchive(archiveAsAdif);
}

void CmdSterg_Click()
{
    if (FrmAnzeigen.TxtNameDat.Text == "") {
        runstate::tell("Un fisier fara nume nu poate fi sters !!  COMPLECTATI NUMELE FISIERULUI ");
        FrmAnzeigen.TxtNameDat.SetFocus();
        return;
    }
    const std::string question = "VRETI SA STERGETI FISIERUL " + FrmAnzeigen.TxtNameDat.Text.get() + " ?";
    if (runstate::ask(question, "STERGERE?", yesNoQuestionDefaultNo) != platform::buttonYes) return;
    base::quietly([] {
        deleteArchive();
        finish();
    });
}

void Mem()
{
    base::ResumeNext go;
    writeContest();
    go([] { Modul1.FileNo.close(); });
}

}  // namespace review
