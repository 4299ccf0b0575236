// A real folder whose disk can be made to fail at any system call that the program makes in it.
//
// The object file of this class takes the place of the calls of the system in the whole test: open, write, fsync,
// ftruncate, rename, link, unlink, mkdir and the locks. Calls on the folder are counted, and from a chosen one on they
// fail as they would on a disk that is full, broken, write-protected, locked or gone, or on a computer whose power has
// been cut. What a power cut leaves is worked out as a careful disk would: bytes are safe once their file was
// synchronised, a name once its folder was, and everything else may come back or not.
#pragma once

#include <cstdint>
#include <filesystem>
#include <map>
#include <string>
#include <vector>

namespace test {

enum class Fault {
    none,            ///< only counts
    powerCut,        ///< nothing works any more, and what was not synchronised is forgotten
    full,            ///< no space from here on
    fullOnce,        ///< no space for this one call
    broken,          ///< every call fails from here on
    brokenOnce,      ///< this one call fails
    writeProtected,  ///< the whole disk is for reading only from here on
    noAccess,        ///< the account may make, rename and delete nothing from here on
    locked,          ///< another program holds its locks on all databases from here on
    folderGone,      ///< the folder is away from here on
};

/// A word for a message of a test.
const char* nameOf(Fault fault);

/// What a power cut leaves of that which was not synchronised.
enum class Left {
    nothing,
    everything,
    names,  ///< the names, not the bytes
    bytes,  ///< the bytes, not the names
    some,   ///< some names, and of the bytes some sectors of 512
};

/// Bytes of files by their names below the folder.
using FolderImage = std::map<std::string, std::string>;

/// One at a time.
class FailingDisk {
 public:
    /// What is in `folder` is safe on the disk.
    explicit FailingDisk(std::filesystem::path folder);
    FailingDisk(const FailingDisk&) = delete;
    FailingDisk& operator=(const FailingDisk&) = delete;
    ~FailingDisk();

    /// Counts from here on, and lets the fault happen at call number `call`, from 0.
    void failAt(Fault fault, long call);
    /// Calls since failAt() that the fault could have happened at.
    long calls() const;
    /// The call at which it happened, with its file; empty when it did not.
    const std::string& hit() const;
    /// The power goes between two calls.
    void cutPower();
    /// What the disk has once the power is back; `seed` chooses for Left::some.
    FolderImage leftByPowerCut(Left left, std::uint32_t seed = 0) const;
    /// The disk is whole again. What a power cut leaves is put there by putImage().
    void repair();

 private:
    std::filesystem::path folder_;
};

/// All files of a folder with their bytes.
FolderImage imageOf(const std::filesystem::path& folder);

/// Makes the folder have these files and no others. Folders in it stay.
void putImage(const std::filesystem::path& folder, const FolderImage& image);

}  // namespace test
