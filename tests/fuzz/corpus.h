// The inputs that fuzzing begins with: for the random operator what the scripts do, for the hostile files good ones.
#pragma once

#include <filesystem>
#include <map>
#include <string>
#include <string_view>

namespace fuzz {

/// Names and bytes of inputs.
using Corpus = std::map<std::string, std::string>;

/// A script in the byte form of the random operator. It is played on the way, as the names of controls are those of the
/// form in view. Checks and what has no byte form are left out.
std::string bytesOfScript(std::string_view text);

/// The inputs of a target. `scripts` is the folder with the scripts of the tests, of which every `stride`th is taken.
Corpus corpusOf(std::string_view target, const std::filesystem::path& scripts, std::size_t stride = 1);

}  // namespace fuzz
