// The drivers of the Windows program that need no window: run under Wine, or on Windows.
#include <gtest/gtest.h>
#include <windows.h>

#include <algorithm>
#include <chrono>
#include <filesystem>
#include <thread>

#include "base/runtime_error.h"
#include "desktop/deadline_sleep.h"
#include "desktop/keying_priority.h"
#include "desktop/serial_device.h"
#include "desktop/volumes.h"
#include "platform/files.h"
#include "platform/result_file.h"
#include "platform/text_file.h"
#include "support/temporary_folder.h"

namespace {

namespace fs = std::filesystem;
using namespace std::chrono_literals;
using std::chrono::steady_clock;

TEST(DeadlineSleepTest, EndsAtItsDeadlineAndNotBefore)
{
    for (const auto length : {0ms, 1ms, 7ms, 20ms}) {
        const auto deadline = steady_clock::now() + length;
        desktop::sleepUntilDeadline(deadline, {});
        EXPECT_GE(steady_clock::now(), deadline);
    }
}

TEST(DeadlineSleepTest, EndsWhenAStopIsAskedFor)
{
    std::stop_source program;
    const auto begin = steady_clock::now();
    std::thread other([&program] { program.request_stop(); });
    desktop::sleepUntilDeadline(begin + 1h, program.get_token());
    other.join();
    EXPECT_LT(steady_clock::now(), begin + 1h);
    // And at once when that was long ago.
    desktop::sleepUntilDeadline(begin + 1h, program.get_token());
    EXPECT_LT(steady_clock::now(), begin + 1h);
}

TEST(KeyingPriorityTest, LastsAsLongAsTheKeying)
{
    const int before = GetThreadPriority(GetCurrentThread());
    {
        const desktop::KeyingPriority keying;
        EXPECT_EQ(GetThreadPriority(GetCurrentThread()), THREAD_PRIORITY_TIME_CRITICAL);
    }
    EXPECT_EQ(GetThreadPriority(GetCurrentThread()), before);
}

struct Refusal {
    int number = 0;
    std::string why;
};

Refusal refusalOf(int port)
{
    try {
        desktop::openPort(port, {});
    } catch (const base::RuntimeError& error) {
        return {error.number(), error.what()};
    }
    return {};
}

TEST(SerialDeviceTest, APortThatIsNotThereIsToldSo)
{
    const Refusal refusal = refusalOf(213);
    EXPECT_EQ(refusal.number, base::noSuchPort);
    EXPECT_EQ(refusal.why,
              "Serial port 213 is not there: plug the adapter in, or look up its COM number in the device manager");
    EXPECT_EQ(refusalOf(0).number, base::noSuchPort);
    EXPECT_EQ(refusalOf(-1).number, base::noSuchPort);
}

/// A drive with this letter, as long as it lives.
class DriveLetter {
 public:
    DriveLetter(const wchar_t* letter, const fs::path& folder) : letter_(letter)
    {
        EXPECT_NE(DefineDosDeviceW(0, letter_, fs::path(folder).make_preferred().c_str()), 0);
    }
    ~DriveLetter() { DefineDosDeviceW(DDD_REMOVE_DEFINITION, letter_, nullptr); }
    DriveLetter(const DriveLetter&) = delete;
    DriveLetter& operator=(const DriveLetter&) = delete;

 private:
    const wchar_t* letter_;
};

/// What Wine takes a drive for, as long as it lives. Windows itself does not look there.
class TypeOfDrive {
 public:
    TypeOfDrive(const wchar_t* drive, const wchar_t* type) : drive_(drive)
    {
        const auto bytes = static_cast<DWORD>((std::char_traits<wchar_t>::length(type) + 1) * sizeof(wchar_t));
        RegSetKeyValueW(HKEY_LOCAL_MACHINE, key, drive_, REG_SZ, type, bytes);
    }
    ~TypeOfDrive() { RegDeleteKeyValueW(HKEY_LOCAL_MACHINE, key, drive_); }
    TypeOfDrive(const TypeOfDrive&) = delete;
    TypeOfDrive& operator=(const TypeOfDrive&) = delete;

 private:
    static constexpr const wchar_t* key = L"Software\\Wine\\Drives";
    const wchar_t* drive_;
};

TEST(MountedVolumesTest, TheDriveOfTheProgramComesFirstAndOnce)
{
    const test::TemporaryFolder folder;
    const std::string own = platform::pathText(folder.path().root_name());
    const std::vector<std::string> names = desktop::MountedVolumes(platform::pathText(folder.path())).names();
    ASSERT_FALSE(names.empty());
    EXPECT_EQ(names.front(), own);
    EXPECT_EQ(std::count(names.begin(), names.end(), own), 1);
    EXPECT_NE(std::find(names.begin(), names.end(), "C:"), names.end());
    // A program that was started by a name in small letters stands on the same drive.
    std::string small = platform::pathText(folder.path());
    small.front() = static_cast<char>(std::tolower(static_cast<unsigned char>(small.front())));
    EXPECT_EQ(desktop::MountedVolumes(small).names(), names);
}

TEST(MountedVolumesTest, DriveAIsTheDriveOfThatLetter)
{
    const test::TemporaryFolder folder;
    const desktop::MountedVolumes volumes("C:\\Kelvo");
    EXPECT_EQ(volumes.driveA(), std::nullopt);
    const DriveLetter drive(L"A:", folder.path());
    EXPECT_EQ(volumes.driveA(), "A:");
}

TEST(MountedVolumesTest, AStickIsDriveAUnderAnyLetter)
{
    const test::TemporaryFolder folder;
    const desktop::MountedVolumes volumes("C:\\Kelvo");
    const DriveLetter stick(L"E:", folder.path());
    EXPECT_EQ(volumes.driveA(), std::nullopt) << "a disk";
    const TypeOfDrive removable(L"e:", L"floppy");
    EXPECT_EQ(volumes.driveA(), "E:");
    const DriveLetter first(L"A:", folder.path());
    EXPECT_EQ(volumes.driveA(), "A:");
}

TEST(FilesTest, TheRootOfADriveIsReadAndHasNothingAbove)
{
    EXPECT_FALSE(platform::readFolder("C:\\").folders.empty());
    EXPECT_EQ(platform::folderAbove("C:\\"), platform::pathText(platform::resolve("C:\\")));
    EXPECT_EQ(platform::folderAbove("C:\\windows"), platform::pathText(platform::resolve("C:\\")));
}

TEST(FilesTest, NamesOutsideTheCodePageAreTheirs)
{
    const test::TemporaryFolder folder;
    const std::string station = platform::pathText(folder.path()) + "\\Ștefan ЖЗ 日本";
    platform::makeFolder(station);
    platform::writeTextFile(station + "\\Însemnări.txt", "Șase\r\n");
    EXPECT_EQ(platform::readTextFile(station + "\\ÎNSEMNĂRI.TXT"), "Şase\r\n");
    EXPECT_EQ(platform::readFolder(station).files, (std::vector<std::string>{"Însemnări.txt"}));
}

TEST(FilesTest, AFileOfResultsTakesThePlaceOfAnOlderOne)
{
    const test::TemporaryFolder folder;
    const std::string place = platform::pathText(folder.path()) + "\\YO2XYZ144.txt";
    for (const char* line : {"old", "new"}) {
        platform::ResultFile file;
        file.open(place);
        file.print(line);
        file.close();
    }
    EXPECT_EQ(platform::readTextFile(place), "new\r\n");
    EXPECT_EQ(platform::readFolder(platform::pathText(folder.path())).files.size(), 1U);
}

}  // namespace
