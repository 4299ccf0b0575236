// Whole text files in Windows-1250 with CR LF, as they leave the program and come back.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace platform {

/// Text of a file, decoded. `designPath` as for resolve(). Error 53 when it is not there, 75 when it cannot be read.
std::string readTextFile(std::string_view designPath);

/// Replaces a file by `text`, encoded. It is written beside and put in place when it is complete, so that a failure
/// leaves the old one. Error 76 when the folder is not there, 75 when it cannot be written, 61 when the disk is full.
void writeTextFile(std::string_view designPath, std::string_view text);

/// Reads a file value by value, as field-wise input does: leading blanks are dropped, a value ends at a line end and
/// also at a comma, and a double quote at the start of a value opens a quoted one.
class FieldReader {
 public:
    explicit FieldReader(std::string text) : text_(std::move(text)) {}

    /// The next value. Error 62 at the end of the file.
    std::string text();

    /// The next value as a number. Error 13 when it is none, 6 when it does not fit 16 bits.
    std::int16_t number();

 private:
    void skipSeparator();

    std::string text_;
    std::size_t at_ = 0;
};

}  // namespace platform
