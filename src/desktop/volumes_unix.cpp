#include <QFile>
#include <QFileInfo>
#include <QStorageInfo>

#include "desktop/volumes.h"

namespace desktop {

namespace {

std::string folderOf(const QStorageInfo& volume)
{
    QString root = volume.rootPath();
    if (root.size() > 1 && root.endsWith(u'/')) root.chop(1);
    return root.toStdString();
}

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

std::optional<std::string> MountedVolumes::driveA() const
{
    return driveAAmong(mountedVolumes());
}

std::vector<std::string> MountedVolumes::names() const
{
    return namesOf(mountedVolumes(), folderOf(QStorageInfo(QString::fromStdString(programFolder_))));
}

}  // namespace desktop
