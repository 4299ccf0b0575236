// How wide a column of printed text is.
#pragma once

#include <QFontMetricsF>

namespace desktop {

/// The average width of a character, each letter counted as often as it comes in plain text: what fonts with a fixed
/// table of columns call their average width. Fonts of the same letters agree in it, whatever else they hold.
double columnWidth(const QFontMetricsF& metrics);

}  // namespace desktop
