// Makes the inputs that fuzzing begins with, and shows what an input does.
//
//   kelvo-fuzz-tool corpus TARGET SCRIPTS FOLDER   writes the first inputs of a target
//   kelvo-fuzz-tool replay TARGET FILE             prints the steps of an input while it is played
//   kelvo-fuzz-tool targets                        prints the names of all targets
#include <iostream>
#include <string>
#include <vector>

#include "fuzz/corpus.h"
#include "fuzz/fresh_folder.h"
#include "fuzz/targets.h"
#include "fuzz/watch.h"

namespace {

namespace fs = std::filesystem;

int wrongUse()
{
    std::cerr << "usage: kelvo-fuzz-tool corpus TARGET SCRIPTS FOLDER | replay TARGET FILE | targets\n";
    return 2;
}

int writeCorpus(const std::string& target, const fs::path& scripts, const fs::path& folder)
{
    fs::create_directories(folder);
    for (const auto& [name, bytes] : fuzz::corpusOf(target, scripts))
        fuzz::writeBytes(folder / name, bytes);
    return 0;
}

int replay(const fuzz::Target& target, const fs::path& file)
{
    const std::string bytes = fuzz::bytesOfFile(file);
    const std::vector<std::uint8_t> input(bytes.begin(), bytes.end());
    try {
        target.run(input, [](const std::string& line) { std::cout << line << '\n' << std::flush; });
    } catch (const fuzz::Broken& broken) {
        std::cout << "# broken: " << broken.what << '\n';
        return 1;
    }
    std::cout << "# nothing is broken\n";
    return 0;
}

}  // namespace

int main(int count, char** values)
{
    const std::vector<std::string> words(values + 1, values + count);
    if (words.size() == 1 && words[0] == "targets") {
        for (const fuzz::Target& target : fuzz::targets())
            std::cout << target.name << '\n';
        return 0;
    }
    if (words.size() < 3) return wrongUse();
    const fuzz::Target* target = fuzz::targetNamed(words[1]);
    if (target == nullptr) return wrongUse();
    if (words[0] == "corpus" && words.size() == 4) return writeCorpus(words[1], words[2], words[3]);
    if (words[0] == "replay" && words.size() == 3) return replay(*target, words[2]);
    return wrongUse();
}
