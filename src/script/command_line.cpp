#include "script/command_line.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <optional>
#include <ostream>
#include <random>
#include <system_error>

#include "base/runtime_error.h"
#include "platform/files.h"
#include "script/grammar.h"
#include "script/parser.h"
#include "script/session.h"

namespace script {

namespace fs = std::filesystem;

namespace {

constexpr std::string_view usage = "usage: kelvo-script [--folder DIR] FILE...\n";

constexpr std::string_view about =
    "Plays scripts on the whole program, without a screen and in virtual time. DIR stands for the\n"
    "program's folder; it is made if it is missing, and kept. Without it a fresh folder is used and\n"
    "removed. The last line counts the steps that passed and failed. Exit status: 0 everything held,\n"
    "1 something failed, 2 a script that cannot be read.\n"
    "\n"
    "One statement a line, # begins a comment, text in double quotes with \\\" and \\\\.\n"
    "A control is NAME on the form that is on the screen, or FORM.NAME.\n"
    "\n";

struct Request {
    std::optional<std::string> folder;
    std::vector<std::string> files;
    bool help = false;
};

/// Nothing for wrong use.
std::optional<Request> requestFrom(const std::vector<std::string>& arguments)
{
    Request request;
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        const std::string& argument = arguments[i];
        if (argument == "--help" || argument == "-h") {
            request.help = true;
            return request;
        }
        if (argument == "--folder") {
            if (++i == arguments.size()) return std::nullopt;
            request.folder = arguments[i];
        } else if (argument.starts_with("--")) {
            return std::nullopt;
        } else {
            request.files.push_back(argument);
        }
    }
    if (request.files.empty()) return std::nullopt;
    return request;
}

void printHelp(std::ostream& out)
{
    constexpr std::size_t column = 34;
    out << usage << about;
    for (const Rule& rule : rules()) {
        std::string line(rule.usage);
        line.resize(std::max(column, line.size() + 1), ' ');
        out << "  " << line << rule.meaning << '\n';
    }
}

Script scriptIn(const std::string& fileName)
{
    const fs::path file = platform::pathFrom(fileName);
    std::ifstream stream(file, std::ios::binary);
    std::error_code ignored;
    if (!stream || fs::is_directory(file, ignored)) throw UnreadableScript(fileName, 0, "the file cannot be read");
    return parse(std::string(std::istreambuf_iterator<char>(stream), {}), fileName);
}

/// All scripts; nothing when one of them cannot be read.
std::optional<std::vector<Script>> scriptsIn(const std::vector<std::string>& files, std::ostream& err)
{
    std::vector<Script> scripts;
    bool readable = true;
    for (const std::string& file : files) {
        try {
            scripts.push_back(scriptIn(file));
        } catch (const UnreadableScript& unreadable) {
            err << unreadable.what() << '\n';
            readable = false;
        }
    }
    if (!readable) return std::nullopt;
    return scripts;
}

/// The folder of the program: that of the request, or a fresh one that is removed at the end.
class ProgramFolder {
 public:
    explicit ProgramFolder(const std::optional<std::string>& wanted)
        : path_(wanted ? platform::pathFrom(*wanted) : freshPath()), temporary_(!wanted)
    {
        fs::create_directories(path_);
    }
    ProgramFolder(const ProgramFolder&) = delete;
    ProgramFolder& operator=(const ProgramFolder&) = delete;
    ~ProgramFolder()
    {
        std::error_code ignored;
        if (temporary_) fs::remove_all(path_, ignored);
    }

    const fs::path& path() const { return path_; }

 private:
    static fs::path freshPath()
    {
        std::random_device random;
        fs::path path;
        do {
            path = fs::temp_directory_path() / ("kelvo-script-" + std::to_string(random()));
        } while (fs::exists(path));
        return path;
    }

    fs::path path_;
    bool temporary_;
};

int playAll(const Request& request, const std::vector<Script>& scripts, std::ostream& out)
{
    const ProgramFolder folder(request.folder);
    const auto print = [&out](const std::string& line) { out << line << '\n' << std::flush; };
    Session session(folder.path(), print);
    for (const Script& script : scripts)
        session.play(script);
    const Tally& tally = session.tally();
    print(std::to_string(tally.passed) + " passed, " + std::to_string(tally.failed) + " failed");
    return tally.failed == 0 ? everythingHeld : somethingFailed;
}

}  // namespace

int runCommandLine(const std::vector<std::string>& arguments, std::ostream& out, std::ostream& err)
{
    const std::optional<Request> request = requestFrom(arguments);
    if (!request) {
        err << usage;
        return nothingPlayed;
    }
    if (request->help) {
        printHelp(out);
        return everythingHeld;
    }
    const std::optional<std::vector<Script>> scripts = scriptsIn(request->files, err);
    if (!scripts) return nothingPlayed;
    try {
        return playAll(*request, *scripts, out);
    } catch (const fs::filesystem_error& error) {
        err << "kelvo-script: " << error.what() << '\n';
    } catch (const base::RuntimeError& error) {
        err << "kelvo-script: " << error.what() << '\n';
    }
    return nothingPlayed;
}

}  // namespace script
