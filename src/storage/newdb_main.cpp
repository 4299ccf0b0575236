// kelvo-newdb FOLDER: makes the empty databases of a first installation.
#include <filesystem>
#include <iostream>
#include <string_view>

#include "base/runtime_error.h"
#include "platform/console_main.h"
#include "platform/files.h"
#include "storage/schema.h"

namespace {

constexpr int wrongUse = 2;

constexpr std::string_view usage =
    "usage: kelvo-newdb FOLDER\n"
    "Makes those of LogKelvo.mdb, DbsKelvo.mdb and Kelvo.mdb that are not in FOLDER, empty.\n"
    "A file that is there, in any spelling of its name, is never touched.\n";

int makeDatabases(const std::filesystem::path& folder)
{
    try {
        const auto made = storage::makeMissingDatabases(folder);
        for (const std::string_view name : made)
            std::cout << "made " << name << '\n';
        if (made.empty()) std::cout << "all databases are there, nothing was made\n";
        return 0;
    } catch (const base::RuntimeError& error) {
        std::cerr << "kelvo-newdb: " << error.what() << '\n';
    } catch (const std::filesystem::filesystem_error& error) {
        std::cerr << "kelvo-newdb: " << error.what() << '\n';
    }
    return 1;
}

}  // namespace

int platform::consoleMain(const std::vector<std::string>& words)
{
    const std::string_view first = words.size() == 1 ? std::string_view(words.front()) : std::string_view();
    if (first == "--help" || first == "-h") {
        std::cout << usage;
        return 0;
    }
    if (first.empty() || first[0] == '-') {
        std::cerr << usage;
        return wrongUse;
    }
    return makeDatabases(platform::pathFrom(first));
}
