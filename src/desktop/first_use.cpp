#include "desktop/first_use.h"

#include <QAbstractButton>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>
#include <QPushButton>
#include <utility>

#include "base/text.h"
#include "storage/schema.h"

namespace desktop {

namespace {

bool unattended(const std::string& words)
{
    return base::upper(words) == "AUTO";
}

QString quoted(const QString& path)
{
    const QString native = QDir::toNativeSeparators(path);
    return native.contains(QLatin1Char(' ')) ? QLatin1Char('"') + native + QLatin1Char('"') : native;
}

bool areAll(const QStringList& databases)
{
    return databases.size() == static_cast<qsizetype>(storage::databaseSchemas().size());
}

/// The nearest folder that is there, to begin choosing at.
QString nearestFolder(const QString& path)
{
    QFileInfo place(path);
    while (!place.isDir() && place.absolutePath() != place.absoluteFilePath())
        place = QFileInfo(place.absolutePath());
    return place.absoluteFilePath();
}

}  // namespace

FirstUse::FirstUse(const CommandLine& commandLine, QString homeFolder, FolderChooser chooser)
    : words_(commandLine.words),
      homeFolder_(std::move(homeFolder)),
      chooser_(std::move(chooser)),
      folder_(QString::fromStdString(commandLine.programFolder))
{
    if (commandLine.folderGiven || QDir(homeFolder_) == QDir(folder_)) homeFolder_.clear();
}

std::optional<ReadyFolder> FirstUse::prepare()
{
    if (unattended(words_)) return withoutAsking();
    for (;;) {
        const std::optional<Obstacle> obstacle = nextObstacle();
        if (!obstacle) return ready();
        const Question question = questionAbout(*obstacle, homeFolder_);
        const Choice choice = askInBox(question, homeFolder_);
        whyNot_ = plainText(question);
        if (choice == Choice::quit) return std::nullopt;
        carryOut(choice, obstacle->trouble);
    }
}

/// The program itself ends at whatever it does not find.
std::optional<ReadyFolder> FirstUse::withoutAsking()
{
    const std::optional<Obstacle> obstacle = obstacleOfLock();
    if (!obstacle || !obstacle->holder) return ready();
    whyNot_ = plainText(questionAbout(*obstacle, {}));
    return std::nullopt;
}

std::optional<Obstacle> FirstUse::nextObstacle()
{
    if (failure_) return std::exchange(failure_, std::nullopt);
    if (auto obstacle = obstacleOfFolder(folder_)) return obstacle;
    if (auto obstacle = obstacleOfLock()) return obstacle;
    return obstacleOfFiles();
}

std::optional<Obstacle> FirstUse::obstacleOfLock()
{
    if (locked_) return std::nullopt;
    lock_ = std::make_unique<FolderLock>(databaseFolderOf(folder_));
    const FolderLock::Outcome outcome = lock_->take();
    locked_ = outcome == FolderLock::Outcome::taken;
    switch (outcome) {
        case FolderLock::Outcome::taken:
            return std::nullopt;
        case FolderLock::Outcome::heldByAnother:
            return Obstacle{lock_->holder().onThisComputer ? Trouble::inUse : Trouble::inUseElsewhere,
                            folder_,
                            {},
                            {},
                            lock_->holder()};
        case FolderLock::Outcome::notPossible:
            break;
    }
    return Obstacle{Trouble::cannotWrite, folder_, {}, QStringLiteral("Kelvo.lock cannot be made")};
}

std::optional<Obstacle> FirstUse::obstacleOfFiles()
{
    const QStringList guarded = protectedDatabases(folder_);
    if (!guarded.isEmpty()) return Obstacle{Trouble::databasesProtected, folder_, guarded};

    const QStringList missing = missingDatabases(folder_);
    const bool firstStart = areAll(missing);
    if (firstStart) makeMissing(missing);
    if (failure_) return std::exchange(failure_, std::nullopt);
    const bool asks = !missing.isEmpty() && !firstStart && !accepted_.contains(Trouble::databasesMissing);
    if (asks) return Obstacle{Trouble::databasesMissing, folder_, missing};

    const QStringList settings = protectedSetUpFiles(folder_);
    if (settings.isEmpty() || accepted_.contains(Trouble::setUpFilesProtected)) return std::nullopt;
    return Obstacle{Trouble::setUpFilesProtected, folder_, settings};
}

void FirstUse::carryOut(Choice choice, Trouble trouble)
{
    switch (choice) {
        case Choice::tryAgain:
        case Choice::quit:
            return;
        case Choice::otherFolder:
            return chooseFolder();
        case Choice::useHomeFolder:
            goTo(homeFolder_);
            // Offered once: where it does not help, Enter leads to another folder.
            homeFolder_.clear();
            return makeFolder(folder_);
        case Choice::makeFolder:
            return makeFolder(folder_);
        case Choice::makeEmptyDatabases:
            return makeMissing(missingDatabases(folder_));
        case Choice::startAnyway:
            accepted_.insert(trouble);
            return;
        case Choice::takeOver:
            locked_ = lock_->takeOver();
            return;
    }
}

void FirstUse::chooseFolder()
{
    const QString chosen = chooser_(nearestFolder(folder_));
    if (!chosen.isEmpty()) goTo(chosen);
}

void FirstUse::goTo(const QString& folder)
{
    locked_ = false;
    lock_.reset();
    folder_ = QDir::cleanPath(QFileInfo(folder).absoluteFilePath());
    chosen_ = true;
    accepted_.clear();
    made_.clear();
}

void FirstUse::makeFolder(const QString& folder)
{
    if (!QDir().mkpath(folder)) failure_ = Obstacle{Trouble::folderNotMade, folder};
}

void FirstUse::makeMissing(const QStringList& missing)
{
    failure_ = makeDatabases(folder_);
    if (failure_) return;
    made_ = areAll(missing) ? QStringLiteral("First start: empty databases were made in %1")
                            : QStringLiteral("Made empty in %1: ") + missing.join(QStringLiteral(", "));
    made_ = made_.arg(QDir::toNativeSeparators(databaseFolderOf(folder_)));
}

ReadyFolder FirstUse::ready()
{
    return {QDir::toNativeSeparators(folder_).toStdString(), std::move(lock_), notice()};
}

/// Nothing is kept of what was chosen: the set-up files in the folder are all that the program remembers of a station.
std::string FirstUse::notice() const
{
    const QString told = made_.isEmpty() && chosen_ ? QStringLiteral("The logs are in %1").arg(quoted(folder_)) : made_;
    if (!chosen_) return told.toStdString();
    return (told + QStringLiteral(". Next time: kelvo --folder ") + quoted(folder_)).toStdString();
}

Choice askInBox(const Question& question, const QString& homeFolder)
{
    QMessageBox box(QMessageBox::Warning, QStringLiteral("Kelvo"), question.text);
    box.setTextFormat(Qt::PlainText);
    std::vector<QAbstractButton*> buttons;
    for (const Choice choice : question.choices) {
        const auto role = choice == Choice::quit ? QMessageBox::RejectRole : QMessageBox::AcceptRole;
        QPushButton* button = box.addButton(captionOf(choice, homeFolder), role);
        if (buttons.empty()) box.setDefaultButton(button);
        if (choice == Choice::quit) box.setEscapeButton(button);
        buttons.push_back(button);
    }
    box.exec();
    for (std::size_t i = 0; i < buttons.size(); ++i)
        if (buttons[i] == box.clickedButton()) return question.choices[i];
    return Choice::quit;
}

QString chooseFolderInWindow(const QString& from)
{
    return QFileDialog::getExistingDirectory(nullptr, QStringLiteral("Kelvo: the folder with the logs"), from);
}

}  // namespace desktop
