// Messages keyed by the whole program on a real serial driver: what the lines did, and what the window did meanwhile.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QTest>
#include <algorithm>
#include <csignal>
#include <fstream>

#include "desktop/termination_signals.h"
#include "desktop_station.h"
#include "keyed_line.h"
#include "serial_adapter.h"
#include "support/morse_model.h"

namespace {

using test::heardOn;
using test::SerialAdapter;
using test_page::DesktopStation;
using testing::AllOf;
using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

constexpr int port = 97;
constexpr int wpm = 30;
constexpr std::chrono::seconds patience(30);

/// Messages of F1 to F7, and the port.
void writeMessages(const std::string& folder, int number)
{
    std::ofstream file(folder + "/KELVOTextCw.dat", std::ios::binary);
    for (const char* message : {"CQ DE #1", "#2 599", "PARIS PARIS PARIS PARIS PARIS", "#3", "TU", "0", "73"})
        file << message << "\r\n";
    file << ' ' << number << " \r\n";
}

class KeyingTest : public testing::Test {
 protected:
    /// Opens the entry form in CW, with the adapter on `port` and the messages going to port `number`.
    void start(int number = port)
    {
        station_ = std::make_unique<DesktopStation>([this, number](const std::string& folder) {
            adapter_.linkAs(port, folder);
            writeMessages(folder, number);
        });
        station_->click("OpbCluj");
        station_->click("OpbTest");
        station_->click("OpbCwJ");
        station_->click("TxtMyCall");
        station_->type("yo2xyz");
        station_->click("txtMyQRA");
        station_->type("kn05os");
        station_->click("TxtMyCall");
        station_->key(Qt::Key_Q, Qt::AltModifier);
        station_->click("Cmd144");
        station_->click("CmdCW");
        ASSERT_EQ(station_->focus(), "txtIndic");
    }

    /// Sends a message to its end.
    void send(Qt::Key key)
    {
        strike(key);
        EXPECT_TRUE(station_->program().waitUntilIdle(patience));
    }
    /// Down and up, without waiting for what comes of it.
    void strike(Qt::Key key) { QTest::keyClick(&station_->program().form(), key); }

    /// Waits until the key line went down so many times since the last look.
    static void waitForMarks(long count)
    {
        EXPECT_TRUE(waitFor([&] { return marks() >= count; }));
    }
    static long marks()
    {
        const auto record = SerialAdapter::record();
        return std::count_if(record.begin(), record.end(), [](const auto& event) { return event.what == "DTR on"; });
    }

    template <typename Condition>
    static bool waitFor(Condition&& condition)
    {
        return QTest::qWaitFor(condition, static_cast<int>(std::chrono::milliseconds(patience).count()));
    }

    /// Both lines, as they are now.
    static void expectLinesDown()
    {
        std::string dtr = "DTR off";
        std::string rts = "RTS off";
        for (const auto& event : SerialAdapter::record()) {
            if (event.what.starts_with("DTR")) dtr = event.what;
            if (event.what.starts_with("RTS")) rts = event.what;
        }
        EXPECT_EQ(dtr, "DTR off");
        EXPECT_EQ(rts, "RTS off");
    }
    std::string progress() { return station_->sees("TxtCwCurent") ? station_->text("TxtCwCurent") : ""; }

