// A program folder with empty databases on the disk of the working directory, gone behind the benchmark.
#pragma once

#include <filesystem>

namespace bench {

class Folder {
 public:
    Folder();
    Folder(const Folder&) = delete;
    Folder& operator=(const Folder&) = delete;
    ~Folder();
    const std::filesystem::path& path() const { return path_; }

 private:
    std::filesystem::path path_;
};

}  // namespace bench
