// The control with the focus has a mark around it, whatever it is, on whatever ground, in a window of any size.
#include <gtest/gtest.h>

#include <QImage>

#include "desktop/form_view.h"
#include "desktop/look.h"
#include "test_page.h"

namespace {

using screen::Kind;

/// Part of the four edges of a place that have the colour of the mark.
double markedPart(const QImage& image, const QRect& place)
{
    int marked = 0;
    int all = 0;
    const auto look = [&](int x, int y) {
        ++all;
        if (image.pixelColor(x, y) == desktop::focusColour()) ++marked;
    };
    for (int x = place.left() + 1; x < place.right(); ++x) {
        look(x, place.top());
        look(x, place.bottom());
    }
    for (int y = place.top() + 1; y < place.bottom(); ++y) {
        look(place.left(), y);
        look(place.right(), y);
    }
    return static_cast<double>(marked) / all;
}

TEST(FocusMark, SurroundsEveryKindOfControlThatTakesKeys)
{
    constexpr Kind kinds[] = {Kind::textBox, Kind::commandButton, Kind::optionButton, Kind::checkBox, Kind::listBox};
    constexpr screen::Colour grounds[] = {screen::white, screen::yellow, screen::red,       screen::green,
                                          screen::grey,  screen::lampOn, screen::buttonFace};
    for (const QSize size : {QSize(637, 411), QSize(800, 560), QSize(1920, 1020)}) {
        for (const Kind kind : kinds) {
            for (const screen::Colour& ground : grounds) {
                test_page::Page page;
                page.add(kind, {600, 600, 2400, 900}, "CONCURS").background = ground;
                page.add(kind, {600, 2600, 2400, 900}, "TEST").background = ground;
                page.picture().controls[0].items = {"2320", "5760"};
                page.picture().controls[0].listIndex = 0;
                page.picture().controls[0].hasFocus = true;
                desktop::FormView view([](const app::QueueEntry&) {});
                view.resize(size);
                view.setPicture(page.take());
                const QImage image = view.grab().toImage();
                const auto partOf = [&](std::size_t control) {
                    return markedPart(image, view.placeOf(page.picture().controls[control].control));
                };
                EXPECT_EQ(partOf(0), 1.0) << static_cast<int>(kind) << " at " << size.width();
                EXPECT_EQ(partOf(1), 0.0) << static_cast<int>(kind) << " at " << size.width();
            }
        }
    }
}

}  // namespace
