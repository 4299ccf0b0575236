#include "desktop/screen_area.h"

#include <QGuiApplication>
#include <QScreen>

namespace desktop {

platform::ScreenSize ScreenArea::size() const
{
    const std::lock_guard lock(mutex_);
    return size_;
}

void ScreenArea::measure()
{
    const QScreen* screen = QGuiApplication::primaryScreen();
    if (screen == nullptr) return;
    const QSize available = screen->availableGeometry().size();
    const std::lock_guard lock(mutex_);
    size_ = {available.width(), available.height()};
}

}  // namespace desktop
