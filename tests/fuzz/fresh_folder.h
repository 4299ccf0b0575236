// The folder of the program for one run after the other: empty databases, nothing else. It lies in memory where the
// system has a place for that, so that a run costs no disk.
#pragma once

#include <filesystem>
#include <map>
#include <string>

namespace fuzz {

class FreshFolder {
 public:
    /// One for the process. It is removed at the end of the process.
    static FreshFolder& instance();

    FreshFolder(const FreshFolder&) = delete;
    FreshFolder& operator=(const FreshFolder&) = delete;
    ~FreshFolder();

    /// Empties the folder and puts the databases there. Returns its path.
    const std::filesystem::path& prepare();

    /// The bytes of a database without rows.
    const std::string& emptyDatabase(const std::string& fileName) const { return databases_.at(fileName); }

 private:
    FreshFolder();

    std::filesystem::path path_;
    std::map<std::string, std::string> databases_;
};

/// All bytes of a file; none when it cannot be read.
std::string bytesOfFile(const std::filesystem::path& file);

/// Writes a file in place of what stood there.
void writeBytes(const std::filesystem::path& file, const std::string& bytes);

}  // namespace fuzz
