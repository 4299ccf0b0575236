// Long work at the foot of the window: seen when it takes its time, with sensible numbers, and gone when it is over.
#include "desktop/progress_watch.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <QElapsedTimer>
#include <QTest>
#include <algorithm>
#include <chrono>
#include <filesystem>
#include <fstream>
#include <thread>

#include "desktop_station.h"
#include "screen/frm_anzeigen.h"
#include "screen/frm_init.h"
#include "support/station.h"

namespace {

using namespace std::chrono_literals;
using desktop::progressToShow;
using platform::WorkSeen;
using test_page::DesktopStation;

std::string shown(std::chrono::milliseconds busy, const std::optional<WorkSeen>& work)
{
    const auto progress = progressToShow(busy, work);
    return progress ? progress->text.toStdString() : "nothing";
}

TEST(ProgressToShowTest, ShortWorkIsNotShown)
{
    EXPECT_EQ(shown(0ms, WorkSeen{"Export", 1, 300}), "nothing");
    EXPECT_EQ(shown(399ms, WorkSeen{"Export", 299, 300}), "nothing");
    EXPECT_EQ(shown(799ms, std::nullopt), "nothing");
}

TEST(ProgressToShowTest, LongWorkIsShownWithItsNumbers)
{
    EXPECT_EQ(shown(400ms, WorkSeen{"Export", 12000, 30000}), "Export 12,000 of 30,000");
    EXPECT_DOUBLE_EQ(progressToShow(1s, WorkSeen{"Export", 12000, 30000})->share.value(), 0.4);
    EXPECT_EQ(shown(1s, WorkSeen{"Recount", 12000, 0}), "Recount 12,000");
    EXPECT_EQ(shown(1s, WorkSeen{"Emptying the log", 0, 0}), "Emptying the log …");
    EXPECT_FALSE(progressToShow(1s, WorkSeen{"Recount", 12000, 0})->share.has_value());
}

TEST(ProgressToShowTest, WorkWithoutAWordIsShownAsSuchAndLater)
{
    EXPECT_EQ(shown(800ms, std::nullopt), "Working …");
    EXPECT_EQ(shown(1h, WorkSeen{"", 0, 0}), "nothing") << "what has a sign of its own";
}

/// Remembers what the line showed each time it was painted.
class Shown final : public QObject {
 public:
    explicit Shown(desktop::NoticeLine& line) : line_(line) { line.installEventFilter(this); }

    bool eventFilter(QObject* /*watched*/, QEvent* event) override
    {
        if (event->type() != QEvent::Paint) return false;
        const auto& progress = line_.progress();
        if (progress && (all.empty() || all.back() != *progress)) all.push_back(*progress);
        ends = !progress;
        return false;
    }

    std::vector<desktop::ProgressShown> all;
    bool ends = true;  ///< nothing is shown now

 private:
    desktop::NoticeLine& line_;
};

/// A log of 4,000 QSOs on the review form, written to a pipe that is read as slowly as a bad disk takes it.
class SlowExportTest : public testing::Test {
 protected:
    static constexpr int rows = 4000;

    SlowExportTest()
        : station_([](const std::string& folder) {
              test::fillLog(folder, "Uus144a", rows);
              std::filesystem::create_directory(folder + "/Arhiva");
              EXPECT_EQ(::mkfifo((folder + "/Arhiva/SLOW.txt.new").c_str(), 0600), 0);
          }),
          shown_(station_.program().window().noticeLine())
    {
        for (screen::Control* control :
             {static_cast<screen::Control*>(&FrmInit.OpBFloareademina), static_cast<screen::Control*>(&FrmInit.OpbTest),
              static_cast<screen::Control*>(&FrmInit.mnuLOG), static_cast<screen::Control*>(&FrmAnzeigen.MnuArhiva)}) {
            station_.program().post(app::ControlClicked{control});
            station_.settle();
            while (station_.box() != nullptr)
                station_.answer(QMessageBox::Ok);
        }
        station_.click("TxtNameDat");
        station_.type("slow");
        station_.key(Qt::Key_Return);
    }

