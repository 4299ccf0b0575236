#include "desktop/form_scale.h"

#include <algorithm>
#include <cmath>

namespace desktop {

namespace {

constexpr double designHeight = 600;
constexpr double designWidth = 800;
constexpr double mostFontGrowth = 1.2;              ///< against the height: boxes have about so much room to spare
constexpr double designPixelsPerPoint = 20.0 / 15;  // 20 twips a point, 15 a pixel

}  // namespace

FormScale::FormScale(double width, double height, QSize client)
    : pixelsPerTwipX_(client.width() / width),
      pixelsPerTwipY_(client.height() / height),
      growth_(client.height() / designHeight),
      growthX_(client.width() / designWidth),
      growthOfFonts_(std::min(std::sqrt(growth_ * growthX_), growth_ * mostFontGrowth))
{
}

QRect FormScale::pixels(const screen::Rectangle& place) const
{
    const auto whole = [](double value) { return static_cast<int>(std::lround(value)); };
    const QPoint topLeft(whole(x(place.Left)), whole(y(place.Top)));
    const QPoint end(whole(x(place.Left + place.Width)), whole(y(place.Top + place.Height)));
    return {topLeft, QSize(end.x() - topLeft.x(), end.y() - topLeft.y())};
}

int FormScale::fontPixels(double points) const
{
    return std::max(1, static_cast<int>(std::lround(points * designPixelsPerPoint * growthOfFonts_)));
}

int FormScale::designPixels(double pixels) const
{
    return std::max(1, static_cast<int>(std::lround(pixels * growth_)));
}

}  // namespace desktop
