#include "desktop/fonts.h"

#include <QFontDatabase>
#include <QRectF>
#include <algorithm>

namespace desktop {

namespace {

constexpr double farDown = 100000;

/// A family of fixed pitch in which nobody takes a zero for an O. Where none of them is there, the desktop's own.
QString familyForCodes()
{
    for (const char* family : {"DejaVu Sans Mono", "Consolas", "Menlo"})
        if (QFontDatabase::hasFamily(QLatin1String(family))) return QLatin1String(family);
    return QFontDatabase::systemFont(QFontDatabase::FixedFont).family();
}

}  // namespace

Fonts::Fonts()
    : textFamily_(QFontDatabase::systemFont(QFontDatabase::GeneralFont).family()), codeFamily_(familyForCodes())
{
}

Fonts::Entry& Fonts::entry(int pixels, bool bold, Face face)
{
    const auto found = entries_.find({pixels, bold, face});
    if (found != entries_.end()) return found->second;
    QFont font(face == Face::code ? codeFamily_ : textFamily_);
    font.setPixelSize(pixels);
    font.setBold(bold);
    return entries_.emplace(std::tuple(pixels, bold, face), Entry{font, QFontMetricsF(font)}).first->second;
}

int Fonts::fitting(const QString& text, const QSizeF& room, int wanted, bool bold, int flags, Face face)
{
    if (text.isEmpty()) return std::max(wanted, smallestFontPixels);
    for (int pixels = wanted; pixels > smallestFontPixels; --pixels) {
        const QRectF needed =
            metrics(pixels, bold, face).boundingRect(QRectF(0, 0, room.width(), farDown), flags, text);
        if (needed.width() <= room.width() && needed.height() <= room.height()) return pixels;
    }
    return smallestFontPixels;
}

}  // namespace desktop
