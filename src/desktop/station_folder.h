// The folder with the databases and the set-up files: what may keep the program from working in it.
#pragma once

#include <QString>
#include <QStringList>
#include <optional>

#include "desktop/folder_lock.h"

namespace desktop {

enum class Trouble {
    noFolder,             ///< nothing is there
    folderNotMade,        ///< it was to be made, and that failed
    aFile,                ///< something else than a folder is there
    pathTooLong,          ///< for the databases
    databasesElsewhere,   ///< the program would look for them somewhere else, where nothing is
    cannotWrite,          ///< into the folder
    diskFull,             ///< or nearly so
    inUse,                ///< another program on this computer has the folder in use
    inUseElsewhere,       ///< the same on another computer, or it was left behind by it
    databasesProtected,   ///< databases that cannot be written
    databasesMissing,     ///< some of the three, but not all
    databasesNotMade,     ///< they were to be made, and that failed
    setUpFilesProtected,  ///< set-up files that cannot be written
};

/// Why the program cannot work, and what with.
struct Obstacle {
    Trouble trouble = Trouble::noFolder;
    QString folder;
    QStringList files = {};                 ///< names, without the folder
    QString reason = {};                    ///< in the words of the system; or the other folder
    std::optional<LockHolder> holder = {};  ///< of a folder in use
};

/// Where the program looks for its databases when its folder is `folder`.
QString databaseFolderOf(const QString& folder);

/// What is wrong with the folder itself, nothing when files can be written into it.
std::optional<Obstacle> obstacleOfFolder(const QString& folder);

/// Names of the three databases that are not there.
QStringList missingDatabases(const QString& folder);

/// Names of the databases and of the set-up files that are there and cannot be written.
QStringList protectedDatabases(const QString& folder);
QStringList protectedSetUpFiles(const QString& folder);

/// Makes the databases that are not there, as kelvo-newdb does. What went wrong, nothing when all are there now.
std::optional<Obstacle> makeDatabases(const QString& folder);

}  // namespace desktop
