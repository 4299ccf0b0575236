#include "storage/like_pattern.h"

#include <algorithm>

#include "base/runtime_error.h"
#include "base/text.h"

namespace storage {

LikePattern::LikePattern(std::string_view pattern)
{
    const std::u32string characters = base::toCharacters(base::upper(pattern));
    for (std::size_t i = 0; i < characters.size(); ++i) {
        switch (characters[i]) {
            case U'*':
                pieces_.push_back({Kind::anyRun, 0, false, {}});
                break;
            case U'?':
                pieces_.push_back({Kind::anyOne, 0, false, {}});
                break;
            case U'#':
                pieces_.push_back({Kind::digit, 0, false, {}});
                break;
            case U'[':
                i = addSet(characters, i);
                break;
            default:
                pieces_.push_back({Kind::itself, characters[i], false, {}});
                break;
        }
    }
    takeLiteralHead();
}

/// Returns the place of the closing bracket. Nothing between the brackets stands for no character at all.
std::size_t LikePattern::addSet(std::u32string_view pattern, std::size_t opening)
{
    const std::size_t closing = pattern.find(U']', opening);
    if (closing == std::u32string_view::npos)
        throw base::RuntimeError(base::invalidArgument, "A bracket is not closed in " + base::fromCharacters(pattern));
    std::u32string_view inside = pattern.substr(opening + 1, closing - opening - 1);
    if (inside.empty()) return closing;

    Piece set{Kind::set, 0, false, {}};
    set.excluded = inside[0] == U'!' && inside.size() > 1;
    if (set.excluded) inside.remove_prefix(1);
    for (std::size_t i = 0; i < inside.size(); ++i) {
        const bool range = i + 2 < inside.size() && inside[i + 1] == U'-';
        const char32_t last = range ? inside[i + 2] : inside[i];
        if (last < inside[i])
            throw base::RuntimeError(base::invalidArgument,
                                     "A range runs backwards in " + base::fromCharacters(pattern));
        set.ranges.emplace_back(inside[i], last);
        if (range) i += 2;
    }
    pieces_.push_back(std::move(set));
    return closing;
}

void LikePattern::takeLiteralHead()
{
    for (const Piece& piece : pieces_) {
        if (piece.kind != Kind::itself || piece.character >= 0x7F) return;
        literalHead_.push_back(static_cast<char>(piece.character));
    }
}

bool LikePattern::fits(const Piece& piece, char32_t character)
{
    switch (piece.kind) {
        case Kind::itself:
            return piece.character == character;
        case Kind::digit:
            return character >= U'0' && character <= U'9';
        case Kind::set: {
            const bool listed = std::any_of(piece.ranges.begin(), piece.ranges.end(), [&](const auto& range) {
                return character >= range.first && character <= range.second;
            });
            return listed != piece.excluded;
        }
        case Kind::anyOne:
        case Kind::anyRun:
            break;
    }
    return true;
}

bool LikePattern::matches(std::string_view text) const
{
    const std::u32string characters = base::toCharacters(base::upper(text));
    std::size_t piece = 0;
    std::size_t at = 0;
    // Where to go on when what follows the last "*" did not fit: that "*" takes one character more.
    std::size_t pieceBehindRun = std::u32string::npos;
    std::size_t endOfRun = 0;
    while (at < characters.size()) {
        if (piece < pieces_.size() && pieces_[piece].kind == Kind::anyRun) {
            pieceBehindRun = ++piece;
            endOfRun = at;
        } else if (piece < pieces_.size() && fits(pieces_[piece], characters[at])) {
            ++piece;
            ++at;
        } else if (pieceBehindRun != std::u32string::npos) {
            piece = pieceBehindRun;
            at = ++endOfRun;
        } else {
            return false;
        }
    }
    return std::all_of(pieces_.begin() + static_cast<std::ptrdiff_t>(piece), pieces_.end(),
                       [](const Piece& rest) { return rest.kind == Kind::anyRun; });
}

}  // namespace storage
