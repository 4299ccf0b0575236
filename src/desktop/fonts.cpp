#include "desktop/fonts.h"

#include <QFontDatabase>
#include <QRectF>
#include <algorithm>

namespace desktop {

namespace {

constexpr double farDown = 100000;

}  // namespace

Fonts::Fonts() : family_(QFontDatabase::systemFont(QFontDatabase::GeneralFont).family())
{
}

Fonts::Entry& Fonts::entry(int pixels, bool bold)
{
    const auto found = entries_.find({pixels, bold});
    if (found != entries_.end()) return found->second;
    QFont font(family_);
    font.setPixelSize(pixels);
    font.setBold(bold);
    return entries_.emplace(std::pair(pixels, bold), Entry{font, QFontMetricsF(font)}).first->second;
}

int Fonts::fitting(const QString& text, const QSizeF& room, int wanted, bool bold, int flags)
{
    if (text.isEmpty()) return std::max(wanted, smallestFontPixels);
    for (int pixels = wanted; pixels > smallestFontPixels; --pixels) {
        const QRectF needed = metrics(pixels, bold).boundingRect(QRectF(0, 0, room.width(), farDown), flags, text);
        if (needed.width() <= room.width() && needed.height() <= room.height()) return pixels;
    }
    return smallestFontPixels;
}

}  // namespace desktop
