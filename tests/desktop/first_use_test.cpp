// The road from the folder on the command line to one that the program starts in, with an operator who answers.
#include "desktop/first_use.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QMessageBox>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTimer>
#include <deque>
#include <vector>

#include "desktop/desktop_program.h"
#include "storage/schema.h"

namespace {

using desktop::FirstUse;
using desktop::FolderLock;
using desktop::ReadyFolder;

/// Presses one button after the other, each in the box that is open then.
class Operator final : public QObject {
 public:
    explicit Operator(std::deque<QString> answers) : answers_(std::move(answers))
    {
        QObject::connect(&timer_, &QTimer::timeout, this, &Operator::answer);
        timer_.start(1);
    }
    ~Operator() override { EXPECT_TRUE(answers_.empty()) << answers_.front().toStdString() << " was not asked for"; }

    /// What the boxes said.
    std::vector<std::string> asked;

 private:
    void answer()
    {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        if (box == nullptr) return;
        asked.push_back(box->text().remove(QChar(u'\u200B')).toStdString());
        const QString wanted = answers_.empty() ? "Esc" : answers_.front();
        EXPECT_FALSE(answers_.empty()) << "a question without an answer: " << asked.back();
        if (!answers_.empty()) answers_.pop_front();
        if (wanted == "Esc") return box->reject();
        if (wanted == "Enter") return box->defaultButton()->click();
        for (QAbstractButton* button : box->buttons())
            if (button->text().remove('&') == wanted) return button->click();
        ADD_FAILURE() << "no button " << wanted.toStdString() << " under: " << asked.back();
        box->reject();
    }

    std::deque<QString> answers_;
    QTimer timer_;
};

class FirstUseTest : public testing::Test {
 protected:
    QString path(const QString& name) const { return folder_.filePath(name); }
    QString makeFolder(const QString& name) const
    {
        EXPECT_TRUE(QDir().mkpath(path(name)));
        return path(name);
    }
    QString makeStation(const QString& name) const
    {
        storage::makeMissingDatabases(makeFolder(name).toStdString());
        return path(name);
    }
    static bool hasDatabases(const QString& folder) { return desktop::missingDatabases(folder).isEmpty(); }

    desktop::CommandLine named(const QString& folder, const QString& word = {}) const
    {
        QStringList words = {"kelvo", "--folder", folder};
        if (!word.isEmpty()) words += word;
        return desktop::readCommandLine(words, folder_.path());
    }
    desktop::CommandLine standingIn(const QString& folder) const { return desktop::readCommandLine({"kelvo"}, folder); }

    /// Prepares a start while the operator gives these answers. What he is asked goes to `asked`.
    std::optional<ReadyFolder> prepare(const desktop::CommandLine& commandLine, std::deque<QString> answers = {})
    {
        Operator answering(std::move(answers));
        FirstUse firstUse(commandLine, path("home/Kelvo"), [this](const QString& from) {
            choosingFrom = from;
            return choice;
        });
        auto ready = firstUse.prepare();
        asked = answering.asked;
        whyNot = firstUse.whyNot();
        return ready;
    }

    std::vector<std::string> asked;
    QString choice;        ///< what the operator picks in the window for folders
    QString choosingFrom;  ///< where that began
    QString whyNot;

