// How controls look, whatever they say: what is off can be read, what has the focus is seen, captions stand above what
// they head, and the rose has a dial where there is room.
#include "desktop/look.h"

#include <gtest/gtest.h>

#include <QFontInfo>
#include <QImage>
#include <algorithm>
#include <cmath>
#include <vector>

#include "desktop/form_surface.h"
#include "desktop/rose.h"
#include "test_page.h"

namespace {

using desktop::Face;
using screen::Kind;

constexpr QSize sizes[] = {{800, 560}, {1366, 727}, {1920, 1020}};
constexpr screen::Colour grounds[] = {screen::yellow, screen::green,  screen::red,       screen::white,
                                      screen::grey,   screen::lampOn, screen::buttonFace};

double linear(double part)
{
    return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
}

double luminance(const QColor& colour)
{
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) + 0.0722 * linear(colour.blueF());
}

double contrast(const QColor& a, const QColor& b)
{
    const auto [darker, lighter] = std::minmax({luminance(a), luminance(b)});
    return (lighter + 0.05) / (darker + 0.05);
}

class LookTest : public testing::Test {
 protected:
    QImage painted(QSize size)
    {
        surface_.setSize(size);
        surface_.setPicture(page_.take());
        surface_.setSize(size);
        QImage image(size, QImage::Format_RGB32);
        QPainter painter(&image);
        surface_.paint(painter, QRect(QPoint(0, 0), size));
        return image;
    }

    QRect placeOf(const screen::Rectangle& place) const { return surface_.scale().pixels(place); }

    /// Columns of the window in which something is drawn on the ground of the form.
    static std::vector<int> columnsWithInk(const QImage& image, const QRect& within)
    {
        std::vector<int> columns;
        for (int x = within.left(); x <= within.right(); ++x) {
            bool ink = false;
            for (int y = within.top(); y <= within.bottom(); ++y)
                ink = ink || image.pixelColor(x, y) != desktop::formColour();
            if (ink) columns.push_back(x);
        }
        return columns;
    }

    test_page::Page page_;
    desktop::FormSurface surface_;
};

TEST_F(LookTest, WhatIsOffKeepsItsContrast)
{
    for (const screen::Colour ground : grounds) {
        app::ControlPicture box;
        box.background = ground;
        box.foreground = ground == screen::lampOn ? screen::white : screen::black;
        box.enabled = false;
        EXPECT_GE(contrast(desktop::textColourOf(box), desktop::toolkitColour(ground)), 4.5)
            << desktop::toolkitColour(ground).name().toStdString();
    }
}

