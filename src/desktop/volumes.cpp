#include "desktop/volumes.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStorageInfo>
#include <algorithm>

#ifdef _WIN32
#include <windows.h>
#endif

namespace desktop {

namespace {

std::string folderOf(const QStorageInfo& volume)
{
    QString root = volume.rootPath();
    if (root.size() > 1 && root.endsWith(u'/')) root.chop(1);
    return root.toStdString();
}

#ifdef _WIN32

bool isRemovable(const QStorageInfo& volume)
{
    return GetDriveTypeW(reinterpret_cast<LPCWSTR>(QDir::toNativeSeparators(volume.rootPath()).utf16())) ==
           DRIVE_REMOVABLE;
}

#else

/// The kernel says it of the whole disk: of sdb, not of its partition sdb1.
bool diskIsRemovable(const QString& device)
{
    QString disk = QFileInfo(device).fileName();
    while (!disk.isEmpty() && !QFileInfo::exists("/sys/block/" + disk))
        disk.chop(1);
    if (disk.isEmpty()) return false;
    QFile removable("/sys/block/" + disk + "/removable");
    return removable.open(QIODevice::ReadOnly) && removable.readAll().trimmed() == "1";
}

bool isRemovable(const QStorageInfo& volume)
{
    const QString root = volume.rootPath();
    return root.startsWith("/media/") || root.startsWith("/run/media/") ||
           diskIsRemovable(QString::fromUtf8(volume.device()));
}

#endif

/// Those that keep files: not what the system holds in its memory.
std::vector<Volume> mountedVolumes()
{
    std::vector<Volume> volumes;
    for (const QStorageInfo& each : QStorageInfo::mountedVolumes()) {
        const bool inMemory = each.fileSystemType().endsWith("tmpfs");
        if (!each.isValid() || !each.isReady() || each.isReadOnly() || inMemory) continue;
        volumes.push_back({folderOf(each), each.isRoot(), isRemovable(each)});
    }
    return volumes;
}

}  // namespace

std::optional<std::string> driveAAmong(const std::vector<Volume>& volumes)
{
    const auto found = std::find_if(volumes.begin(), volumes.end(),
                                    [](const Volume& volume) { return volume.removable && !volume.ofSystem; });
    if (found == volumes.end()) return std::nullopt;
    return found->folder;
}

std::vector<std::string> namesOf(const std::vector<Volume>& volumes, const std::string& own)
{
    std::vector<std::string> names{own};
    for (const Volume& volume : volumes)
        if (volume.folder != own) names.push_back(volume.folder);
    return names;
}

std::optional<std::string> MountedVolumes::driveA() const
{
    return driveAAmong(mountedVolumes());
}

std::vector<std::string> MountedVolumes::names() const
{
    return namesOf(mountedVolumes(), folderOf(QStorageInfo(QString::fromStdString(programFolder_))));
}

}  // namespace desktop
