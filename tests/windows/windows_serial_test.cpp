// The serial driver of the Windows program on an adapter. serial_with_wine.sh runs it: it makes the adapter, gives the
// numbers of the ports in the environment, and looks at what the lines did.
#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>
#include <string>

#include "base/number.h"
#include "base/runtime_error.h"
#include "desktop/serial_device.h"
#include "desktop/serial_port.h"

namespace {

int portIn(const char* variable)
{
    const char* value = std::getenv(variable);
    return value == nullptr ? 0 : base::toInt16(std::string_view(value));
}

int adapter()
{
    return portIn("KELVO_ADAPTER");
}

std::string refusalOf(int port)
{
    try {
        desktop::openPort(port, {});
    } catch (const base::RuntimeError& error) {
        EXPECT_EQ(error.number(), base::noSuchPort);
        return error.what();
    }
    return {};
}

TEST(SerialAdapterTest, OneThatTheSystemDeniesIsToldToBeInUse)
{
    const std::string name = base::toText(adapter());
    EXPECT_EQ(refusalOf(adapter()), "Serial port " + name + ", COM" + name + ", is busy: another program has it open");
}

TEST(SerialAdapterTest, WhatIsNoSerialLineIsToldSo)
{
    const std::string name = base::toText(portIn("KELVO_NO_ADAPTER"));
    EXPECT_EQ(refusalOf(portIn("KELVO_NO_ADAPTER")),
              "Serial port " + name + ", COM" + name + ", has no hardware behind it");
}

TEST(SerialAdapterTest, KeysItsLines)
{
    desktop::SerialLines port({});
    port.open(adapter());
    port.setRts(true);
    for (int element = 0; element < 3; ++element) {
        port.setDtr(true);
        port.setDtr(false);
    }
    port.close();
    EXPECT_FALSE(port.isOpen());
    // The second message goes out on the device that was left open.
    port.open(adapter());
    port.setRts(true);
    port.close();
}

TEST(SerialAdapterTest, PulledOutInTheMiddleOfAMessageItIsAnErrorAndGivenUp)
{
    desktop::SerialLines port({});
    port.open(adapter());
    port.setRts(true);
    std::ofstream(std::getenv("KELVO_LINES_TROUBLE_FILE")) << "unplugged";
    int number = 0;
    try {
        port.setDtr(true);
    } catch (const base::RuntimeError& error) {
        number = error.number();
    }
    EXPECT_EQ(number, base::existsOrNoAccess);
    EXPECT_FALSE(port.isOpen());
}

}  // namespace
