// From the folder on the command line to a folder that the program can work in: a first start makes the databases, a
// folder in trouble is told of, and the operator chooses what to do. All that is over before the program starts.
#pragma once

#include <QString>
#include <functional>
#include <memory>
#include <optional>
#include <set>
#include <string>

#include "desktop/command_line.h"
#include "desktop/first_use_question.h"
#include "desktop/folder_lock.h"
#include "desktop/station_folder.h"

namespace desktop {

/// A folder to start in.
struct ReadyFolder {
    std::string folder;                ///< as CommandLine has it
    std::unique_ptr<FolderLock> lock;  ///< keeps other programs away as long as it lives
    std::string notice;                ///< what the operator should know of it, empty when there is nothing
};

class FirstUse {
 public:
    /// Lets the operator choose a folder, beginning at one; empty when none was chosen.
    using FolderChooser = std::function<QString(const QString& from)>;

    /// `homeFolder` is offered where the program's own folder will not do, and no other one was named.
    FirstUse(const CommandLine& commandLine, QString homeFolder, FolderChooser chooser);

    /// Asks until a folder is ready. Nothing when the operator quits. With the word AUTO nobody is there to ask: the
    /// folder is taken as it is; nothing when another program has it in use.
    std::optional<ReadyFolder> prepare();

    /// Why no folder is ready: what was asked last.
    const QString& whyNot() const { return whyNot_; }

 private:
    std::optional<ReadyFolder> withoutAsking();
    std::optional<Obstacle> nextObstacle();
    std::optional<Obstacle> obstacleOfLock();
    std::optional<Obstacle> obstacleOfFiles();
    void carryOut(Choice choice, Trouble trouble);
    void chooseFolder();
    void makeFolder(const QString& folder);
    void makeMissing(const QStringList& missing);
    void goTo(const QString& folder);
    ReadyFolder ready();
    std::string notice() const;

    std::string words_;
    QString homeFolder_;
    FolderChooser chooser_;
    QString folder_;
    bool chosen_ = false;              ///< the folder is another one than that of the command line
    std::set<Trouble> accepted_;       ///< the operator starts in spite of it
    std::optional<Obstacle> failure_;  ///< of what the operator asked for
    std::unique_ptr<FolderLock> lock_;
    bool locked_ = false;
    QString made_;  ///< databases that were made, in words
    QString whyNot_;
};

/// Asks the question in a box of its own. `homeFolder` as in questionAbout().
Choice askInBox(const Question& question, const QString& homeFolder);

/// The chooser of the toolkit.
QString chooseFolderInWindow(const QString& from);

}  // namespace desktop