TEST_F(LookTest, MenusThatAreOffKeepTheirContrast)
{
    QPalette dark;
    dark.setColor(QPalette::All, QPalette::Window, QColor(40, 40, 40));
    for (const QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        dark.setColor(QPalette::All, role, Qt::white);
    for (const QPalette& before : {QPalette(QColor(240, 240, 240)), dark}) {
        const QPalette colours = desktop::readable(before);
        for (const QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
            const QColor off = colours.color(QPalette::Disabled, role);
            EXPECT_GE(contrast(off, colours.color(QPalette::Window)), 4.5) << role;
            EXPECT_NE(off, colours.color(QPalette::Active, role)) << role;
            EXPECT_EQ(colours.color(QPalette::Active, role), before.color(QPalette::Active, role)) << role;
        }
    }
}

TEST_F(LookTest, TheFocusIsSeenOnEveryGround)
{
    constexpr double clearlyDifferent = 3;
    for (const screen::Colour ground : grounds)
        for (const QSize size : sizes) {
            page_.picture().controls.clear();
            app::ControlPicture& box = page_.add(Kind::textBox, {600, 600, 3000, 600});
            box.background = ground;
            box.hasFocus = true;
            const screen::Rectangle at = box.place;
            const QImage image = painted(size);
            const QRect place = placeOf(at);
            const QColor colour = desktop::toolkitColour(ground);
            double best = 0;
            for (int depth = 0; depth < desktop::focusThickness(surface_.scale()); ++depth)
                best = std::max(best, contrast(image.pixelColor(place.left() + depth, place.center().y()), colour));
            EXPECT_GE(best, clearlyDifferent) << colour.name().toStdString() << " at " << size.width();
        }
}

TEST_F(LookTest, AnEmptyGridKeepsTheColumnsOfTheRowsBefore)
{
    const auto show = [this](std::vector<std::string> row, double width) {
        app::ControlPicture& control = page_.picture().controls.front();
        auto rows = std::make_shared<app::GridRows>();
        if (!row.empty()) rows->rows.push_back({1, std::move(row)});
        auto grid = std::make_shared<app::GridPicture>();
        grid->titles = {"Call", "Pct"};
        grid->columnWidths = {width, width};
        grid->rows = rows;
        control.grid = grid;
        surface_.setPicture(page_.take());
        return surface_.gridColumns(surface_.picture().controls.front()).columns;
    };
    page_.addGrid({600, 600, 6000, 3000}, 0, false, false);
    const auto empty = show({}, 900);
    const auto filled = show({"YO2LONG/PORTABLE/CALL", "404"}, 900);
    ASSERT_NE(filled[0].width, empty[0].width);
    ASSERT_TRUE(filled[1].figures);
    const auto narrowed = show({}, 900);
    EXPECT_EQ(narrowed[0].width, filled[0].width);
    EXPECT_TRUE(narrowed[1].figures);
    EXPECT_NE(show({}, 1200)[0].width, filled[0].width) << "other columns";
}

TEST_F(LookTest, EveryWordStandsAboveItsField)
{
    const screen::Rectangle fields[] = {{600, 900, 840, 600}, {1500, 900, 1020, 600}, {2580, 900, 1440, 600}};
    app::ControlPicture& label = page_.add(Kind::label, {600, 600, 3420, 240}, "      RSTR CODR QTHLOCR");
    label.heads.assign(std::begin(fields), std::end(fields));
    label.fontPoints = 10;
    label.bold = true;
    const screen::Rectangle at = label.place;
    constexpr int nearTheEdge = 4;
    for (const QSize size : sizes) {
        const QImage image = painted(size);
        const QRect line = placeOf(at);
        for (const screen::Rectangle& field : fields) {
            const QRect below = placeOf(field);
            const std::vector<int> ink =
                columnsWithInk(image, {below.left(), line.top(), below.width(), line.height()});
            ASSERT_FALSE(ink.empty()) << field.Left << " at " << size.width();
            EXPECT_LE(ink.front() - below.left(), nearTheEdge) << field.Left << " at " << size.width();
            EXPECT_LT(ink.back(), below.right()) << field.Left << " at " << size.width();
        }
    }
}

TEST_F(LookTest, ALongRunOfBlanksEndsALine)
{
    page_.add(Kind::label, {600, 600, 6000, 900}, "One sentence.      Another");
    const QImage image = painted({800, 600});
    QRect lower = placeOf({600, 600, 6000, 900});
    lower.setTop(lower.top() + 16);
    EXPECT_FALSE(columnsWithInk(image, lower).empty());
}

TEST_F(LookTest, AFrameReachesToTheEdgesOfItsPlace)
{
    page_.add(Kind::frame, {600, 600, 3000, 1500}, "SSB cu PC");
    for (const QSize size : sizes) {
        const QImage image = painted(size);
        const QRect place = placeOf({600, 600, 3000, 1500});
        for (const QPoint edge : {QPoint(place.center().x(), place.top()), QPoint(place.center().x(), place.bottom()),
                                  QPoint(place.left(), place.center().y()), QPoint(place.right(), place.center().y())})
            EXPECT_EQ(image.pixelColor(edge), desktop::frameColour()) << size.width();
    }
}

TEST_F(LookTest, ALampHasAnEdge)
{
    page_.add(Kind::label, {600, 600, 540, 120}).background = screen::lampOff;
    page_.add(Kind::label, {1200, 600, 540, 120}).background = screen::lampOn;
    const QImage image = painted({800, 600});
    for (const auto& [left, colour] : {std::pair(600.0, screen::lampOff), std::pair(1200.0, screen::lampOn)}) {
        const QRect place = placeOf({left, 600, 540, 120});
        EXPECT_EQ(image.pixelColor(place.center()), desktop::toolkitColour(colour));
        EXPECT_LT(image.pixelColor(place.topLeft()).lightness(), desktop::toolkitColour(colour).lightness());
    }
}

TEST_F(LookTest, CodesAreOfFixedPitch)
{
    desktop::Fonts fonts;
    EXPECT_TRUE(QFontInfo(fonts.font(20, true, Face::code)).fixedPitch());
    const QFontMetricsF& metrics = fonts.metrics(20, true, Face::code);
    EXPECT_EQ(metrics.horizontalAdvance("1"), metrics.horizontalAdvance("W"));

    app::ControlPicture box;
    box.kind = Kind::textBox;
    box.place = {0, 0, 3000, 600};
    const desktop::FormScale scale(12000, 9000, {800, 600});
    EXPECT_EQ(desktop::layOutTextBox(box, scale, fonts, 0).face, Face::text);
    box.inputMethod = false;
    EXPECT_EQ(desktop::layOutTextBox(box, scale, fonts, 0).face, Face::code);
}

TEST_F(LookTest, FontsGrowWithBothSidesOfTheWindow)
{
    constexpr double points = 12;
    const auto pixelsIn = [](QSize size) { return desktop::FormScale(12000, 9000, size).fontPixels(points); };
    EXPECT_EQ(pixelsIn({800, 600}), 16);
    EXPECT_EQ(pixelsIn({1600, 1200}), 32);
    EXPECT_EQ(pixelsIn({800, 1200}), 23) << "the boxes are no wider";
    EXPECT_EQ(pixelsIn({968, 600}), 18);
    EXPECT_EQ(pixelsIn({3200, 600}), 19) << "the boxes are no higher";
}

// ---- The dial around the rose

class DialTest : public testing::Test {
 protected:
    static app::Picture pictureOf(double width, double height)
    {
        app::Picture picture;
        picture.width = width;
        picture.height = height;
        picture.rose = {true, width / 2, height / 2, 500, 45};
        return picture;
    }

    static double radiusIn(const app::Picture& picture, QSize size)
    {
        return desktop::radiusOfDial(picture, desktop::FormScale(picture.width, picture.height, size));
    }
};

TEST_F(DialTest, IsThereOnALargeScreen)
{
    EXPECT_EQ(radiusIn(pictureOf(12000, 9000), {800, 560}), 0);
    EXPECT_GT(radiusIn(pictureOf(28800, 16200), {1920, 1040}), 60);
    app::Picture without = pictureOf(28800, 16200);
    without.rose.visible = false;
    EXPECT_EQ(radiusIn(without, {1920, 1040}), 0);
}

TEST_F(DialTest, KeepsClearOfEverything)
{
    constexpr QSize size(1920, 1080);
    app::Picture picture = pictureOf(28800, 16200);
    const double free = radiusIn(picture, size);
    app::ControlPicture& box = picture.controls.emplace_back();
    box.kind = Kind::textBox;

    box.place = {14400 + 75 * 15, 0, 3000, 16200};
    EXPECT_LT(radiusIn(picture, size), 75);
    EXPECT_GT(radiusIn(picture, size), 60);
    box.place = {0, 0, 28800, 8100 - 75 * 15};
    EXPECT_LT(radiusIn(picture, size), 75);
    EXPECT_GT(radiusIn(picture, size), 60);
    box.place = {14400 + 50 * 15, 0, 3000, 16200};
    EXPECT_EQ(radiusIn(picture, size), 0) << "no room outside the letters";
    box.place = {0, 0, 28800, 16200};
    EXPECT_EQ(radiusIn(picture, size), 0);
    box.kind = Kind::line;
    EXPECT_EQ(radiusIn(picture, size), free) << "the needle is part of the rose";
}

TEST_F(DialTest, IsPaintedAndPaintedAnew)
{
    constexpr QSize size(1920, 1080);
    desktop::FormSurface surface;
    auto picture = std::make_shared<app::Picture>(pictureOf(28800, 16200));
    picture->controls.emplace_back().kind = Kind::line;
    surface.setPicture(picture);
    surface.setSize(size);
    const double radius = radiusIn(*picture, size);
    QImage image(size, QImage::Format_RGB32);
    QPainter painter(&image);
    surface.paint(painter, QRect(QPoint(0, 0), size));
    painter.end();
    // The mark of the heading, and nothing on the other side.
    const double out = radius * 0.9 * std::sqrt(0.5);
    EXPECT_EQ(image.pixelColor(static_cast<int>(960 + out), static_cast<int>(540 - out)), desktop::focusColour());
    EXPECT_EQ(image.pixelColor(static_cast<int>(960 - out), static_cast<int>(540 + out)), desktop::formColour());

    auto turned = std::make_shared<app::Picture>(*picture);
    turned->rose.heading = 200;
    const QRegion changed = surface.setPicture(turned);
    EXPECT_TRUE(changed.contains(QPoint(960, static_cast<int>(540 - radius))));
    EXPECT_TRUE(changed.contains(QPoint(static_cast<int>(960 + radius), 540)));

    // Without the needle there is no heading.
    auto unknown = std::make_shared<app::Picture>(*picture);
    unknown->controls.clear();
    surface.setPicture(picture);
    EXPECT_TRUE(surface.setPicture(unknown).contains(QPoint(static_cast<int>(960 + out), static_cast<int>(540 - out))));
    QPainter again(&image);
    surface.paint(again, QRect(QPoint(0, 0), size));
    again.end();
    EXPECT_EQ(image.pixelColor(static_cast<int>(960 + out), static_cast<int>(540 - out)), desktop::formColour());
}

}  // namespace
