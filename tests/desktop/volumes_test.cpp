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

TEST(DriveATest, IsTheFirstRemovableVolumeThatIsNotOfTheSystem)
{
    const desktop::Volume system{"/", true, false};
    const desktop::Volume systemOnAStick{"/", true, true};
    const desktop::Volume disk{"/home", false, false};
    const desktop::Volume stick{"/media/yo2xyz/STICK", false, true};
    const desktop::Volume card{"/media/yo2xyz/CARD", false, true};
    EXPECT_EQ(desktop::driveAAmong({}), std::nullopt);
    EXPECT_EQ(desktop::driveAAmong({system, disk}), std::nullopt);
    EXPECT_EQ(desktop::driveAAmong({systemOnAStick, disk}), std::nullopt);
    EXPECT_EQ(desktop::driveAAmong({system, disk, stick, card}), stick.folder);
    EXPECT_EQ(desktop::driveAAmong({systemOnAStick, card, stick}), card.folder);
}

TEST(NamesOfVolumesTest, BeginWithThatOfTheProgram)
{
    using Names = std::vector<std::string>;
    const std::vector<desktop::Volume> volumes = {
        {"/", true, false}, {"/home", false, false}, {"/media/S", false, true}};
    EXPECT_EQ(desktop::namesOf(volumes, "/home"), (Names{"/home", "/", "/media/S"}));
    EXPECT_EQ(desktop::namesOf(volumes, "/run/somewhere"), (Names{"/run/somewhere", "/", "/home", "/media/S"}));
    EXPECT_EQ(desktop::namesOf({}, "/"), (Names{"/"}));
}

}  // namespace
