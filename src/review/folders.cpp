#include "review/folders.h"

#include "base/runtime_error.h"
#include "platform/files.h"
#include "runstate/modul1.h"
#include "runstate/question.h"

namespace review {

namespace {

void makeMissing(const std::string& folder)
{
    base::ResumeNext go([&](const base::RuntimeError& error) {
        if (!platform::folderIsThere(folder)) base::reportSwallowed(error);
    });
    go([&] { platform::makeFolder(folder); });
    if (go.last() == base::existsOrNoAccess) return;
    runstate::tell("Folderul " + folder + " a fost creiat. Datele se inscriu in folderul nou creiat");
}

}  // namespace

std::string logFolder()
{
    return Modul1.AppDir + "\\Log";
}

std::string archiveFolder()
{
    return Modul1.AppDir + "\\Arhiva";
}

void OrdLog()
{
    makeMissing(Modul1.AppDir + "\\" + logFolderName);
}

void OrdArhiva()
{
    makeMissing(Modul1.AppDir + "\\" + archiveFolderName);
}

}  // namespace review
