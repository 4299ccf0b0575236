#include "script/session.h"

#include <utility>

#include "script/parser.h"
#include "storage/schema.h"

namespace script {

Session::Session(std::filesystem::path folder, LineSink print) : folder_(std::move(folder)), print_(std::move(print))
{
    storage::makeMissingDatabases(folder_);
}

Result Session::play(const Script& script)
{
    Result result;
    Operator player(folder_, [&](const std::string& line) {
        result.output += line + "\n";
        if (print_) print_(line);
    });
    player.play(script);
    player.finish();
    result.passed = player.tally().passed;
    result.failed = player.tally().failed;
    tally_.passed += result.passed;
    tally_.failed += result.failed;
    return result;
}

Result Session::play(std::string_view text, const std::string& fileName)
{
    return play(parse(text, fileName));
}

}  // namespace script
