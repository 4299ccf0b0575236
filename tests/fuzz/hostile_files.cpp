// Files of the program that somebody else wrote, or that were damaged: set-up files, sound files, scripts.
#include <fstream>

#include "base/runtime_error.h"
#include "fuzz/fresh_folder.h"
#include "fuzz/targets.h"
#include "fuzz/usual_operator.h"
#include "fuzz/watch.h"
#include "platform/sound_file.h"
#include "script/grammar.h"
#include "script/parser.h"

namespace fuzz {

namespace {

std::string textOf(Bytes bytes)
{
    std::string text;
    for (const std::uint8_t byte : bytes)
        text.push_back(static_cast<char>(byte));
    return text;
}

void mustHold(bool holds, const std::string& what)
{
    if (!holds) throw Broken{what};
}

}  // namespace

/// Whatever stands in it, the program gets to the first QSO and logs it.
void readSetUpFile(Bytes bytes, const LineSink& print)
{
    if (bytes.empty()) return;
    const std::filesystem::path folder = FreshFolder::instance().prepare();
    const char* const name = (bytes.front() & 1U) != 0 ? "KELVOTextCw.dat" : "KelvoInit.dat";
    writeBytes(folder / name, textOf(bytes.subspan(1)));
    if (print) print(std::string(name) + ":\n" + textOf(bytes.subspan(1)));
    UsualOperator hands(folder, bytes.front() >> 1U);
    hands.openEntry();
    hands.logQso("YO2ABC");
    hands.sendMessages();
    hands.end();
    if (print) hands.printWhatWasSaid(print);
    // Only what the file holds may keep the QSO away, and then the operator is told.
    mustHold(hands.rowsOf("YO2ABC") == 1 || hands.somethingWasSaid(), "the QSO is not in the log, and nobody was told");
}

void readSoundFile(Bytes bytes, const LineSink& print)
{
    const std::filesystem::path file = FreshFolder::instance().prepare() / "F1.wav";
    writeBytes(file, textOf(bytes));
    const auto length = platform::soundLength(file);
    const auto sound = platform::readSound(file);
    if (print) print(sound ? std::to_string(sound->samples.size()) + " bytes of samples" : "no sound");
    mustHold(length.has_value() == sound.has_value(), "a sound has a length and cannot be read, or the reverse");
    if (!sound) return;
    mustHold(*length == sound->length, "two lengths of one sound");
    mustHold(sound->samples.size() <= bytes.size(), "a sound is longer than its file");
    const long long bytesPerSecond =
        static_cast<long long>(sound->samplesPerSecond) * sound->channels * (sound->bitsPerSample / 8);
    const auto nanoseconds = static_cast<long long>(sound->samples.size()) * 1'000'000'000 / bytesPerSecond;
    mustHold(length->count() == nanoseconds, "a sound does not last as long as its samples");
}

void readScript(Bytes bytes, const LineSink& print)
{
    try {
        const script::Script script = script::parse(textOf(bytes), "script");
        for (const script::Statement& statement : script.statements) {
            mustHold(!script::ruleOf(statement.verb).usage.empty(), "a statement without a rule");
            mustHold(statement.line > 0, "a statement without a line");
        }
        if (print) print(std::to_string(script.statements.size()) + " statements");
    } catch (const script::UnreadableScript& unreadable) {
        mustHold(std::string(unreadable.what()).starts_with("script:"), "a complaint without its place");
        if (print) print(unreadable.what());
    }
}

}  // namespace fuzz
