#include "desktop/help_file.h"

#include <QDesktopServices>
#include <QUrl>
#include <filesystem>

#include "platform/files.h"

namespace desktop {

HelpFile::HelpFile(const std::string& programFolder, platform::Notices& notices)
    : programFolder_(programFolder), notices_(notices)
{
}

void HelpFile::open(int context)
{
    const std::filesystem::path file = platform::resolve(programFolder_ + "\\Sontrel.HLP");
    std::error_code error;
    if (!std::filesystem::exists(file, error)) {
        notices_.notice("The help file Sontrel.HLP is not there");
        return;
    }
    QUrl place = QUrl::fromLocalFile(QString::fromStdString(platform::pathText(file)));
    place.setFragment(QString::number(context));
    QMetaObject::invokeMethod(
        this, [place] { QDesktopServices::openUrl(place); }, Qt::QueuedConnection);
}

}  // namespace desktop
