#include "script/folder_files.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <fstream>
#include <iterator>
#include <system_error>

#include "base/text.h"
#include "platform/files.h"
#include "script/step_failed.h"
#include "script/words.h"

namespace script {

namespace fs = std::filesystem;

namespace {

constexpr std::string_view lineEnd = "\r\n";

std::string nameOf(const fs::path& file)
{
    return platform::pathText(file.filename());
}

void writeBytes(const fs::path& file, const std::string& bytes)
{
    makeFolder(file.parent_path());
    std::ofstream stream(file, std::ios::binary | std::ios::trunc);
    stream.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    stream.close();
    if (!stream) throw StepFailed{nameOf(file) + " to be written", "no access"};
}

std::string littleEndian(std::uint32_t value, int bytes)
{
    std::string text;
    for (int i = 0; i < bytes; ++i)
        text.push_back(static_cast<char>((value >> (8U * static_cast<unsigned>(i))) & 0xFFU));
    return text;
}

std::string bytesToRead(const fs::path& file)
{
    std::error_code ignored;
    std::ifstream stream(file, std::ios::binary);
    if (!stream || fs::is_directory(file, ignored)) throw StepFailed{"a file " + nameOf(file), "none"};
    return std::string(std::istreambuf_iterator<char>(stream), {});
}

/// Takes the next line off `bytes`, with its line end.
std::string takeLine(std::string& bytes)
{
    const std::size_t end = bytes.find(lineEnd);
    const std::size_t length = end == std::string::npos ? bytes.size() : end + lineEnd.size();
    std::string line = bytes.substr(0, length);
    bytes.erase(0, length);
    return line;
}

/// A line for a message: what stands in it, and a word on a missing line end.
std::string shownLine(const std::string& bytes)
{
    if (bytes.ends_with(lineEnd))
        return inQuotes(base::fromWindows1250(bytes.substr(0, bytes.size() - lineEnd.size())));
    return inQuotes(base::fromWindows1250(bytes)) + " without CR LF";
}

}  // namespace

void makeFolder(const fs::path& folder)
{
    std::error_code failed;
    fs::create_directories(folder, failed);
    if (failed) throw StepFailed{"a folder " + platform::pathText(folder), failed.message()};
}

void writeTextFile(const fs::path& file, const std::vector<std::string>& lines)
{
    std::string bytes;
    for (const std::string& line : lines)
        bytes += base::toWindows1250(line) + std::string(lineEnd);
    writeBytes(file, bytes);
}

void writeSoundFile(const fs::path& file, std::chrono::nanoseconds length)
{
    constexpr std::uint32_t samplesPerSecond = 8000;
    constexpr char silence = static_cast<char>(0x80);  // the middle of samples of 8 bits
    const auto count = static_cast<std::uint32_t>(length.count() / (1'000'000'000 / samplesPerSecond));
    constexpr std::uint32_t headBehindSize = 36;
    std::string bytes = "RIFF" + littleEndian(headBehindSize + count, 4) + "WAVEfmt " + littleEndian(16, 4);
    bytes += littleEndian(1, 2);  // PCM
    bytes += littleEndian(1, 2);  // one channel
    bytes += littleEndian(samplesPerSecond, 4);
    bytes += littleEndian(samplesPerSecond, 4);  // bytes a second
    bytes += littleEndian(1, 2);                 // bytes a sample
    bytes += littleEndian(8, 2);                 // bits a sample
    bytes += "data" + littleEndian(count, 4) + std::string(count, silence);
    writeBytes(file, bytes);
}

void mustHaveLines(const fs::path& file, const std::vector<std::string>& lines)
{
    std::string bytes = bytesToRead(file);
    for (std::size_t i = 0; i < lines.size(); ++i) {
        const std::string place = "line " + std::to_string(i + 1) + " of " + nameOf(file);
        if (bytes.empty()) throw StepFailed{place + " " + inQuotes(lines[i]), "the end of the file"};
        const std::string line = takeLine(bytes);
        if (line == base::toWindows1250(lines[i]) + std::string(lineEnd)) continue;
        throw StepFailed{place + " " + inQuotes(lines[i]), shownLine(line)};
    }
    if (bytes.empty()) return;
    throw StepFailed{"the end of " + nameOf(file) + " behind line " + std::to_string(lines.size()),
                     shownLine(takeLine(bytes))};
}

std::vector<std::string> linesOf(const fs::path& file)
{
    std::string bytes = bytesToRead(file);
    std::vector<std::string> lines;
    while (!bytes.empty()) {
        std::string line = base::fromWindows1250(takeLine(bytes));
        if (line.ends_with(lineEnd)) line.resize(line.size() - lineEnd.size());
        lines.push_back(std::move(line));
    }
    return lines;
}

}  // namespace script