    /// Writes the archive while the reader takes it slowly, with keys typed meanwhile.
    void exportSlowly(const std::string& keys)
    {
        std::thread reader([pipe = station_.folder() + "/Arhiva/SLOW.txt.new", this] {
            std::ifstream bytes(pipe, std::ios::binary);
            std::string line;
            while (std::getline(bytes, line)) {
                ++linesRead_;
                if (linesRead_ % 100 == 0) std::this_thread::sleep_for(50ms);
            }
        });
        station_.program().post(app::ControlClicked{&FrmAnzeigen.CmdMem});
        EXPECT_TRUE(QTest::qWaitFor([this] { return !shown_.all.empty(); }, 30000)) << "nothing is shown";
        station_.program().post(app::FocusAsked{&FrmAnzeigen.TxtNameDat});
        QTest::keyClicks(&station_.program().form(), QString::fromStdString(keys));
        station_.settle();
        reader.join();
    }

    DesktopStation station_;
    Shown shown_;
    int linesRead_ = 0;
};

TEST_F(SlowExportTest, ShowsHowFarItHasComeAndVanishes)
{
    exportSlowly("ab");
    EXPECT_TRUE(QTest::qWaitFor([this] { return shown_.ends; }));
    double before = 0;
    for (const desktop::ProgressShown& progress : shown_.all) {
        const std::string text = progress.text.toStdString();
        // On a slow computer the way to the first row and the end of the file are long work too, without numbers.
        if (text == "Working …" || text == "Writing to the disk …") continue;
        EXPECT_TRUE(text.starts_with("Archive ") && text.ends_with(" of 4,000")) << text;
        EXPECT_GE(progress.share.value(), before) << "it never goes back";
        EXPECT_LE(progress.share.value(), 1.0);
        before = progress.share.value();
    }
    EXPECT_GT(before, 0);
    EXPECT_EQ(linesRead_, rows) << "every row went out";
    EXPECT_EQ(station_.text("TxtNameDat"), "AB") << "keys typed meanwhile are handled behind it";
}

TEST(ProgressWatchTest, TheQsosOfAContestAreNotShown)
{
    DesktopStation station;
    const Shown shown(station.program().window().noticeLine());
    station.click("OpbCluj");
    station.click("OpbTest");
    station.key(Qt::Key_Q, Qt::AltModifier);
    station.click("Cmd144");
    station.click("CmdCW");
    QElapsedTimer clock;
    qint64 longest = 0;
    for (const std::string call : {"ha5a", "ha5b", "ha5c", "ha5d", "ha5e", "ha5f", "ha5g", "ha5h"}) {
        station.type(call);
        station.key(Qt::Key_Tab);
        station.type("012");
        station.type("kn16aa");
        clock.start();
        station.key(Qt::Key_Return);
        longest = std::max(longest, clock.elapsed());
        ASSERT_EQ(station.text("txtIndic"), "") << call << " is logged";
    }
    // A disk that stops in the middle is something to show.
    const bool allShort = std::chrono::milliseconds(longest) < 300ms;
    EXPECT_TRUE(shown.all.empty() || !allShort) << shown.all.front().text.toStdString();
}

TEST(ProgressWatchTest, ADatabaseThatAnotherProgramHoldsIsSaid)
{
    DesktopStation station;
    const Shown shown(station.program().window().noticeLine());
    station.program().post(app::ControlClicked{&FrmInit.OpBFloareademina});
    station.settle();
    while (station.box() != nullptr)
        station.answer(QMessageBox::Ok);
    test::PlainLog other(station.folder() + "/LogKelvo.mdb");
    other.execute("BEGIN EXCLUSIVE");
    station.program().post(app::ControlClicked{&FrmInit.mnuLOG});
    station.program().post(app::ControlClicked{&FrmAnzeigen.mnuLogAnzeigen});
    station.program().post(app::ControlClicked{&FrmAnzeigen.OpB144a});
    EXPECT_TRUE(QTest::qWaitFor([&] { return !shown.all.empty(); }, 30000));
    other.execute("COMMIT");
    station.settle();
    EXPECT_TRUE(QTest::qWaitFor([&] { return shown.ends; }));
    ASSERT_FALSE(shown.all.empty());
    EXPECT_EQ(shown.all[0].text.toStdString(), "Waiting for the disk: another program holds the database …");
}

}  // namespace
