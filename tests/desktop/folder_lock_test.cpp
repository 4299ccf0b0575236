// A folder in use: the second program finds out, and whatever a dead one left behind keeps nobody away.
#include "desktop/folder_lock.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QDateTime>
#include <QFile>
#include <QStringList>
#include <QTemporaryDir>

namespace {

using desktop::FolderLock;
using Outcome = FolderLock::Outcome;

/// Greater than the number of any process.
constexpr const char* noProcess = "99999999";

class FolderLockTest : public testing::Test {
 protected:
    QString file() const { return folder_.filePath("Kelvo.lock"); }

    /// What a program writes into the file: process, name, computer, its number, its start.
    QStringList linesOfALock() const
    {
        FolderLock lock(folder_.path());
        EXPECT_EQ(lock.take(), Outcome::taken);
        QFile written(file());
        EXPECT_TRUE(written.open(QIODevice::ReadOnly));
        return QString::fromUtf8(written.readAll()).split('\n');
    }
    void write(const QStringList& lines) const
    {
        QFile left(file());
        ASSERT_TRUE(left.open(QIODevice::WriteOnly | QIODevice::Truncate));
        left.write(lines.join('\n').toUtf8());
    }

    QStringList linesOfAnotherComputer() const
    {
        QStringList lines = linesOfALock();
        lines[2] = "shack2";
        lines[3] = "another-machine";
        return lines;
    }

    QTemporaryDir folder_;
};

TEST_F(FolderLockTest, TheSecondProgramFindsOutWhoHasTheFolder)
{
    FolderLock first(folder_.path());
    EXPECT_EQ(first.take(), Outcome::taken);
    FolderLock second(folder_.path());
    EXPECT_EQ(second.take(), Outcome::heldByAnother);
    EXPECT_EQ(second.holder().process, QCoreApplication::applicationPid());
    EXPECT_TRUE(second.holder().onThisComputer);
}

TEST_F(FolderLockTest, TheFileGoesWithTheProgram)
{
    {
        FolderLock lock(folder_.path());
        EXPECT_EQ(lock.take(), Outcome::taken);
        EXPECT_TRUE(QFile::exists(file()));
    }
    EXPECT_FALSE(QFile::exists(file()));
    FolderLock next(folder_.path());
    EXPECT_EQ(next.take(), Outcome::taken);
}

TEST_F(FolderLockTest, TheSecondProgramLeavesTheFileAlone)
{
    FolderLock first(folder_.path());
    EXPECT_EQ(first.take(), Outcome::taken);
    {
        FolderLock second(folder_.path());
        EXPECT_EQ(second.take(), Outcome::heldByAnother);
    }
    EXPECT_TRUE(QFile::exists(file()));
    FolderLock third(folder_.path());
    EXPECT_EQ(third.take(), Outcome::heldByAnother);
}

TEST_F(FolderLockTest, AKilledProgramKeepsNobodyAway)
{
    QStringList lines = linesOfALock();
    lines[0] = noProcess;
    write(lines);
    FolderLock next(folder_.path());
    EXPECT_EQ(next.take(), Outcome::taken);
}

TEST_F(FolderLockTest, NorDoesOneWhoseNumberAnotherProcessHasNow)
{
    // This very process is alive and bears the name, and does not hold the file.
    write(linesOfALock());
    FolderLock next(folder_.path());
    EXPECT_EQ(next.take(), Outcome::taken);
}

TEST_F(FolderLockTest, NorDoesOneFromBeforeAPowerCut)
{
    QStringList lines = linesOfALock();
    lines[4] = "another start of the computer";
    write(lines);
    FolderLock next(folder_.path());
    EXPECT_EQ(next.take(), Outcome::taken);
}

TEST_F(FolderLockTest, NorDoesAFileThatWasNeverWritten)
{
    write({});
    FolderLock next(folder_.path());
    EXPECT_EQ(next.take(), Outcome::taken);
}

TEST_F(FolderLockTest, WhatAnotherComputerLeftIsTakenOverOnlyOnDemand)
{
    write(linesOfAnotherComputer());
    FolderLock lock(folder_.path());
    EXPECT_EQ(lock.take(), Outcome::heldByAnother);
    EXPECT_FALSE(lock.holder().onThisComputer);
    EXPECT_EQ(lock.holder().computer.toStdString(), "shack2");
    EXPECT_TRUE(QFile::exists(file()));
    EXPECT_TRUE(lock.takeOver());
    FolderLock second(folder_.path());
    EXPECT_EQ(second.take(), Outcome::heldByAnother);
    EXPECT_TRUE(second.holder().onThisComputer);
}

TEST_F(FolderLockTest, NoContestIsSoLongThatALockIsForgotten)
{
    write(linesOfAnotherComputer());
    QFile old(file());
    ASSERT_TRUE(old.open(QIODevice::ReadWrite));
    ASSERT_TRUE(old.setFileTime(QDateTime::currentDateTime().addDays(-2), QFileDevice::FileModificationTime));
    old.close();
    FolderLock lock(folder_.path());
    EXPECT_EQ(lock.take(), Outcome::heldByAnother);
}

TEST_F(FolderLockTest, AProgramAtWorkOnAnotherComputerIsNotTakenOver)
{
    const QStringList lines = linesOfAnotherComputer();
    FolderLock atWork(folder_.path());
    EXPECT_EQ(atWork.take(), Outcome::taken);
    write(lines);
    FolderLock lock(folder_.path());
    EXPECT_EQ(lock.take(), Outcome::heldByAnother);
    EXPECT_FALSE(lock.holder().onThisComputer);
    EXPECT_FALSE(lock.takeOver());
}

TEST_F(FolderLockTest, WhereNoFileCanBeWrittenNoFolderIsTaken)
{
    FolderLock lock(folder_.path() + "/there is none");
    EXPECT_EQ(lock.take(), Outcome::notPossible);
}

}  // namespace
