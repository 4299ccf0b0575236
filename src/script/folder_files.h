// Files that a script puts into the program's folder, or looks at.
#pragma once

#include <chrono>
#include <filesystem>
#include <string>
#include <vector>

namespace script {

/// Makes a folder, with those on the way, unless it is there. StepFailed when that cannot be done.
void makeFolder(const std::filesystem::path& folder);

/// Writes lines in Windows-1250, each ended by CR LF, with the folders on the way. StepFailed when that cannot be done.
void writeTextFile(const std::filesystem::path& file, const std::vector<std::string>& lines);

/// Writes a sound file of silence, with the folders on the way. StepFailed when that cannot be done.
void writeSoundFile(const std::filesystem::path& file, std::chrono::nanoseconds length);

/// StepFailed unless the file has exactly these lines, each in Windows-1250 and ended by CR LF.
void mustHaveLines(const std::filesystem::path& file, const std::vector<std::string>& lines);

/// The lines of a text file in Windows-1250. StepFailed when it cannot be read.
std::vector<std::string> linesOf(const std::filesystem::path& file);

}  // namespace script
