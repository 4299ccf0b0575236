// The record that every reader of a log row copies the columns into: texts of fixed length.
#pragma once

#include <string>
#include <string_view>

#include "base/text.h"

namespace screen {

/// A text of always `width` characters: cut when longer, filled with blanks on the right when shorter.
template <std::size_t width>
class FixedText {
 public:
    FixedText& operator=(std::string_view text)
    {
        value_ = base::padRight(text, width);
        return *this;
    }
    operator const std::string&() const { return value_; }
    operator std::string_view() const { return value_; }
    const std::string& get() const { return value_; }

 private:
    std::string value_ = base::blanks(width);
};

struct LogRecord {
    FixedText<3> Nr;  ///< number of the row, from 1
    FixedText<10> Callsign;
    FixedText<9> Data;
    FixedText<6> UTC;
    FixedText<7> Sent;
    FixedText<7> Rcvd;
    FixedText<4> Mode;
    FixedText<5> Freq;
    FixedText<6> QRALoc;
    FixedText<6> Pct;
    FixedText<10> NameR;  ///< of the Maraton log, as the two below
    FixedText<10> NameE;
    FixedText<6> QRALcE;
};

}  // namespace screen
