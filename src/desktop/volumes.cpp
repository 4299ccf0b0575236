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
QList<QStorageInfo> volumes()
{
    QList<QStorageInfo> ready;
    for (const QStorageInfo& volume : QStorageInfo::mountedVolumes()) {
        const bool inMemory = volume.fileSystemType().endsWith("tmpfs");
        if (volume.isValid() && volume.isReady() && !volume.isReadOnly() && !inMemory) ready.append(volume);
    }
    return ready;
}

/// A system that runs from a stick does not offer itself.
bool canBeDriveA(const QStorageInfo& volume)
{
    return !volume.isRoot() && isRemovable(volume);
}

}  // namespace

std::optional<std::string> MountedVolumes::driveA() const
{
    const QList<QStorageInfo> all = volumes();
    const auto found = std::find_if(all.begin(), all.end(), canBeDriveA);
    if (found == all.end()) return std::nullopt;
    return folderOf(*found);
}

std::vector<std::string> MountedVolumes::names() const
{
    const std::string own = folderOf(QStorageInfo(QString::fromStdString(programFolder_)));
    std::vector<std::string> names{own};
    for (const QStorageInfo& volume : volumes())
        if (folderOf(volume) != own) names.push_back(folderOf(volume));
    return names;
}

}  // namespace desktop
