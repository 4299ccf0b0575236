#include <gtest/gtest.h>

#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <stop_token>
#include <thread>

#include "base/runtime_error.h"
#include "desktop/command_line.h"
#include "desktop/help_file.h"
#include "desktop/key_state.h"
#include "desktop/machine_clock.h"
#include "desktop/message_boxes.h"
#include "desktop/notices.h"

namespace {

using desktop::PolledKeys;
using platform::PolledKey;

TEST(PolledKeysTest, AKeyIsPressedWhileItIsDown)
{
    PolledKeys keys;
    EXPECT_FALSE(keys.pressed(PolledKey::escape));
    keys.wentDown(PolledKey::escape);
    EXPECT_TRUE(keys.pressed(PolledKey::escape));
    EXPECT_TRUE(keys.pressed(PolledKey::escape));
    EXPECT_FALSE(keys.pressed(PolledKey::end));
    keys.wentUp(PolledKey::escape);
    EXPECT_FALSE(keys.pressed(PolledKey::escape));
}

TEST(PolledKeysTest, AShortPressIsNotMissed)
{
    PolledKeys keys;
    keys.wentDown(PolledKey::end);
    keys.wentUp(PolledKey::end);
    EXPECT_TRUE(keys.pressed(PolledKey::end));
    EXPECT_FALSE(keys.pressed(PolledKey::end));
}

TEST(PolledKeysTest, ForgettingLeavesKeysDownThatAreDown)
{
    PolledKeys keys;
    keys.wentDown(PolledKey::end);
    keys.wentUp(PolledKey::end);
    keys.wentDown(PolledKey::escape);
    keys.forget();
    EXPECT_FALSE(keys.pressed(PolledKey::end));
    EXPECT_TRUE(keys.pressed(PolledKey::escape));
    keys.allUp();
    EXPECT_FALSE(keys.pressed(PolledKey::escape));
}

TEST(CommandLineTest, WithoutArgumentsTheProgramStandsInItsOwnFolder)
{
    const QTemporaryDir own;
    const auto line = desktop::readCommandLine({"kelvo"}, own.path());
    EXPECT_EQ(line.complaint.toStdString(), "");
    EXPECT_EQ(line.programFolder, own.path().toStdString());
    EXPECT_EQ(line.words, "");
}

TEST(CommandLineTest, AFolderAndAWord)
{
    const QTemporaryDir folder;
    const auto line = desktop::readCommandLine({"kelvo", "--folder", folder.path() + "/", "auto"}, "/");
    EXPECT_EQ(line.programFolder, folder.path().toStdString());
    EXPECT_EQ(line.words, "auto");
    const auto words = desktop::readCommandLine({"kelvo", "AUTO", "x"}, folder.path());
    EXPECT_EQ(words.words, "AUTO x");
}

TEST(CommandLineTest, AFolderWithoutANameIsToldOf)
{
    EXPECT_FALSE(desktop::readCommandLine({"kelvo", "--folder"}, "/").complaint.isEmpty());
    EXPECT_FALSE(desktop::readCommandLine({"kelvo", "--folder", ""}, "/").complaint.isEmpty());
    EXPECT_EQ(desktop::readCommandLine({"kelvo", "--foldr", "/tmp"}, "/").complaint, "--foldr is no option of Kelvo");
    EXPECT_EQ(desktop::readCommandLine({"kelvo", "--folder=/tmp"}, "/").complaint,
              "--folder=/tmp is no option of Kelvo");
}

TEST(CommandLineTest, AFolderThatIsNotThereIsTakenAsItIs)
{
    const auto line = desktop::readCommandLine({"kelvo", "--folder", "/there/is/none"}, "/");
    EXPECT_TRUE(line.complaint.isEmpty());
    EXPECT_EQ(line.programFolder, "/there/is/none");
    EXPECT_TRUE(line.folderGiven);
    EXPECT_FALSE(desktop::readCommandLine({"kelvo"}, "/").folderGiven);
}

class FixedClock final : public platform::Clock {
 public:
    platform::LocalTime now() const override
    {
        using namespace std::chrono;
        return local_days{year{2026} / 11 / 15} + hours{9} + minutes{5} + seconds{7};
    }
    std::chrono::milliseconds timeOfDay() const override
    {
        return now() - std::chrono::floor<std::chrono::days>(now());
    }
    platform::MonotonicTime monotonic() const override { return {}; }
    void sleepUntil(platform::MonotonicTime) override {}
};

TEST(TimedNoticesTest, TheLastNoticeStandsBehindItsTime)
{
    const FixedClock clock;
    desktop::TimedNotices notices(clock);
    EXPECT_EQ(notices.last(), "");
    notices.notice("The disk is full");
    notices.notice("The port is gone");
    EXPECT_EQ(notices.last(), "09:05:07  The port is gone");
}

TEST(HelpFileTest, AMissingFileGivesANotice)
{
    const QTemporaryDir folder;
    const FixedClock clock;
    desktop::TimedNotices notices(clock);
    desktop::HelpFile help(folder.path().toStdString(), {}, notices);
    help.open(100);
    EXPECT_EQ(notices.last(), "09:05:07  The help file Sontrel.HLP is not there");
}

TEST(MachineClockTest, SleepingEndsAtTheDeadlineAndNotBefore)
{
    desktop::MachineClock clock;
    const platform::MonotonicTime deadline = clock.monotonic() + std::chrono::milliseconds(3);
    clock.sleepUntil(deadline);
    EXPECT_GE(clock.monotonic(), deadline);
    clock.sleepUntil(deadline);
}

TEST(MachineClockTest, EverySleepIsToldOf)
{
    int sleeps = 0;
    desktop::MachineClock clock({}, [&] { ++sleeps; });
    clock.sleepUntil(clock.monotonic());
    clock.sleepUntil(clock.monotonic() + std::chrono::milliseconds(1));
    EXPECT_EQ(sleeps, 2);
}

TEST(MachineClockTest, TheEndOfTheProgramEndsASleep)
{
    std::stop_source programStops;
    desktop::MachineClock clock(programStops.get_token());
    std::thread end([&] { programStops.request_stop(); });
    EXPECT_THROW(clock.sleepUntil(clock.monotonic() + std::chrono::hours(1)), base::ProgramEnd);
    end.join();
    EXPECT_THROW(clock.sleepUntil(clock.monotonic()), base::ProgramEnd);
}

TEST(MachineClockTest, TheTimeOfDayIsThatOfTheDate)
{
    const desktop::MachineClock clock;
    platform::LocalTime before;
    platform::LocalTime after;
    std::chrono::milliseconds time{};
    // Once more if midnight comes in between.
    do {
        before = clock.now();
        time = clock.timeOfDay();
        after = clock.now();
    } while (std::chrono::floor<std::chrono::days>(before) != std::chrono::floor<std::chrono::days>(after));
    const auto midnight = std::chrono::floor<std::chrono::days>(before);
    EXPECT_GE(midnight + time, before);
    EXPECT_LT(midnight + time, after + std::chrono::seconds(1));
}

class MessageBoxTest : public testing::Test {
 protected:
    std::unique_ptr<QMessageBox> box(int style)
    {
        std::unique_ptr<QMessageBox> made(desktop::makeMessageBox({"Text", "Title", style}, nullptr));
        made->show();
        return made;
    }
};

TEST_F(MessageBoxTest, StylesGiveButtonsAndIcons)
{
    const auto plain = box(0);
    EXPECT_EQ(plain->standardButtons(), QMessageBox::Ok);
    EXPECT_EQ(plain->icon(), QMessageBox::NoIcon);
    EXPECT_EQ(plain->text().toStdString(), "Text");
    const auto question = box(36);
    EXPECT_EQ(question->standardButtons(), QMessageBox::Yes | QMessageBox::No);
    EXPECT_EQ(question->icon(), QMessageBox::Question);
    EXPECT_EQ(question->standardButton(question->defaultButton()), QMessageBox::Yes);
    EXPECT_EQ(box(52)->icon(), QMessageBox::Warning);
    EXPECT_EQ(box(48)->standardButtons(), QMessageBox::Ok);
    const auto diskette = box(65);
    EXPECT_EQ(diskette->standardButtons(), QMessageBox::Ok | QMessageBox::Cancel);
    EXPECT_EQ(diskette->icon(), QMessageBox::Information);
    EXPECT_EQ(box(16)->icon(), QMessageBox::Critical);
    const auto careful = box(292);
    EXPECT_EQ(careful->standardButton(careful->defaultButton()), QMessageBox::No);
}

TEST_F(MessageBoxTest, EnterTakesTheDefaultAndEscTheWayOut)
{
    const auto question = box(36);
    QTest::keyClick(question.get(), Qt::Key_Return);
    EXPECT_EQ(desktop::answerOf(*question), platform::buttonYes);
    const auto careful = box(292);
    QTest::keyClick(careful.get(), Qt::Key_Return);
    EXPECT_EQ(desktop::answerOf(*careful), platform::buttonNo);
    const auto left = box(36);
    QTest::keyClick(left.get(), Qt::Key_Escape);
    EXPECT_EQ(desktop::answerOf(*left), platform::buttonNo);
    const auto cancelled = box(1);
    QTest::keyClick(cancelled.get(), Qt::Key_Escape);
    EXPECT_EQ(desktop::answerOf(*cancelled), platform::buttonCancel);
    const auto read = box(0);
    QTest::keyClick(read.get(), Qt::Key_Escape);
    EXPECT_EQ(desktop::answerOf(*read), platform::buttonOk);
}

TEST_F(MessageBoxTest, LettersAnswerAQuestion)
{
    const auto yes = box(292);
    QTest::keyClick(yes.get(), Qt::Key_Y);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !yes->isVisible(); }));
    EXPECT_EQ(desktop::answerOf(*yes), platform::buttonYes);
    const auto no = box(36);
    QTest::keyClick(no.get(), Qt::Key_N);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !no->isVisible(); }));
    EXPECT_EQ(desktop::answerOf(*no), platform::buttonNo);
}

TEST_F(MessageBoxTest, ArrowsMarkAnotherButton)
{
    const auto question = box(36);
    QApplication::setActiveWindow(question.get());
    ASSERT_TRUE(question->button(QMessageBox::Yes)->hasFocus());
    QTest::keyClick(question->button(QMessageBox::Yes), Qt::Key_Right);
    EXPECT_TRUE(question->button(QMessageBox::No)->hasFocus());
}

}  // namespace
