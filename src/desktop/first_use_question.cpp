#include "desktop/first_use_question.h"

#include <QDir>
#include <QStringList>
#include <algorithm>
#include <array>
#include <optional>

namespace desktop {

namespace {

using enum Choice;

constexpr std::size_t mostChoices = 5;

struct Row {
    Trouble trouble;
    const char* text;  ///< %1 the folder, %2 the particulars
    std::array<std::optional<Choice>, mostChoices> choices;
    bool homeHelps = false;  ///< the folder itself is the trouble
};

constexpr Row rows[] = {
    {Trouble::noFolder,
     "There is no folder\n%1\n\nKelvo keeps its logs and settings in it. Shall it be made?",
     {makeFolder, otherFolder, quit}},
    {Trouble::folderNotMade,
     "The folder could not be made:\n%1\n\nChoose a place where you may make one, or put that right and try again.",
     {otherFolder, tryAgain, quit},
     true},
    {Trouble::aFile,
     "This is a file, not a folder:\n%1\n\nKelvo keeps its logs and settings in a folder. Choose one.",
     {otherFolder, quit},
     true},
    {Trouble::pathTooLong,
     "The path of this folder is too long for the databases:\n%1\n\nChoose one with a shorter path.",
     {otherFolder, quit},
     true},
    {Trouble::databasesElsewhere,
     "The databases cannot be found in a folder of this name:\n%1\n\nKelvo leaves out what stands in front of the last "
     "\"]\" of a path, and would look for them in\n%2\nwhich is not there. Choose a folder without brackets and "
     "backslashes in its name.",
     {otherFolder, quit},
     true},
    {Trouble::cannotWrite,
     "Kelvo cannot write into the folder\n%1\n(%2)\n\nNo QSO could be logged. Choose a folder of your own, or see that "
     "you may write into this one and try again.",
     {otherFolder, tryAgain, quit},
     true},
    {Trouble::diskFull,
     "The disk is full that holds the folder\n%1\n\nNo QSO could be logged. Delete something there and try again, or "
     "choose a folder on another disk.",
     {tryAgain, otherFolder, quit}},
    {Trouble::inUse,
     "Kelvo already runs in the folder\n%1\n%2\n\nOne log takes one program: go on in the window that is open, or "
     "choose another folder.",
     {quit, tryAgain, otherFolder}},
    {Trouble::inUseElsewhere,
     "On another computer Kelvo runs in the folder\n%1\n%2, or did not end there as it should.\n\nStart here only if "
     "it does not run there any more: two programs in one log mix up its codes.",
     {quit, takeOver, tryAgain, otherFolder}},
    {Trouble::databasesProtected,
     "In the folder\n%1\nthese files cannot be written:\n%2\n\nNo QSO could be logged. They are write-protected, or "
     "belong to somebody else. Put that right and try again, or choose another folder.",
     {tryAgain, otherFolder, quit},
     true},
    {Trouble::databasesMissing,
     "In the folder\n%1\nthere are databases of Kelvo, but not this:\n%2\n\nWas it moved or renamed? Put it back and "
     "try again. Or let it be made empty; what is there stays as it is. Started anyway, Kelvo reports an error and may "
     "log nothing.",
     {tryAgain, makeEmptyDatabases, startAnyway, otherFolder, quit}},
    {Trouble::databasesNotMade,
     "The databases could not be made in the folder\n%1\n(%2)\n\nChoose another folder, or put that right and try "
     "again.",
     {otherFolder, tryAgain, quit},
     true},
    {Trouble::setUpFilesProtected,
     "In the folder\n%1\nthese files cannot be written:\n%2\n\nQSOs can be logged, but what you fill in on the first "
     "page is not kept for the next start.",
     {startAnyway, tryAgain, otherFolder, quit}},
};

constexpr QChar breakHere = u'\u200B';

/// A path as the system writes it, that may be broken into lines behind every folder.
QString shown(const QString& path)
{
    QString text = QDir::toNativeSeparators(path);
    return text.replace(QDir::separator(), QDir::separator() + QString(breakHere));
}

/// A file, and what is lost with it.
QString withContents(const QString& file)
{
    if (file == QLatin1String("LogKelvo.mdb")) return file + QStringLiteral("  (the logged QSOs)");
    if (file == QLatin1String("DbsKelvo.mdb")) return file + QStringLiteral("  (the locator memory)");
    return file;
}

QString listed(const QStringList& files)
{
    QStringList lines;
    for (const QString& file : files)
        lines += QStringLiteral("    ") + withContents(file);
    return lines.join(QLatin1Char('\n'));
}

QString named(const LockHolder& holder)
{
    const QString process = QStringLiteral("process %1").arg(holder.process);
    if (!holder.onThisComputer) return QStringLiteral("computer %1, %2").arg(holder.computer, process);
    return holder.process == 0 ? QString() : QStringLiteral("(%1)").arg(process);
}

QString particulars(const Obstacle& obstacle)
{
    if (obstacle.holder) return named(*obstacle.holder);
    if (!obstacle.files.isEmpty()) return listed(obstacle.files);
    return obstacle.trouble == Trouble::databasesElsewhere ? shown(obstacle.reason) : obstacle.reason;
}

QString inWords(const char* text, const Obstacle& obstacle)
{
    const QString words = QString::fromLatin1(text);
    const QString folder = shown(obstacle.folder);
    return words.contains(QLatin1String("%2")) ? words.arg(folder, particulars(obstacle)) : words.arg(folder);
}

}  // namespace

Question questionAbout(const Obstacle& obstacle, const QString& homeFolder)
{
    const Row& row = *std::find_if(std::begin(rows), std::end(rows),
                                   [&](const Row& each) { return each.trouble == obstacle.trouble; });
    Question question{inWords(row.text, obstacle), {}};
    if (row.homeHelps && !homeFolder.isEmpty()) question.choices.push_back(useHomeFolder);
    for (const std::optional<Choice> choice : row.choices)
        if (choice) question.choices.push_back(*choice);
    return question;
}

QString plainText(const Question& question)
{
    QString text = question.text;
    return text.remove(breakHere);
}

QString captionOf(Choice choice, const QString& homeFolder)
{
    switch (choice) {
        case tryAgain:
            return QStringLiteral("&Try again");
        case otherFolder:
            return QStringLiteral("&Another folder…");
        case useHomeFolder:
            return QStringLiteral("&Use %1").arg(QDir::toNativeSeparators(homeFolder));
        case makeFolder:
            return QStringLiteral("&Make it");
        case makeEmptyDatabases:
            return QStringLiteral("Make it &empty");
        case startAnyway:
        case takeOver:
            return QStringLiteral("&Start anyway");
        case quit:
            return QStringLiteral("&Quit");
    }
    return {};
}

}  // namespace desktop