    SerialAdapter adapter_;
    std::unique_ptr<DesktopStation> station_;
};

TEST_F(KeyingTest, NothingIsTouchedBeforeTheFirstMessage)
{
    start();
    EXPECT_THAT(SerialAdapter::happened(), IsEmpty());
}

TEST_F(KeyingTest, EachFunctionKeySendsItsMessage)
{
    start();
    station_->type("yo5aaa");
    const std::pair<Qt::Key, const char*> messages[] = {
        {Qt::Key_F1, "CQ DE YO2XYZ"}, {Qt::Key_F2, "YO5AAA 599"}, {Qt::Key_F4, "TT1"},
        {Qt::Key_F5, "TU"},           {Qt::Key_F6, "0"},          {Qt::Key_F7, "73"},
    };
    for (const auto& [key, text] : messages) {
        send(key);
        EXPECT_EQ(heardOn(SerialAdapter::record(), wpm), text);
        SerialAdapter::happened();
    }
}

TEST_F(KeyingTest, TheTransmitterIsOnAroundAllElements)
{
    start();
    send(Qt::Key_F5);
    const std::vector<std::string> mark = {"DTR on", "DTR off"};
    std::vector<std::string> expected = {"open", "DTR on", "RTS on", "DTR off", "RTS off", "RTS on"};
    for (int i = 0; i < 4; ++i)
        expected.insert(expected.end(), mark.begin(), mark.end());
    expected.emplace_back("RTS off");
    EXPECT_EQ(SerialAdapter::happened(), expected) << "T is one element, U three";
    send(Qt::Key_F5);
    expected.erase(expected.begin(), expected.begin() + 5);
    EXPECT_EQ(SerialAdapter::happened(), expected) << "the device stays open between messages";
}

TEST_F(KeyingTest, TheWindowShowsHowFarTheMessageIs)
{
    start();
    strike(Qt::Key_F3);
    std::vector<std::string> seen;
    EXPECT_TRUE(waitFor([&] {
        const std::string now = progress();
        if (!now.empty() && (seen.empty() || seen.back() != now)) seen.push_back(now);
        return seen.size() == 3;
    }));
    for (const std::string& part : seen)
        EXPECT_TRUE(std::string("PARIS PARIS").starts_with(part)) << part;
    strike(Qt::Key_Escape);
    station_->settle();
}

TEST_F(KeyingTest, EndAndEscapeStopWithinOneElement)
{
    start();
    for (const Qt::Key key : {Qt::Key_End, Qt::Key_Escape}) {
        SerialAdapter::happened();
        strike(Qt::Key_F3);
        waitForMarks(4);
        const long before = marks();
        strike(key);
        const long after = marks();
        station_->settle();
        // The one that was being sent, and whatever went out while the key was on its way.
        EXPECT_LE(marks(), after + 1) << "pressed after " << before;
        expectLinesDown();
        EXPECT_EQ(station_->box(), nullptr);
    }
}

TEST_F(KeyingTest, AWindowThatIsClosedEndsTheMessageBeforeItAsks)
{
    start();
    strike(Qt::Key_F3);
    waitForMarks(3);
    station_->program().window().close();
    ASSERT_TRUE(waitFor([&] { return station_->box() != nullptr; }));
    EXPECT_EQ(station_->box()->windowTitle().toStdString(), "EXIT");
    expectLinesDown();
    const long before = marks();
    station_->answer(QMessageBox::No);
    EXPECT_EQ(marks(), before);
    SerialAdapter::happened();
    send(Qt::Key_F5);
    EXPECT_EQ(heardOn(SerialAdapter::record(), wpm), "TU");
}

TEST_F(KeyingTest, ASignalToEndDoesTheSame)
{
    start();
    const desktop::TerminationSignals signalsToEnd([this] { station_->program().askToEnd(); });
    strike(Qt::Key_F3);
    waitForMarks(3);
    std::raise(SIGTERM);
    ASSERT_TRUE(waitFor([&] { return station_->box() != nullptr; }));
    expectLinesDown();
    station_->box()->button(QMessageBox::Yes)->click();
    EXPECT_TRUE(waitFor([&] { return station_->program().ended(); }));
    expectLinesDown();
}

TEST_F(KeyingTest, AProgramThatIsTakenAwayDropsItsLinesAtOnce)
{
    start();
    strike(Qt::Key_F3);
    waitForMarks(3);
    const long before = marks();
    station_->takeAway();
    EXPECT_LE(marks(), before + 1);
    expectLinesDown();
    EXPECT_TRUE(adapter_.hungUp());
}

TEST_F(KeyingTest, AnAdapterThatIsPulledOutEndsTheMessageOnly)
{
    start();
    strike(Qt::Key_F3);
    waitForMarks(3);
    SerialAdapter::trouble("unplugged");
    station_->settle();
    EXPECT_EQ(station_->box(), nullptr);
    EXPECT_EQ(station_->picture().form, "FrmQSO");
    EXPECT_THAT(station_->picture().notice, HasSubstr("went away"));
    EXPECT_TRUE(adapter_.hungUp());
    station_->type("yo5aaa");
    EXPECT_EQ(station_->text("txtIndic"), "YO5AAA");
    SerialAdapter::putRight();
    SerialAdapter::happened();
    send(Qt::Key_F5);
    EXPECT_EQ(heardOn(SerialAdapter::record(), wpm), "TU");
}

TEST_F(KeyingTest, AMissingPortBringsTheSetUpPageBackAndTheNoticeSaysWhy)
{
    start(port + 1);
    strike(Qt::Key_F5);
    ASSERT_TRUE(waitFor([&] { return station_->box() != nullptr; }));
    EXPECT_EQ(station_->box()->text().toStdString(), "PortComm inexistent !");
    station_->answer(QMessageBox::Ok);
    EXPECT_EQ(station_->picture().form, "FrmInit");
    EXPECT_THAT(station_->picture().notice, HasSubstr("port 98 is not there"));
    EXPECT_THAT(SerialAdapter::happened(), IsEmpty());
}

}  // namespace
