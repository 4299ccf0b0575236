#include "fuzz/corpus.h"

#include <algorithm>
#include <vector>

#include "fuzz/fresh_folder.h"
#include "fuzz/player.h"
#include "fuzz/step_statements.h"
#include "platform/files.h"
#include "script/folder_files.h"
#include "script/parser.h"

namespace fuzz {

namespace fs = std::filesystem;

namespace {

/// The usual screen, without a window and with one.
constexpr char usualMachine = 0;
constexpr char withWindow = 0x1C;

std::vector<fs::path> scriptFiles(const fs::path& folder, std::size_t stride)
{
    std::vector<fs::path> files;
    for (const fs::directory_entry& entry : fs::recursive_directory_iterator(folder))
        if (entry.path().extension() == ".kelvo") files.push_back(entry.path());
    std::sort(files.begin(), files.end());
    std::vector<fs::path> taken;
    for (std::size_t i = 0; i < files.size(); i += stride)
        taken.push_back(files[i]);
    return taken;
}

std::string nameOf(const fs::path& script)
{
    return script.parent_path().filename().string() + "_" + script.stem().string();
}

Corpus operatorCorpus(const fs::path& scripts, std::size_t stride)
{
    Corpus corpus;
    constexpr std::size_t oneInSo = 8;
    for (const fs::path& file : scriptFiles(scripts, stride)) {
        std::string bytes = bytesOfScript(bytesOfFile(file));
        if (corpus.size() % oneInSo == 0) bytes.front() = withWindow;
        corpus[nameOf(file)] = bytes;
    }
    // What the scripts show piece by piece, with the acts that do much at once: every contest, some QSOs.
    for (std::uint8_t contest = 0; contest < 11; ++contest) {
        std::string bytes(1, usualMachine);
        bytes += bytesOf({.act = Act::open, .arguments = {contest, 0, contest}, .text = {}, .key = {}});
        for (std::uint8_t call = 0; call < 3; ++call)
            bytes += bytesOf({.act = Act::qso, .arguments = {call, 12, 1}, .text = {}, .key = {}});
        corpus["contest_" + std::to_string(contest)] = bytes;
    }
    return corpus;
}

Corpus setUpCorpus()
{
    return {
        {"station", std::string("\x00", 1) +
                        "YO2XYZ\r\nKN05OS\r\n2\r\n 1 \r\nA\r\nION\r\n 1 \r\nResita\r\nStr. 1\r\nTx\r\nRx\r\nAnt\r\n\r\n"
                        "\r\n\r\nClub\r\nION\r\n"},
        {"texts", "\x01 CQ TEST #1\r\n#2 #3\r\nTU\r\n\"a, b\"\r\n#4\r\n?\r\nQRZ\r\n 1 \r\n"},
        {"maraton", std::string("\x06", 1) + "YO2XYZ\r\nKN05OS\r\n-2.5\r\n 32767 \r\n"}};
}

Corpus databaseCorpus()
{
    Corpus corpus;
    for (char contest = 0; contest < 8; ++contest)
        corpus["damage_" + std::to_string(contest)] = std::string{contest} + std::string("\x00\x00\x10\x20\x00\x01", 6);
    for (char table = 0; table < 12; ++table) {
        corpus["table_" + std::to_string(table)] = std::string("\x00\x00\x01\x00", 4) + table;
        corpus["memory_" + std::to_string(table)] = std::string("\x00\x01\x01\x00", 4) + table;
    }
    corpus["values"] = std::string("\x00\x00\x02\x00\x00\x01\x02\x03\x04\x05\x06\x07\x08\x09", 14);
    corpus["no_file"] = std::string("\x00\x00\x03", 3);
    corpus["text"] = std::string("\x01\x00\x03", 3) + "this is no database";
    return corpus;
}

Corpus soundCorpus()
{
    const fs::path file = FreshFolder::instance().prepare() / "F1.wav";
    Corpus corpus;
    for (const int milliseconds : {0, 1, 50}) {
        script::writeSoundFile(file, std::chrono::milliseconds(milliseconds));
        corpus["silence_" + std::to_string(milliseconds)] = bytesOfFile(file);
    }
    return corpus;
}

Corpus scriptCorpus(const fs::path& scripts, std::size_t stride)
{
    Corpus corpus;
    for (const fs::path& file : scriptFiles(scripts, stride))
        corpus[nameOf(file)] = bytesOfFile(file);
    return corpus;
}

}  // namespace

std::string bytesOfScript(std::string_view text)
{
    std::string bytes(1, usualMachine);
    Player player(FreshFolder::instance().prepare(), false, {});
    try {
        for (const script::Statement& statement : script::parse(text, "script").statements) {
            std::string ofStatement;
            for (const Step& step : stepsOf(statement))
                ofStatement += bytesOf(step);
            bytes += ofStatement;
            const std::vector<std::uint8_t> played(ofStatement.begin(), ofStatement.end());
            StepReader reader(played);
            while (const std::optional<Step> step = reader.next())
                player.playStep(*step, reader);
        }
    } catch (const Broken&) {
        // Whoever runs the input finds the same, and says so.
        return bytes;
    }
    return bytes;
}

Corpus corpusOf(std::string_view target, const fs::path& scripts, std::size_t stride)
{
    if (target == "operator") return operatorCorpus(scripts, stride);
    if (target == "setup") return setUpCorpus();
    if (target == "database") return databaseCorpus();
    if (target == "sound") return soundCorpus();
    return scriptCorpus(scripts, stride);
}

}  // namespace fuzz
