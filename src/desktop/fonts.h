// Fonts by their size in pixels, and how large a text can be in its box.
#pragma once

#include <QFont>
#include <QFontMetricsF>
#include <QSizeF>
#include <map>
#include <tuple>

namespace desktop {

/// Below this nobody can read it: a text that does not fit then is cut.
constexpr int smallestFontPixels = 8;

enum class Face {
    text,  ///< the desktop's own family
    code,  ///< of fixed pitch, with a mark in its zero: calls, locators, codes and times
};

class Fonts {
 public:
    Fonts();

    const QFont& font(int pixels, bool bold, Face face = Face::text) { return entry(pixels, bold, face).font; }
    const QFontMetricsF& metrics(int pixels, bool bold, Face face = Face::text)
    {
        return entry(pixels, bold, face).metrics;
    }

    /// The size, `wanted` or less, at which the text fits into `room`; the smallest one when none does.
    /// `flags` are those that the text is drawn with, Qt::TextWordWrap for one that may break into lines.
    int fitting(const QString& text, const QSizeF& room, int wanted, bool bold, int flags, Face face = Face::text);

 private:
    struct Entry {
        QFont font;
        QFontMetricsF metrics;
    };

    Entry& entry(int pixels, bool bold, Face face);

    QString textFamily_;
    QString codeFamily_;
    std::map<std::tuple<int, bool, Face>, Entry> entries_;
};

}  // namespace desktop
