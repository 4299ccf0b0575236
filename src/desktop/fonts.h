// Fonts by their size in pixels, and how large a text can be in its box.
#pragma once

#include <QFont>
#include <QFontMetricsF>
#include <QSizeF>
#include <map>
#include <string>

namespace desktop {

/// Below this nobody can read it: a text that does not fit then is cut.
constexpr int smallestFontPixels = 8;

class Fonts {
 public:
    /// Fonts of the desktop's own family.
    Fonts();

    const QFont& font(int pixels, bool bold) { return entry(pixels, bold).font; }
    const QFontMetricsF& metrics(int pixels, bool bold) { return entry(pixels, bold).metrics; }

    /// The size, `wanted` or less, at which the text fits into `room`; the smallest one when none does.
    /// `flags` are those that the text is drawn with, Qt::TextWordWrap for one that may break into lines.
    int fitting(const QString& text, const QSizeF& room, int wanted, bool bold, int flags);

 private:
    struct Entry {
        QFont font;
        QFontMetricsF metrics;
    };

    Entry& entry(int pixels, bool bold);

    QString family_;
    std::map<std::pair<int, bool>, Entry> entries_;
};

}  // namespace desktop
