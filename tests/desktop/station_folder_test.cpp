// What may be wrong with the folder of the logs, and the databases of a first start.
#include "desktop/station_folder.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <algorithm>
#include <vector>

#include "desktop/first_use_question.h"
#include "storage/schema.h"

namespace {

using desktop::Choice;
using desktop::Obstacle;
using desktop::Trouble;

class StationFolderTest : public testing::Test {
 protected:
    QString path(const QString& name = {}) const { return name.isEmpty() ? folder_.path() : folder_.filePath(name); }
    QString makeFolder(const QString& name) const
    {
        EXPECT_TRUE(QDir().mkpath(path(name)));
        return path(name);
    }
    void makeFile(const QString& name) const { EXPECT_TRUE(QFile(path(name)).open(QIODevice::WriteOnly)); }

    static void expectTrouble(const std::optional<Obstacle>& obstacle, Trouble trouble)
    {
        ASSERT_TRUE(obstacle.has_value());
        EXPECT_EQ(obstacle->trouble, trouble) << obstacle->reason.toStdString();
    }

    QTemporaryDir folder_;
};

TEST_F(StationFolderTest, AFolderThatFilesCanBeWrittenIntoWillDo)
{
    EXPECT_FALSE(desktop::obstacleOfFolder(path()).has_value());
    EXPECT_TRUE(QDir(path()).isEmpty(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot)) << "nothing stays behind";
}

TEST_F(StationFolderTest, BlanksAndLettersOfAllLanguagesWillDoInItsName)
{
    const QString folder = makeFolder(QString::fromUtf8("Stație de câmp YO2 ✓ 東京"));
    EXPECT_FALSE(desktop::obstacleOfFolder(folder).has_value());
    EXPECT_FALSE(desktop::makeDatabases(folder).has_value());
    EXPECT_TRUE(desktop::missingDatabases(folder).isEmpty());
    EXPECT_TRUE(QFile::exists(folder + "/LogKelvo.mdb"));
}

TEST_F(StationFolderTest, NoFolderAndAFileAreToldApart)
{
    makeFile("file");
    expectTrouble(desktop::obstacleOfFolder(path("none")), Trouble::noFolder);
    expectTrouble(desktop::obstacleOfFolder(path("file")), Trouble::aFile);
}

TEST_F(StationFolderTest, APathThatTheDatabasesDoNotTakeIsTooLong)
{
    QString name = "long";
    while (path(name).size() <= 470)
        name += "/and so on, folder in folder";
    const QString tooLong = makeFolder(name);
    expectTrouble(desktop::obstacleOfFolder(tooLong), Trouble::pathTooLong);

    const QString longest = makeFolder(name.left(name.size() - (path(name).size() - 470)));
    EXPECT_EQ(longest.size(), 470);
    EXPECT_FALSE(desktop::obstacleOfFolder(longest).has_value());
    EXPECT_FALSE(desktop::makeDatabases(longest).has_value()) << "the longest one is not too long";
}

TEST_F(StationFolderTest, ABracketInThePathLeadsElsewhere)
{
    const auto obstacle = desktop::obstacleOfFolder(makeFolder("[contest] logs"));
    expectTrouble(obstacle, Trouble::databasesElsewhere);
    EXPECT_EQ(obstacle->reason.toStdString(), " logs");
}

TEST_F(StationFolderTest, AFolderThatTakesNoFilesIsToldOf)
{
    // Nobody may make files here, whoever he is.
    const auto obstacle = desktop::obstacleOfFolder("/proc/self");
    expectTrouble(obstacle, Trouble::cannotWrite);
    EXPECT_FALSE(obstacle->reason.isEmpty());
}

TEST_F(StationFolderTest, MissingDatabasesAreFoundInAnySpelling)
{
    EXPECT_EQ(desktop::missingDatabases(path()), QStringList({"LogKelvo.mdb", "DbsKelvo.mdb", "Kelvo.mdb"}));
    makeFile("LOGKELVO.MDB");
    makeFile("dbskelvo.mdb");
    EXPECT_EQ(desktop::missingDatabases(path()), QStringList({"Kelvo.mdb"}));
}

TEST_F(StationFolderTest, DatabasesAreMadeBesideThoseThatAreThere)
{
    makeFile("DbsKelvo.mdb");
    EXPECT_FALSE(desktop::makeDatabases(path()).has_value());
    EXPECT_TRUE(desktop::missingDatabases(path()).isEmpty());
    EXPECT_EQ(QFileInfo(path("DbsKelvo.mdb")).size(), 0) << "what was there stays as it was";
    EXPECT_GT(QFileInfo(path("LogKelvo.mdb")).size(), 0);
}

TEST_F(StationFolderTest, DatabasesThatCannotBeMadeAreToldOf)
{
    const auto obstacle = desktop::makeDatabases("/proc/self");
    expectTrouble(obstacle, Trouble::databasesNotMade);
    EXPECT_TRUE(obstacle->reason.contains("LogKelvo.mdb")) << obstacle->reason.toStdString();
    expectTrouble(desktop::makeDatabases(path("none")), Trouble::databasesNotMade);
}

TEST_F(StationFolderTest, WhatCannotBeWrittenIsNamed)
{
    storage::makeMissingDatabases(path().toStdString());
    EXPECT_TRUE(desktop::protectedDatabases(path()).isEmpty());
    EXPECT_TRUE(desktop::protectedSetUpFiles(path()).isEmpty());

    // Something that nobody can write, whoever he is.
    QFile::remove(path("DbsKelvo.mdb"));
    makeFolder("dbskelvo.mdb");
    makeFolder("LogKelvo.mdb-journal");
    EXPECT_EQ(desktop::protectedDatabases(path()), QStringList({"LogKelvo.mdb-journal", "dbskelvo.mdb"}));

    makeFile("kelvoinit.dat");
    makeFile("KELVOTextCw.dat");
    EXPECT_TRUE(desktop::protectedSetUpFiles(path()).isEmpty());
    QFile::setPermissions(path("kelvoinit.dat"), QFileDevice::ReadOwner);
    EXPECT_EQ(desktop::protectedSetUpFiles(path()), QStringList({"kelvoinit.dat"}));
}

constexpr Trouble troubles[] = {
    Trouble::noFolder,
    Trouble::folderNotMade,
    Trouble::aFile,
    Trouble::pathTooLong,
    Trouble::databasesElsewhere,
    Trouble::cannotWrite,
    Trouble::diskFull,
    Trouble::inUse,
    Trouble::inUseElsewhere,
    Trouble::databasesProtected,
    Trouble::databasesMissing,
    Trouble::databasesNotMade,
    Trouble::setUpFilesProtected,
};

bool offers(const desktop::Question& question, Choice choice)
{
    return std::find(question.choices.begin(), question.choices.end(), choice) != question.choices.end();
}

TEST(FirstUseQuestionTest, EveryTroubleNamesTheFolderAndLetsTheOperatorOut)
{
    for (const Trouble trouble : troubles) {
        const auto question = desktop::questionAbout({trouble, "/home/yo2xyz/log"}, "/home/yo2xyz/Kelvo");
        const std::string text = desktop::plainText(question).toStdString();
        EXPECT_NE(text.find("/home/yo2xyz/log"), std::string::npos) << text;
        EXPECT_EQ(text.find('%'), std::string::npos) << text;
        EXPECT_TRUE(offers(question, Choice::quit)) << text;
        EXPECT_TRUE(offers(question, Choice::otherFolder)) << text;
        for (const Choice choice : question.choices)
            EXPECT_FALSE(desktop::captionOf(choice, "/home/yo2xyz/Kelvo").isEmpty());
    }
}

TEST(FirstUseQuestionTest, TheHomeFolderComesFirstWhereTheFolderIsTheTrouble)
{
    const QStringList files = {"LogKelvo.mdb"};
    for (const Trouble trouble : {Trouble::cannotWrite, Trouble::databasesProtected, Trouble::databasesNotMade}) {
        EXPECT_EQ(desktop::questionAbout({trouble, "/opt", files}, "/home/a/Kelvo").choices[0], Choice::useHomeFolder);
        EXPECT_FALSE(offers(desktop::questionAbout({trouble, "/opt", files}, {}), Choice::useHomeFolder));
    }
    for (const Trouble trouble : {Trouble::noFolder, Trouble::diskFull, Trouble::inUse, Trouble::databasesMissing})
        EXPECT_FALSE(offers(desktop::questionAbout({trouble, "/opt", files}, "/home/a/Kelvo"), Choice::useHomeFolder));
}

TEST(FirstUseQuestionTest, ParticularsAreNamed)
{
    const auto textOf = [](const Obstacle& obstacle) {
        return desktop::plainText(desktop::questionAbout(obstacle, {})).toStdString();
    };
    EXPECT_NE(textOf({Trouble::databasesMissing, "/log", {"LogKelvo.mdb", "Kelvo.mdb"}})
                  .find("    LogKelvo.mdb  (the logged QSOs)\n    Kelvo.mdb\n"),
              std::string::npos);
    EXPECT_NE(textOf({Trouble::cannotWrite, "/log", {}, "Read-only file system"}).find("(Read-only file system)"),
              std::string::npos);
    EXPECT_NE(textOf({Trouble::inUse, "/log", {}, {}, desktop::LockHolder{4711, "shack", true}}).find("(process 4711)"),
              std::string::npos);
    EXPECT_NE(textOf({Trouble::inUseElsewhere, "/log", {}, {}, desktop::LockHolder{4711, "shack2", false}})
                  .find("computer shack2, process 4711"),
              std::string::npos);
}

TEST(FirstUseQuestionTest, WhatCanHarmIsNeverTakenByEnterAlone)
{
    for (const Trouble trouble : {Trouble::inUse, Trouble::inUseElsewhere, Trouble::databasesMissing}) {
        const Choice first = desktop::questionAbout({trouble, "/log"}, "/home/a/Kelvo").choices[0];
        EXPECT_TRUE(first == Choice::quit || first == Choice::tryAgain);
    }
}

}  // namespace
