#include "desktop/serial_port.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <chrono>
#include <csignal>
#include <exception>
#include <limits>

#include "base/runtime_error.h"
#include "serial_adapter.h"
#include "support/error_of.h"

namespace {

using base::existsOrNoAccess;
using base::noSuchPort;
using test::errorOf;
using test::SerialAdapter;
using test::TemporaryFolder;
using testing::AllOf;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

/// Far from any port that a computer has of its own.
constexpr int port = 97;

class SerialPortTest : public testing::Test {
 protected:
    SerialPortTest() { adapter.linkAs(port, folder.path()); }

    std::string whyNot(int number)
    {
        try {
            serial.open(number);
        } catch (const base::RuntimeError& error) {
            EXPECT_EQ(error.number(), noSuchPort);
            EXPECT_FALSE(serial.isOpen());
            return error.what();
        }
        return "it opens";
    }

    /// Keys one dot, as a message would.
    void sendDot()
    {
        serial.open(port);
        serial.setDtr(false);
        serial.setRts(true);
        serial.setDtr(true);
        serial.setDtr(false);
        serial.setRts(false);
        serial.close();
    }

    SerialAdapter adapter;
    TemporaryFolder folder;
    desktop::SerialLines serial{folder.path().string()};
};

TEST_F(SerialPortTest, NothingIsTouchedBeforeTheFirstMessage)
{
    EXPECT_FALSE(serial.isOpen());
    serial.close();
    EXPECT_THAT(adapter.happened(), IsEmpty());
}

TEST_F(SerialPortTest, OpeningDropsBothLinesAtOnce)
{
    serial.open(port);
    EXPECT_TRUE(serial.isOpen());
    EXPECT_THAT(adapter.happened(), ElementsAre("open", "DTR on", "RTS on", "DTR off", "RTS off"));
}

TEST_F(SerialPortTest, TheTransmitterIsOnAroundTheKey)
{
    serial.open(port);
    adapter.happened();
    serial.setRts(true);
    serial.setDtr(true);
    serial.setDtr(false);
    serial.setRts(false);
    EXPECT_THAT(adapter.happened(), ElementsAre("RTS on", "DTR on", "DTR off", "RTS off"));
    serial.close();
    EXPECT_FALSE(serial.isOpen());
    EXPECT_THAT(adapter.happened(), IsEmpty());
}

TEST_F(SerialPortTest, ClosingDropsTheKeyAndThenTheTransmitter)
{
    serial.open(port);
    serial.setRts(true);
    serial.setDtr(true);
    adapter.happened();
    serial.close();
    EXPECT_THAT(adapter.happened(), ElementsAre("DTR off", "RTS off"));
}

TEST_F(SerialPortTest, TheDeviceStaysOpenBetweenMessages)
{
    sendDot();
    EXPECT_FALSE(adapter.hungUp());
    adapter.happened();
    sendDot();
    EXPECT_THAT(adapter.happened(), ElementsAre("RTS on", "DTR on", "DTR off", "RTS off"));
}

TEST_F(SerialPortTest, OpeningInTheMiddleOfAMessageBeginsAFreshOne)
{
    serial.open(port);
    serial.setRts(true);
    serial.setDtr(true);
    adapter.happened();
    serial.open(port);
    EXPECT_TRUE(serial.isOpen());
    EXPECT_THAT(adapter.happened(), ElementsAre("DTR off", "RTS off"));
}

TEST_F(SerialPortTest, TheEndOfTheProgramGivesTheDeviceBackWithItsLinesDown)
{
    {
        desktop::SerialLines other(folder.path().string());
        other.open(port);
        other.setRts(true);
        other.setDtr(true);
        adapter.happened();
    }
    EXPECT_THAT(adapter.happened(), ElementsAre("DTR off", "RTS off", "close"));
    EXPECT_TRUE(adapter.hungUp());
}

TEST_F(SerialPortTest, AnotherNumberGivesTheOldDeviceBack)
{
    SerialAdapter second;
    second.linkAs(port + 1, folder.path());
    sendDot();
    adapter.happened();
    serial.open(port + 1);
    EXPECT_TRUE(adapter.hungUp());
    EXPECT_FALSE(second.hungUp());
    EXPECT_THAT(adapter.happened(), ElementsAre("close", "open", "DTR on", "RTS on", "DTR off", "RTS off"));
}

TEST_F(SerialPortTest, ANumberThatNoPortHas)
{
    EXPECT_THAT(whyNot(0), HasSubstr("no serial port 0"));
    EXPECT_THAT(whyNot(-1), HasSubstr("no serial port -1"));
    for (const int number : {4321, 32767, std::numeric_limits<int>::max()})
        EXPECT_THAT(whyNot(number), AllOf(HasSubstr("port " + std::to_string(number) + " is not there"),
                                          HasSubstr("make a link COM" + std::to_string(number) +
                                                    " to its device beside LogKelvo.mdb")));
    EXPECT_EQ(errorOf([&] { serial.open(std::numeric_limits<int>::min()); }), noSuchPort);
}

TEST_F(SerialPortTest, ALinkThatLeadsNowhereIsNotThere)
{
    std::filesystem::create_symlink("/dev/ttyNone7", folder.file("COM98"));
    EXPECT_THAT(whyNot(98), HasSubstr("is not there"));
}

TEST_F(SerialPortTest, ALinkToNoSerialDeviceHasNoHardware)
{
    test::writeFile(folder.file("COM98"), "");
    std::filesystem::create_symlink("/dev/null", folder.file("COM99"));
    EXPECT_THAT(whyNot(98), HasSubstr("no hardware"));
    EXPECT_THAT(whyNot(99), HasSubstr("no hardware"));
}

TEST_F(SerialPortTest, ABusyDeviceIsToldOf)
{
    adapter.trouble("busy");
    EXPECT_THAT(whyNot(port), HasSubstr("busy"));
    EXPECT_THAT(whyNot(port), HasSubstr("COM97"));
}

TEST_F(SerialPortTest, ADeviceThatAnotherProgramHoldsIsBusy)
{
    desktop::SerialLines other(folder.path().string());
    other.open(port);
    EXPECT_THAT(whyNot(port), HasSubstr("busy"));
}

TEST_F(SerialPortTest, MissingRightsNameTheGroupThatHasThem)
{
    adapter.trouble("denied");
    EXPECT_THAT(whyNot(port), HasSubstr("dialout"));
}

TEST_F(SerialPortTest, ADeviceThatDoesNotAnswerForItsLinesHasNoHardware)
{
    adapter.trouble("no hardware");
    EXPECT_THAT(whyNot(port), HasSubstr("no hardware"));
    EXPECT_TRUE(adapter.hungUp());
}

TEST_F(SerialPortTest, APortThatWasRefusedMayBeThereTheNextTime)
{
    adapter.trouble("busy");
    EXPECT_THAT(whyNot(port), HasSubstr("busy"));
    adapter.putRight();
    EXPECT_EQ(whyNot(port), "it opens");
}

TEST_F(SerialPortTest, LinesCannotBeSetWithoutAPort)
{
    EXPECT_EQ(errorOf([&] { serial.setDtr(true); }), existsOrNoAccess);
    sendDot();
    adapter.happened();
    EXPECT_EQ(errorOf([&] { serial.setRts(true); }), existsOrNoAccess);
    EXPECT_THAT(adapter.happened(), IsEmpty());
}

TEST_F(SerialPortTest, AnAdapterPulledInTheMiddleOfAMessage)
{
    serial.open(port);
    serial.setRts(true);
    adapter.trouble("unplugged");
    EXPECT_EQ(errorOf([&] { serial.setDtr(true); }), existsOrNoAccess);
    EXPECT_FALSE(serial.isOpen());
    EXPECT_TRUE(adapter.hungUp());
    serial.close();
    EXPECT_NE(whyNot(port), "it opens");
    adapter.putRight();
    sendDot();
    EXPECT_FALSE(serial.isOpen());
}

TEST_F(SerialPortTest, ALineThatDoesNotAnswerLeavesTheOtherOneDown)
{
    serial.open(port);
    serial.setRts(true);
    adapter.happened();
    adapter.trouble("deaf key");
    EXPECT_EQ(errorOf([&] { serial.setDtr(true); }), existsOrNoAccess);
    EXPECT_THAT(adapter.happened(), ElementsAre("RTS off", "close"));
}

TEST_F(SerialPortTest, AnAdapterPulledBeforeTheMessageEnds)
{
    serial.open(port);
    serial.setRts(true);
    adapter.trouble("unplugged");
    serial.close();
    EXPECT_FALSE(serial.isOpen());
    EXPECT_TRUE(adapter.hungUp());
}

TEST_F(SerialPortTest, AnAdapterPulledAndPutBackBetweenTwoMessages)
{
    sendDot();
    // The old device is gone for good: what is put back is another one at the same place.
    SerialAdapter second;
    std::filesystem::remove(folder.file("COM97"));
    adapter.trouble("unplugged");
    EXPECT_THAT(whyNot(port), HasSubstr("is not there"));
    adapter.putRight();
    second.linkAs(port, folder.path());
    adapter.happened();
    sendDot();
    EXPECT_THAT(adapter.happened(), ElementsAre("open", "DTR on", "RTS on", "DTR off", "RTS off", "RTS on", "DTR on",
                                                "DTR off", "RTS off"));
}

/// Deaths of the whole process in the middle of an element: no destructor runs, the system has to drop the lines.
class SerialPortDeathTest : public SerialPortTest {
 protected:
    SerialPortDeathTest() { adapter.keepLinesBehindLastClose(); }

