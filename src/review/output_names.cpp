#include "review/output_names.h"

#include "base/number.h"
#include "base/runtime_error.h"
#include "base/text.h"
#include "entry/log_table.h"
#include "platform/civil_time.h"
#include "platform/machine.h"
#include "review/output_modes.h"
#include "runstate/contest_codes.h"
#include "runstate/modul1.h"
#include "screen/frm_anzeigen.h"

namespace review {

namespace {

constexpr const char* driveA = "A:";

bool microwaves(std::int32_t band)
{
    return band == entry::bandGHz || band > entry::highestNamedBand;
}

std::string bandIn(const OutputName& name)
{
    if (microwaves(name.band)) return "GHz";
    return name.contest == runstate::maratonContest ? "Maraton" : base::toText(name.band);
}

std::string inLogFolder(const OutputName& name, const std::string& file)
{
    return name.folder + "\\Log\\" + base::trim(name.call) + file + " " + name.concShort + name.year;
}

}  // namespace

std::string outputPath(const OutputName& name)
{
    const std::string extension = name.outFormat == asEdi && !microwaves(name.band) ? ".edi" : ".txt";
    if (name.outMode == toDrive) return driveA + base::trim(name.call) + bandIn(name) + extension;
    if (name.outMode == toFolder) return inLogFolder(name, bandIn(name)) + extension;
    if (name.outMode == toArchive)
        return name.folder + "\\Arhiva\\" + base::trim(name.arhName) +
               (name.arhFormat == archiveAsAdif ? ".adi" : ".txt");
    return {};
}

std::string summaryPath(const OutputName& name)
{
    if (name.outMode == toDrive) return driveA + base::trim(name.call) + ".txt";
    if (name.outMode == toFolder) return inLogFolder(name, "") + ".txt";
    return {};
}

OutputName presentName()
{
    return {.outMode = FrmAnzeigen.OutMode,
            .outFormat = FrmAnzeigen.OutFormat,
            .arhFormat = FrmAnzeigen.ArhFormat,
            .contest = Modul1.ConcId,
            .band = Modul1.BandCur,
            .folder = Modul1.AppDir,
            .call = Modul1.MyCall,
            .concShort = Modul1.ConcShort,
            .year = base::right(yearOfClock(), 2),
            .arhName = FrmAnzeigen.ArhName};
}

std::string onThisMachine(const std::string& path)
{
    if (!path.starts_with(driveA)) return path;
    const auto drive = platform::machine().volumes.driveA();
    if (!drive) throw base::RuntimeError(base::noSuchFolder, "There is no drive A:");
    return *drive + "\\" + path.substr(std::string(driveA).size());
}

std::string yearOfClock()
{
    return base::mid(platform::longDate(platform::machine().clock.now()), 7, 4);
}

}  // namespace review
