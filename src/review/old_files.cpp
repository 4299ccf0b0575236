#include "review/old_files.h"

#include <string>

#include "base/runtime_error.h"
#include "platform/files.h"
#include "runstate/modul1.h"
#include "screen/frm_anzeigen.h"

namespace review {

namespace {

struct OldFile {
    const char* behindCall;
    void (*verify)();
};

constexpr OldFile oldFiles[] = {
    {"144", Verif144}, {"432", Verif432},         {"1296", Verif1296},
    {"GHz", VerifGHz}, {"Maraton", VerifMaraton}, {"", VerifSumm},
};

void deleteOldFile()
{
    base::quietly<base::noSuchFile>([] { platform::deleteFile(FrmAnzeigen.VerifPath); });
}

}  // namespace

void Verif144()
{
    deleteOldFile();
}

void Verif432()
{
    deleteOldFile();
}

void Verif1296()
{
    deleteOldFile();
}

void VerifGHz()
{
    deleteOldFile();
}

void VerifMaraton()
{
    deleteOldFile();
}

void VerifSumm()
{
    deleteOldFile();
}

void deleteOldFiles()
{
    for (const OldFile& each : oldFiles) {
        FrmAnzeigen.VerifPath = Modul1.AppDir + "\\Log\\" + Modul1.MyCall + each.behindCall + ".txt";
        each.verify();
    }
}

}  // namespace review
