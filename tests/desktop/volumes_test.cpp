// The volumes of this computer, as far as any computer has them.
#include "desktop/volumes.h"

#include <gtest/gtest.h>

#include <QStorageInfo>
#include <QTemporaryDir>
#include <algorithm>
#include <filesystem>

namespace {

TEST(MountedVolumesTest, TheVolumeOfTheProgramComesFirstAndOnce)
{
    const QTemporaryDir folder;
    const desktop::MountedVolumes volumes(folder.path().toStdString());
    const std::vector<std::string> names = volumes.names();
    ASSERT_FALSE(names.empty());
    EXPECT_EQ(std::filesystem::path(names.front()),
              std::filesystem::path(QStorageInfo(folder.path()).rootPath().toStdString()));
    EXPECT_EQ(std::count(names.begin(), names.end(), names.front()), 1);
    for (const std::string& name : names)
        EXPECT_TRUE(std::filesystem::is_directory(name)) << name;
}

TEST(MountedVolumesTest, DriveAIsOneOfTheVolumesAndNeverThatOfTheSystem)
{
    const QTemporaryDir folder;
    const desktop::MountedVolumes volumes(folder.path().toStdString());
    const auto drive = volumes.driveA();
    if (!drive) GTEST_SKIP() << "No removable volume is mounted";
    const std::vector<std::string> names = volumes.names();
    EXPECT_NE(std::find(names.begin(), names.end(), *drive), names.end());
    EXPECT_NE(*drive, QStorageInfo::root().rootPath().toStdString());
}

}  // namespace
