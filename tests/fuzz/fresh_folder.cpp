#include "fuzz/fresh_folder.h"

#include <cstdlib>
#include <fstream>
#include <iterator>
#include <random>
#include <stdexcept>
#include <system_error>

#include "storage/schema.h"

namespace fuzz {

namespace fs = std::filesystem;

namespace {

fs::path newFolder()
{
    // A fuzzer does not end as a program does, and leaves its folder: ./fuzz says where, and clears up.
    const char* const named = std::getenv("KELVO_FUZZ_PLACE");
    const fs::path memory = named != nullptr ? named : "/dev/shm";
    std::error_code ignored;
    const fs::path place = fs::is_directory(memory, ignored) ? memory : fs::canonical(fs::temp_directory_path());
    std::random_device random;
    fs::path folder;
    do {
        folder = place / ("kelvo-fuzz-" + std::to_string(random()));
    } while (!fs::create_directory(folder));
    return folder;
}

}  // namespace

FreshFolder& FreshFolder::instance()
{
    static FreshFolder folder;
    return folder;
}

FreshFolder::FreshFolder() : path_(newFolder())
{
    storage::makeMissingDatabases(path_);
    for (const auto& schema : storage::databaseSchemas()) {
        const std::string name(schema.fileName);
        databases_[name] = bytesOfFile(path_ / name);
    }
}

FreshFolder::~FreshFolder()
{
    std::error_code ignored;
    fs::remove_all(path_, ignored);
}

const fs::path& FreshFolder::prepare()
{
    for (const fs::directory_entry& entry : fs::directory_iterator(path_))
        fs::remove_all(entry.path());
    for (const auto& [name, bytes] : databases_)
        writeBytes(path_ / name, bytes);
    return path_;
}

std::string bytesOfFile(const fs::path& file)
{
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

void writeBytes(const fs::path& file, const std::string& bytes)
{
    std::ofstream stream(file, std::ios::binary | std::ios::trunc);
    stream << bytes;
    stream.close();
    if (!stream) throw std::runtime_error("cannot write " + file.string());
}

}  // namespace fuzz
