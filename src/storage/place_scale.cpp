#include "storage/place_scale.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <string_view>

namespace storage {

namespace {

using OrderText = std::optional<std::string>;

/// SQLite compares the texts byte by byte, with small letters for capitals.
char folded(char c)
{
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

int compared(char a, char b)
{
    return static_cast<unsigned char>(folded(a)) - static_cast<unsigned char>(folded(b));
}

/// Below 0 when `a` comes first. Null comes before everything.
int compared(const OrderText& a, const OrderText& b)
{
    if (!a || !b) return (a ? 1 : 0) - (b ? 1 : 0);
    const std::size_t shorter = std::min(a->size(), b->size());
    for (std::size_t i = 0; i < shorter; ++i)
        if (const int difference = compared((*a)[i], (*b)[i])) return difference;
    if (a->size() == b->size()) return 0;
    return a->size() < b->size() ? -1 : 1;
}

bool comesBefore(const Place& a, const Place& b)
{
    for (std::size_t i = 0; i < a.order.size(); ++i)
        if (const int difference = compared(a.order[i], b.order[i])) return difference < 0;
    return a.key < b.key;
}

/// A text as a number from 0 to 1 that grows with it: its characters are the digits. Digit 0 is the end of the text,
/// the others are the printable characters without capitals, and the last one stands for all bytes behind those.
constexpr int radix = 71;
/// More digits than these a number of double precision cannot tell apart.
constexpr std::size_t mostDigits = 8;
constexpr int lastBeforeCapitals = 33;  ///< digit of "@"

int digitOf(char c)
{
    const int code = static_cast<unsigned char>(folded(c));
    if (code <= ' ') return 1;
    if (code <= '@') return code - ' ' + 1;
    return std::min(code - '[' + lastBeforeCapitals + 1, radix - 1);
}

char characterOf(int digit)
{
    return static_cast<char>(digit <= lastBeforeCapitals ? ' ' + digit - 1 : '[' + digit - lastBeforeCapitals - 1);
}

double numberOf(std::string_view text)
{
    double number = 0;
    double unit = 1;
    for (const char c : text.substr(0, mostDigits)) {
        unit /= radix;
        number += unit * digitOf(c);
    }
    return number;
}

std::string textOf(double number)
{
    std::string text;
    while (text.size() < mostDigits) {
        number *= radix;
        const int digit = std::clamp(static_cast<int>(number), 0, radix - 1);
        if (digit == 0) break;
        text += characterOf(digit);
        number -= digit;
    }
    return text;
}

/// Between two neighbouring marks: what they share, and the numbers that tell them apart.
class Gap {
 public:
    Gap(const Place& from, const Place& to) : from_(from), to_(to)
    {
        while (level_ < from.order.size() && compared(from.order[level_], to.order[level_]) == 0)
            ++level_;
        if (byKey()) return;
        const std::string_view a = textAt(from);
        const std::string_view b = textAt(to);
        while (head_ < std::min(a.size(), b.size()) && compared(a[head_], b[head_]) == 0)
            ++head_;
    }

    /// Part of the gap in front of a place inside it.
    double partBefore(const Place& place) const
    {
        const double width = numberOf(to_) - numberOf(from_);
        if (width <= 0) return 0;
        return std::clamp((numberOf(place) - numberOf(from_)) / width, 0.0, 1.0);
    }

    Place placeAt(double part) const
    {
        Place start{from_.key - 1, from_.order};
        const double width = numberOf(to_) - numberOf(from_);
        if (width <= 0 || part <= 0) return start;
        const double number = numberOf(from_) + part * width;
        if (byKey()) return {std::llround(number) - 1, from_.order};

        Place place{std::numeric_limits<std::int64_t>::min(), {from_.order.begin(), from_.order.end()}};
        place.order[level_] = std::string(textAt(from_).substr(0, head_)) + textOf(number);
        std::fill(place.order.begin() + static_cast<std::ptrdiff_t>(level_) + 1, place.order.end(), std::nullopt);
        // Of several rows with the text of the first mark, those in front of the mark are not in the gap.
        return comesBefore(place, start) ? start : place;
    }

 private:
    bool byKey() const { return level_ == from_.order.size(); }

    std::string_view textAt(const Place& place) const
    {
        const OrderText& text = place.order[level_];
        return text ? std::string_view(*text) : std::string_view();
    }

    double numberOf(const Place& place) const
    {
        if (byKey()) return static_cast<double>(place.key);
        const std::string_view text = textAt(place);
        return storage::numberOf(text.substr(std::min(head_, text.size())));
    }

    const Place& from_;
    const Place& to_;
    std::size_t level_ = 0;  ///< the first column of the order in which they differ; behind the last one it is the key
    std::size_t head_ = 0;   ///< characters that their texts there share
};

}  // namespace

PlaceScale::PlaceScale(std::vector<Place> marks) : marks_(std::move(marks))
{
    std::sort(marks_.begin(), marks_.end(), comesBefore);
    const auto sameRow = [](const Place& a, const Place& b) { return a.key == b.key; };
    marks_.erase(std::unique(marks_.begin(), marks_.end(), sameRow), marks_.end());
}

double PlaceScale::shareBefore(const Place& place) const
{
    const auto behind = std::upper_bound(marks_.begin(), marks_.end(), place, comesBefore);
    if (behind == marks_.begin()) return 0;
    if (behind == marks_.end()) return marks_.size() == 1 ? 0 : 1;
    const auto gaps = static_cast<double>(marks_.size() - 1);
    const auto gapsBefore = static_cast<double>(behind - marks_.begin() - 1);
    return (gapsBefore + Gap(*std::prev(behind), *behind).partBefore(place)) / gaps;
}

Place PlaceScale::placeAt(double share) const
{
    const std::size_t gaps = marks_.size() - 1;
    if (gaps == 0) return {marks_.front().key - 1, marks_.front().order};
    const double gapsBefore = std::clamp(share, 0.0, 1.0) * static_cast<double>(gaps);
    const std::size_t gap = std::min(static_cast<std::size_t>(gapsBefore), gaps - 1);
    return Gap(marks_[gap], marks_[gap + 1]).placeAt(gapsBefore - static_cast<double>(gap));
}

}  // namespace storage
