// The patterns behind LIKE: * any run of characters, ? one character, # one digit, [A-F] one of these, [!A-F] none of
// these. All other characters stand for themselves, % and _ too, and letters of both cases are the same.
#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace storage {

class LikePattern {
 public:
    /// Error 5 when a bracket is not closed or a range runs backwards.
    explicit LikePattern(std::string_view pattern);

    /// True when the whole text fits the pattern.
    bool matches(std::string_view text) const;

    /// The characters in front of the first one that is no plain ASCII character standing for itself. Every text that
    /// fits begins with them, in some case of letters.
    const std::string& literalHead() const { return literalHead_; }

 private:
    enum class Kind { itself, anyOne, digit, anyRun, set };

    struct Piece {
        Kind kind = Kind::itself;
        char32_t character = 0;
        bool excluded = false;
        std::vector<std::pair<char32_t, char32_t>> ranges;
    };

    std::size_t addSet(std::u32string_view pattern, std::size_t opening);
    void takeLiteralHead();
    static bool fits(const Piece& piece, char32_t character);

    std::vector<Piece> pieces_;
    std::string literalHead_;
};

}  // namespace storage