    void keyAndDie(void (*die)())
    {
        serial.open(port);
        serial.setRts(true);
        serial.setDtr(true);
        die();
    }
    void expectLinesDropped() const
    {
        EXPECT_TRUE(adapter.dropsLinesWithLastClose());
        EXPECT_TRUE(adapter.hungUp());
    }
};

TEST_F(SerialPortDeathTest, AKill)
{
    EXPECT_EXIT(keyAndDie([] { ::kill(::getpid(), SIGKILL); }), testing::KilledBySignal(SIGKILL), "");
    expectLinesDropped();
}

TEST_F(SerialPortDeathTest, AnErrorThatNobodyHolds)
{
    EXPECT_DEATH(keyAndDie([] { std::terminate(); }), "");
    expectLinesDropped();
}

TEST_F(SerialPortDeathTest, ASignalThatNobodyHandles)
{
    EXPECT_EXIT(keyAndDie([] { ::raise(SIGTERM); }), testing::KilledBySignal(SIGTERM), "");
    expectLinesDropped();
}

TEST_F(SerialPortDeathTest, AnEndWithoutGoodbye)
{
    EXPECT_EXIT(keyAndDie([] { ::_exit(7); }), testing::ExitedWithCode(7), "");
    expectLinesDropped();
}

}  // namespace
