// A disk in memory under SQLite, with all that a real one can do to a database: forget what was not synchronised when
// the power goes, be full, be write-protected, fail.
//
// It keeps two contents of every file: what the running program sees, and what is durable. Only a synchronisation makes
// the one into the other. While an object of this class lives, it is the disk that every newly opened database is on.
#pragma once

#include <cstdint>
#include <filesystem>
#include <map>
#include <memory>
#include <random>
#include <string>
#include <vector>

#include "base/text.h"

struct sqlite3_file;
struct sqlite3_vfs;

namespace test {

/// What becomes of the writes that were not synchronised when the power went.
enum class Survival {
    none,  ///< the disk had written nothing of them
    all,   ///< all of them, as after a mere end of the program
    some,  ///< some sectors of 512 bytes, in any order
};

class PowerCutVfs {
 public:
    struct File;

    /// The files of the disk, to begin again from the same state.
    using Files = std::map<std::string, File>;

    PowerCutVfs();
    PowerCutVfs(const PowerCutVfs&) = delete;
    PowerCutVfs& operator=(const PowerCutVfs&) = delete;
    ~PowerCutVfs();

    /// Puts a copy of a real file onto the disk, durable.
    void load(const std::filesystem::path& file);

    Files files() const;
    /// Files that are open when this is called are lost to those who have them open.
    void setFiles(const Files& files);

    /// Lets the power go as soon as so many more writes, truncations and synchronisations are done.
    void cutAfter(long operations);
    bool isOff() const { return off_; }
    /// The power comes back: what was durable is there, and of the rest what survives. `seed` chooses for `some`.
    void powerOn(Survival survival, std::uint32_t seed = 0);

    /// From here on every read, write or synchronisation gives this code of SQLite; 0 ends that.
    void failReads(int code) { readCode_ = code; }
    void failWrites(int code) { writeCode_ = code; }
    void failSynchronisations(int code) { synchronisationCode_ = code; }
    /// From here on files can be opened for reading only.
    void protectFiles(bool writeProtected) { protected_ = writeProtected; }
    /// From here on no new file can be made.
    void refuseNewFiles(bool refused) { refusesNewFiles_ = refused; }

    /// How many reads there have been.
    std::uint64_t reads() const { return reads_; }

 private:
    struct Handle;
    struct Calls;

    /// Files are found in whatever case, as Windows does; elsewhere the program asks for the names that are there.
    struct IgnoringCase {
        bool operator()(const std::string& a, const std::string& b) const { return base::upper(a) < base::upper(b); }
    };

    bool holds(const File& file) const;
    bool operationDone();

    std::unique_ptr<sqlite3_vfs> vfs_;
    sqlite3_vfs* below_;  ///< the machine's own, for the time and random numbers
    std::map<std::string, std::shared_ptr<File>, IgnoringCase> files_;
    bool off_ = false;
    long operationsLeft_ = -1;  ///< until the power goes; negative: it stays
    int readCode_ = 0;
    int writeCode_ = 0;
    int synchronisationCode_ = 0;
    bool protected_ = false;
    bool refusesNewFiles_ = false;
    std::uint64_t reads_ = 0;
};

/// One file of the disk.
struct PowerCutVfs::File {
    /// A write, or a truncation to `offset`, that is not durable yet.
    struct Change {
        bool truncation = false;
        std::size_t offset = 0;
        std::string bytes;

        void applyTo(std::string& content) const;
    };

    std::string present;
    std::string durable;
    bool there = true;
    bool durablyThere = false;
    std::vector<Change> changes;

    void change(Change change);
    void synchronise();
    void lose(Survival survival, std::mt19937& random);
};

}  // namespace test