 private:
    QTemporaryDir folder_;
};

TEST_F(FirstUseTest, AStationInOrderStartsWithoutAWord)
{
    const QString station = makeStation("station");
    const auto ready = prepare(named(station));
    ASSERT_TRUE(ready.has_value());
    EXPECT_EQ(ready->folder, station.toStdString());
    EXPECT_EQ(ready->notice, "");
    EXPECT_TRUE(asked.empty());
}

TEST_F(FirstUseTest, AnEmptyFolderGetsItsDatabases)
{
    const QString folder = makeFolder("unpacked anew");
    const auto ready = prepare(standingIn(folder));
    ASSERT_TRUE(ready.has_value());
    EXPECT_TRUE(hasDatabases(folder));
    EXPECT_TRUE(asked.empty());
    EXPECT_EQ(ready->notice, "First start: empty databases were made in " + folder.toStdString());
}

TEST_F(FirstUseTest, AFolderThatIsNotThereIsMadeOnDemand)
{
    const QString folder = path("new/station");
    EXPECT_FALSE(prepare(named(folder), {"Quit"}).has_value());
    EXPECT_FALSE(QDir(folder).exists());
    const auto ready = prepare(named(folder), {"Enter"});
    ASSERT_TRUE(ready.has_value());
    EXPECT_TRUE(hasDatabases(folder));
    ASSERT_EQ(asked.size(), 1U);
    EXPECT_NE(asked[0].find("There is no folder\n" + folder.toStdString()), std::string::npos);
}

TEST_F(FirstUseTest, AFolderThatCannotBeMadeIsToldOf)
{
    EXPECT_FALSE(prepare(named("/proc/self/station"), {"Make it", "Quit"}).has_value());
    ASSERT_EQ(asked.size(), 2U);
    EXPECT_NE(asked[1].find("could not be made"), std::string::npos);
}

TEST_F(FirstUseTest, AFileIsNoFolder)
{
    const QString station = makeStation("station");
    choice = makeFolder("another one");
    const auto ready = prepare(named(station + "/LogKelvo.mdb"), {"Another folder…"});
    ASSERT_TRUE(ready.has_value());
    EXPECT_NE(asked.at(0).find("This is a file, not a folder"), std::string::npos);
    EXPECT_EQ(choosingFrom, station) << "the choice begins in the nearest folder";
    EXPECT_EQ(ready->folder, choice.toStdString());
    EXPECT_EQ(ready->notice, "First start: empty databases were made in " + ready->folder +
                                 ". Next time: kelvo --folder \"" + ready->folder + "\"");
}

TEST_F(FirstUseTest, AFolderThatCannotBeWrittenIsNoStart)
{
    EXPECT_FALSE(prepare(named("/proc/self"), {"Try again", "Esc"}).has_value());
    EXPECT_EQ(asked.size(), 2U);
    EXPECT_NE(whyNot.toStdString().find("Kelvo cannot write into the folder\n/proc/self"), std::string::npos);
}

TEST_F(FirstUseTest, WhereTheProgramCannotWriteTheHomeFolderIsOffered)
{
    const std::string home = path("home/Kelvo").toStdString();
    const auto ready = prepare(standingIn("/proc/self"), {"Enter"});
    ASSERT_TRUE(ready.has_value());
    EXPECT_EQ(ready->folder, home);
    EXPECT_TRUE(hasDatabases(path("home/Kelvo")));
    const auto again = prepare(standingIn("/proc/self"), {"Quit"});
    EXPECT_FALSE(again.has_value()) << "it is never taken without a word";
}

TEST_F(FirstUseTest, GivingUpTheChoiceLeadsBackToTheQuestion)
{
    choice = "";
    EXPECT_FALSE(prepare(named("/proc/self"), {"Another folder…", "Quit"}).has_value());
    EXPECT_EQ(asked.size(), 2U);
    EXPECT_EQ(asked[0], asked[1]);
}

TEST_F(FirstUseTest, OneMissingDatabaseIsAskedAbout)
{
    const QString station = makeStation("station");
    const auto without = [&] { ASSERT_TRUE(QFile::remove(station + "/LogKelvo.mdb")); };
    without();
    EXPECT_FALSE(prepare(named(station), {"Quit"}).has_value());
    EXPECT_FALSE(hasDatabases(station));
    EXPECT_NE(asked.at(0).find("LogKelvo.mdb  (the logged QSOs)"), std::string::npos);
    EXPECT_EQ(asked.at(0).find("DbsKelvo.mdb"), std::string::npos) << "this one is there";

    auto made = prepare(named(station), {"Make it empty"});
    ASSERT_TRUE(made.has_value());
    EXPECT_TRUE(hasDatabases(station));
    EXPECT_EQ(made->notice, "Made empty in " + station.toStdString() + ": LogKelvo.mdb");
    made.reset();

    without();
    const auto anyway = prepare(named(station), {"Start anyway"});
    ASSERT_TRUE(anyway.has_value());
    EXPECT_FALSE(hasDatabases(station)) << "the program is left to say so";
}

TEST_F(FirstUseTest, WhoStartsAnywayIsToldByTheProgram)
{
    const QString station = makeStation("station");
    ASSERT_TRUE(QFile::remove(station + "/LogKelvo.mdb"));
    auto ready = prepare(named(station), {"Start anyway"});
    ASSERT_TRUE(ready.has_value());
    desktop::DesktopProgram program({ready->folder, {}, {}});
    program.start(ready->notice);
    ASSERT_TRUE(program.waitUntilIdle());
    ASSERT_NE(program.box(), nullptr);
    EXPECT_EQ(program.box()->text().toStdString(), "Keine Verbindung zum Server !");
}

TEST_F(FirstUseTest, ADatabaseThatCannotBeWrittenIsNoStart)
{
    const QString station = makeStation("station");
    ASSERT_TRUE(QFile::remove(station + "/DbsKelvo.mdb"));
    makeFolder("station/DbsKelvo.mdb");
    EXPECT_FALSE(prepare(named(station), {"Esc"}).has_value());
    EXPECT_NE(asked.at(0).find("cannot be written:\n    DbsKelvo.mdb"), std::string::npos);
}

TEST_F(FirstUseTest, SetUpFilesThatCannotBeWrittenAreAskedAboutOnce)
{
    const QString station = makeStation("station");
    QFile settings(station + "/KelvoInit.dat");
    ASSERT_TRUE(settings.open(QIODevice::WriteOnly));
    settings.setPermissions(QFileDevice::ReadOwner);
    EXPECT_TRUE(prepare(named(station), {"Start anyway"}).has_value());
    ASSERT_EQ(asked.size(), 1U);
    EXPECT_NE(asked[0].find("    KelvoInit.dat"), std::string::npos);
}

TEST_F(FirstUseTest, TheSecondProgramIsKeptAwayUntilTheFirstHasEnded)
{
    const QString station = makeStation("station");
    auto first = prepare(named(station));
    ASSERT_TRUE(first.has_value());
    EXPECT_FALSE(prepare(named(station), {"Enter"}).has_value()) << "Enter quits";
    EXPECT_NE(asked.at(0).find("Kelvo already runs in the folder"), std::string::npos);
    EXPECT_NE(asked.at(0).find(std::to_string(QCoreApplication::applicationPid())), std::string::npos);

    choice = makeStation("other");
    const auto other = prepare(named(station), {"Another folder…"});
    ASSERT_TRUE(other.has_value());
    EXPECT_EQ(other->folder, choice.toStdString());

    first.reset();
    EXPECT_TRUE(prepare(named(station)).has_value());
    EXPECT_FALSE(QFile::exists(station + "/Kelvo.lock"));
}

TEST_F(FirstUseTest, AnotherComputersLockIsTakenOverOnDemand)
{
    const QString station = makeStation("station");
    QByteArray written;
    {
        const auto mine = prepare(named(station));
        QFile lock(station + "/Kelvo.lock");
        ASSERT_TRUE(lock.open(QIODevice::ReadOnly));
        written = lock.readAll();
    }
    QList<QByteArray> lines = written.split('\n');
    lines[2] = "shack2";
    lines[3] = "another-machine";
    QFile lock(station + "/Kelvo.lock");
    ASSERT_TRUE(lock.open(QIODevice::WriteOnly));
    lock.write(lines.join('\n'));
    lock.close();

    EXPECT_FALSE(prepare(named(station), {"Enter"}).has_value());
    EXPECT_NE(asked.at(0).find("computer shack2"), std::string::npos);
    EXPECT_TRUE(prepare(named(station), {"Start anyway"}).has_value());
}

TEST_F(FirstUseTest, NobodyIsAskedUnderAuto)
{
    const QString empty = makeFolder("empty");
    const auto ready = prepare(named(empty, "auto"));
    ASSERT_TRUE(ready.has_value());
    EXPECT_FALSE(hasDatabases(empty)) << "the folder is taken as it is";
    EXPECT_TRUE(prepare(named(path("none"), "AUTO")).has_value());
    EXPECT_FALSE(prepare(named(empty, "AUTO")).has_value()) << "one program has it already";
    EXPECT_FALSE(whyNot.isEmpty());
    EXPECT_TRUE(asked.empty());
}

TEST_F(FirstUseTest, TheNoticeStandsInTheWindowOfTheFirstStart)
{
    const QString folder = makeFolder("station");
    auto ready = prepare(named(folder));
    ASSERT_TRUE(ready.has_value());
    desktop::DesktopProgram program({ready->folder, {}, {}});
    program.start(ready->notice);
    ASSERT_TRUE(program.waitUntilIdle());
    EXPECT_EQ(program.box(), nullptr);
    EXPECT_EQ(program.picture().form, "FrmInit");
    EXPECT_NE(program.window().noticeLine().notice().toStdString().find(ready->notice), std::string::npos);
}

}  // namespace
