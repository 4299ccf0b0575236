// The drivers of the Windows program that need no window: run under Wine, or on Windows.
#include <gtest/gtest.h>
#include <windows.h>
#include <winioctl.h>

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <string>
#include <thread>
#include <vector>

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

/// A drive with this letter, as long as it lives. Its files are those of the folder. Wine's manager of drives makes it,
/// as for its own settings; Windows lets no program do that.
class WineDrive {
 public:
    WineDrive(char letter, ULONG type, const fs::path& folder) : letter_(letter)
    {
        const char* wine = std::getenv("WINEPREFIX");
        EXPECT_NE(wine, nullptr) << "this needs Wine";
        define(type, std::string(wine == nullptr ? "" : wine) + "/drive_c/" + folder.relative_path().generic_string());
    }
    ~WineDrive() { define(DRIVE_NO_ROOT_DIR, ""); }
    WineDrive(const WineDrive&) = delete;
    WineDrive& operator=(const WineDrive&) = delete;

 private:
    /// What the manager is asked for; the folder follows as the system below names it.
    struct Request {
        ULONG size = 0;
        ULONG type = 0;
        ULONG fileSystem = 0;
        DWORD serialNumber = 0;
        ULONGLONG device = 0;
        WCHAR letter = 0;
        USHORT folderOffset = sizeof(Request);
        USHORT deviceOffset = 0;
        USHORT labelOffset = 0;
    };

    void define(ULONG type, const std::string& folder) const
    {
        const DWORD code = CTL_CODE('m', 32, METHOD_BUFFERED, FILE_READ_ACCESS | FILE_WRITE_ACCESS);
        Request request;
        request.size = static_cast<ULONG>(sizeof request + folder.size() + 1);
        request.type = type;
        request.letter = static_cast<WCHAR>(letter_);
        std::vector<char> bytes(request.size);
        std::memcpy(bytes.data(), &request, sizeof request);
        std::memcpy(bytes.data() + sizeof request, folder.c_str(), folder.size() + 1);
        HANDLE manager = CreateFileW(L"\\\\.\\MountPointManager", GENERIC_READ | GENERIC_WRITE,
                                     FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr, OPEN_EXISTING, 0, nullptr);
        DWORD answered = 0;
        EXPECT_NE(DeviceIoControl(manager, code, bytes.data(), request.size, nullptr, 0, &answered, nullptr), 0);
        CloseHandle(manager);
    }

    char letter_;
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
    const WineDrive drive('a', DRIVE_FIXED, folder.path());
    EXPECT_EQ(volumes.driveA(), "A:");
}

TEST(MountedVolumesTest, AStickIsDriveAUnderAnyLetter)
{
    const test::TemporaryFolder folder;
    const desktop::MountedVolumes volumes("C:\\Kelvo");
    {
        const WineDrive disk('e', DRIVE_FIXED, folder.path());
        EXPECT_EQ(volumes.driveA(), std::nullopt);
    }
    const WineDrive stick('e', DRIVE_REMOVABLE, folder.path());
    EXPECT_EQ(volumes.driveA(), "E:");
    const WineDrive first('a', DRIVE_FIXED, folder.path());
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
