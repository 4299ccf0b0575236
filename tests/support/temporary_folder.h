// A folder of its own for each test, gone behind it.
#pragma once

#include <filesystem>
#include <string>

namespace test {

class TemporaryFolder {
 public:
    TemporaryFolder();
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;
    ~TemporaryFolder();

    const std::filesystem::path& path() const { return path_; }
    std::filesystem::path file(const std::string& name) const { return path_ / name; }
    /// The path of a file in the program's own form, with a backslash behind the folder.
    std::string designPath(const std::string& name) const { return path_.string() + "\\" + name; }

 private:
    std::filesystem::path path_;
};

/// Writes bytes into a file, in place of what stood there.
void writeFile(const std::filesystem::path& file, const std::string& bytes);

/// All bytes of a file.
std::string readFile(const std::filesystem::path& file);

}  // namespace test
