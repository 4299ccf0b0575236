#include "desktop/station_folder.h"

#include <QDir>
#include <QFileInfo>
#include <QStorageInfo>
#include <QTemporaryFile>
#include <filesystem>
#include <string>

#include "base/runtime_error.h"
#include "platform/files.h"
#include "runstate/start_up.h"
#include "storage/schema.h"

namespace desktop {

namespace {

// The longest path of a folder that leaves room for the names in it.
#ifdef Q_OS_WIN
/// In characters: Windows takes 260 in all, and the name of a file for the organisers in LOG may need 50 of them.
constexpr qsizetype longestFolder = 200;
qsizetype lengthOf(const QString& folder)
{
    return folder.size();
}
#else
/// In bytes: SQLite takes 512; the longest name in the folder is that of a journal of a database in the making.
constexpr qsizetype longestFolder = 470;
qsizetype lengthOf(const QString& folder)
{
    return folder.toUtf8().size();
}
#endif

/// Bytes that a few QSOs and their journal take.
constexpr qsizetype roomToBegin = 262144;

/// Where the program finds a file of this name, in any spelling.
QString placeOf(const std::string& folder, const std::string& name)
{
    return QString::fromStdString(platform::pathText(platform::resolve(folder + "\\" + name)));
}

std::string databaseFolder(const QString& folder)
{
    return runstate::appDirOf(folder.toStdString());
}

bool cannotBeWritten(const QString& place)
{
    const QFileInfo file(place);
    return file.exists() && !(file.isFile() && file.isWritable());
}

QString journalOf(const QString& database)
{
    return database + QStringLiteral("-journal");
}

/// Writes a file that nobody sees and that is gone with this call. Nothing when that went well.
std::optional<Obstacle> writeForTrial(const QString& folder)
{
    QTemporaryFile trial(folder + QStringLiteral("/Kelvo-XXXXXX.tmp"));
    const QByteArray bytes(roomToBegin, '\0');
    if (trial.open() && trial.write(bytes) == bytes.size() && trial.flush()) return std::nullopt;
    const bool opened = trial.isOpen();
    const bool full = opened && QStorageInfo(folder).bytesAvailable() < roomToBegin;
    return Obstacle{full ? Trouble::diskFull : Trouble::cannotWrite, folder, {}, trial.errorString()};
}

}  // namespace

QString databaseFolderOf(const QString& folder)
{
    return QString::fromStdString(platform::pathText(platform::resolve(databaseFolder(folder))));
}

std::optional<Obstacle> obstacleOfFolder(const QString& folder)
{
    const QFileInfo place(folder);
    if (!place.exists()) return Obstacle{Trouble::noFolder, folder};
    if (!place.isDir()) return Obstacle{Trouble::aFile, folder};
    if (lengthOf(folder) > longestFolder) return Obstacle{Trouble::pathTooLong, folder};
    const QString databases = databaseFolderOf(folder);
    if (!QFileInfo(databases).isDir()) return Obstacle{Trouble::databasesElsewhere, folder, {}, databases};
    if (auto obstacle = writeForTrial(databases)) return obstacle;
    if (QDir(databases) == QDir(folder)) return std::nullopt;
    return writeForTrial(folder);
}

QStringList missingDatabases(const QString& folder)
{
    QStringList missing;
    for (const storage::DatabaseSchema& database : storage::databaseSchemas()) {
        const std::string name(database.fileName);
        const QFileInfo file(placeOf(databaseFolder(folder), name));
        // A link that leads nowhere is in the way all the same.
        if (!file.exists() && !file.isSymLink()) missing += QString::fromStdString(name);
    }
    return missing;
}

QStringList protectedDatabases(const QString& folder)
{
    QStringList names;
    for (const storage::DatabaseSchema& database : storage::databaseSchemas()) {
        const QString place = placeOf(databaseFolder(folder), std::string(database.fileName));
        // A journal may be left from a program of somebody else.
        for (const QString& file : {place, journalOf(place)})
            if (cannotBeWritten(file)) names += QFileInfo(file).fileName();
    }
    return names;
}

QStringList protectedSetUpFiles(const QString& folder)
{
    QStringList names;
    for (const char* name : {"KelvoInit.dat", "KELVOTextCw.dat"}) {
        const QString place = placeOf(folder.toStdString(), name);
        const QFileInfo file(place);
        // One that its owner has protected stays as it is, whoever starts the program.
        const bool isProtected = file.exists() && !file.permission(QFileDevice::WriteOwner);
        if (isProtected || cannotBeWritten(place)) names += file.fileName();
    }
    return names;
}

std::optional<Obstacle> makeDatabases(const QString& folder)
{
    const auto failed = [&](const std::exception& error) {
        return Obstacle{Trouble::databasesNotMade, folder, {}, QString::fromUtf8(error.what())};
    };
    try {
        storage::makeMissingDatabases(platform::resolve(databaseFolder(folder)));
        return std::nullopt;
    } catch (const base::RuntimeError& error) {
        return failed(error);
    } catch (const std::filesystem::filesystem_error& error) {
        return failed(error);
    }
}

}  // namespace desktop
