#include "desktop/form_view.h"

#include <gtest/gtest.h>

#include <QImage>
#include <QTest>
#include <QWheelEvent>

#include "desktop/look.h"
#include "test_page.h"

namespace {

using screen::Kind;
using test_page::Page;

constexpr QSize sizes[] = {{800, 560}, {1024, 700}, {1920, 1020}, {637, 411}};

class FormViewTest : public testing::Test {
 protected:
    void show(QSize size = {800, 600})
    {
        view_.resize(size);
        view_.show();
        view_.setPicture(page_.take());
    }

    QImage painted() { return view_.grab().toImage(); }
    QRect placeOf(std::size_t control) { return view_.placeOf(page_.picture().controls.at(control).control); }
    QPoint middleOf(std::size_t control) { return placeOf(control).center(); }

    /// The pointer moves with its main button held. The platform without a screen does not tell which one is.
    void move(QPoint at)
    {
        QMouseEvent moved(QEvent::MouseMove, at, QPointF(), Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(&view_, &moved);
    }

    /// The thumb of the first control as it is painted: its grey from top to bottom in the middle of the bar.
    QRect thumb()
    {
        const QImage image = painted();
        const int x = placeOf(0).right() - 7;
        std::vector<int> rows;
        for (int y = placeOf(0).top(); y <= placeOf(0).bottom(); ++y)
            if (image.pixelColor(x, y) == QColor(150, 150, 150)) rows.push_back(y);
        if (rows.empty()) return {};
        return {QPoint(x, rows.front()), QPoint(x, rows.back())};
    }

    /// The place in an entry like "drag 0 0.25 of 10".
    static double placeIn(const std::string& entry)
    {
        EXPECT_EQ(entry.substr(0, 7), "drag 0 ");
        return std::stod(entry.substr(7));
    }

    void click(QPoint at) { QTest::mouseClick(&view_, Qt::LeftButton, Qt::NoModifier, at); }

    /// What the window posted since the last look.
    std::vector<std::string> posted()
    {
        std::vector<std::string> texts;
        for (const app::QueueEntry& entry : std::exchange(entries_, {}))
            texts.push_back(test_page::told(entry, page_.picture()));
        return texts;
    }

    Page page_;
    std::vector<app::QueueEntry> entries_;
    desktop::FormView view_{[this](const app::QueueEntry& entry) { entries_.push_back(entry); }};
};

using Posted = std::vector<std::string>;

int inkIn(const QImage& image, const QRect& place, const QColor& background)
{
    int ink = 0;
    for (int y = place.top(); y <= place.bottom(); ++y)
        for (int x = place.left(); x <= place.right(); ++x)
            if (image.pixelColor(x, y) != background) ++ink;
    return ink;
}

TEST_F(FormViewTest, BackgroundsAreExactlyThoseOfThePicture)
{
    page_.add(Kind::textBox, {600, 600, 3000, 450}).background = screen::red;
    page_.add(Kind::label, {600, 1200, 3000, 450}).background = screen::lampOn;
    page_.add(Kind::commandButton, {600, 1800, 3000, 450}).background = screen::green;
    page_.add(Kind::frame, {600, 3000, 3000, 1500}).background = screen::Colour{192, 255, 255};
    page_.add(Kind::textBox, {600, 2400, 3000, 450}).enabled = false;
    for (QSize size : sizes) {
        show(size);
        const QImage image = painted();
        for (std::size_t i = 0; i < page_.picture().controls.size(); ++i) {
            const QColor expected = desktop::toolkitColour(page_.picture().controls[i].background);
            EXPECT_EQ(image.pixelColor(middleOf(i)).name(), expected.name()) << i << " at " << size.width();
        }
        EXPECT_EQ(image.pixelColor(2, 2).name(), desktop::formColour().name());
    }
}

TEST_F(FormViewTest, TheCaretStandsWhereThePictureHasIt)
{
    app::ControlPicture& box = page_.add(Kind::textBox, {600, 600, 3000, 450}, "IIII");
    box.hasFocus = true;
    box.caret = 4;
    show();
    const QImage behindText = painted();
    page_.picture().controls[0].caret = 0;
    view_.setPicture(page_.take());
    const QImage beforeText = painted();

    const auto blackColumns = [&](const QImage& image) {
        std::vector<int> columns;
        const QRect place = placeOf(0).adjusted(3, 6, -3, -6);
        for (int x = place.left(); x <= place.right(); ++x) {
            bool black = true;
            for (int y = place.center().y() - 5; y <= place.center().y() + 5; ++y)
                black = black && image.pixelColor(x, y) == Qt::black;
            if (black) columns.push_back(x);
        }
        return columns;
    };
    ASSERT_FALSE(blackColumns(behindText).empty());
    ASSERT_FALSE(blackColumns(beforeText).empty());
    EXPECT_GT(blackColumns(behindText).back(), blackColumns(beforeText).front() + 8);
}

TEST_F(FormViewTest, WithoutTheFocusThereIsNoCaretAndNoFocusFrame)
{
    page_.add(Kind::textBox, {600, 600, 3000, 450});
    show();
    const QRect inside = placeOf(0).adjusted(1, 1, -1, -1);
    EXPECT_EQ(inkIn(painted(), inside, Qt::yellow), 0);
    page_.picture().controls[0].hasFocus = true;
    view_.setPicture(page_.take());
    EXPECT_EQ(painted().pixelColor(inside.topLeft()).name(), desktop::focusColour().name());
    EXPECT_GT(inkIn(painted(), inside.adjusted(3, 3, -3, -3), Qt::yellow), 0);
}

TEST_F(FormViewTest, ASelectionIsMarked)
{
    app::ControlPicture& box = page_.add(Kind::textBox, {600, 600, 3000, 450}, "YO2ABC");
    box.hasFocus = true;
    box.selLength = 6;
    show();
    int marked = 0;
    const QImage image = painted();
    const QRect place = placeOf(0);
    for (int x = place.left(); x <= place.right(); ++x)
        if (image.pixelColor(x, place.center().y()) == desktop::selectionColour()) ++marked;
    EXPECT_GT(marked, 10);
}

TEST_F(FormViewTest, ATextTooLongForItsBoxGetsSmallerAndIsNotCut)
{
    page_.add(Kind::label, {600, 600, 1500, 300}, "(Nr Control for QSO)").fontPoints = 12;
    page_.add(Kind::label, {600, 1200, 1500, 300}, "(Nr Control for QSO(").fontPoints = 12;
    page_.add(Kind::label, {600, 1800, 9000, 300}, "(Nr Control for QSO)").fontPoints = 12;
    for (QSize size : {QSize(800, 560), QSize(1024, 700), QSize(1920, 1020)}) {
        show(size);
        const QImage image = painted();
        const QRect place = placeOf(0);
        // Cut texts would look alike, whatever their last character is.
        EXPECT_NE(image.copy(place), image.copy(QRect(placeOf(1).topLeft(), place.size()))) << size.width();
        const QRect lastColumn(place.right(), place.top(), 1, place.height());
        EXPECT_EQ(inkIn(image, lastColumn, desktop::formColour()), 0) << size.width();
        EXPECT_GT(inkIn(image, placeOf(2), desktop::formColour()), inkIn(image, place, desktop::formColour()));
    }
}

TEST_F(FormViewTest, ATextFitsBySizeOrByBreakingIntoLines)
{
    desktop::Fonts fonts;
    const QString text = QStringLiteral("Programul permite doua moduri de operare");
    EXPECT_EQ(fonts.fitting(text, {1000, 40}, 20, false, Qt::TextWordWrap), 20);
    EXPECT_EQ(fonts.fitting(text, {300, 80}, 20, false, Qt::TextWordWrap), 20);
    const int oneLine = fonts.fitting(text, {300, 22}, 20, false, Qt::TextWordWrap);
    EXPECT_LT(oneLine, 20);
    EXPECT_LE(fonts.metrics(oneLine, false).horizontalAdvance(text), 300);
    EXPECT_EQ(fonts.fitting(text, {20, 10}, 20, false, Qt::TextWordWrap), desktop::smallestFontPixels);
}

TEST_F(FormViewTest, ATextThatIsOffCanStillBeRead)
{
    for (screen::Colour background : {screen::yellow, screen::white, screen::grey, screen::red, screen::buttonFace}) {
        app::ControlPicture box;
        box.background = background;
        box.enabled = false;
        const QColor text = desktop::textColourOf(box);
        EXPECT_NE(text, Qt::black);
        EXPECT_GT(std::abs(text.lightness() - desktop::toolkitColour(background).lightness()), 50);
    }
}

TEST_F(FormViewTest, AClickFindsItsControlAtEverySize)
{
    page_.add(Kind::frame, {500, 500, 8000, 4000});
    page_.add(Kind::commandButton, {600, 600, 900, 330});
    page_.add(Kind::commandButton, {1500, 600, 900, 330});
    page_.add(Kind::optionButton, {600, 1200, 1800, 240});
    page_.add(Kind::checkBox, {11000, 8600, 900, 300});
    for (QSize size : sizes) {
        show(size);
        for (std::size_t i = 0; i < page_.picture().controls.size(); ++i) {
            const screen::Rectangle& place = page_.picture().controls[i].place;
            const QPoint at(static_cast<int>((place.Left + place.Width * 0.9) * size.width() / 12000),
                            static_cast<int>((place.Top + place.Height * 0.8) * size.height() / 9000));
            click(at);
            EXPECT_EQ(posted(), Posted{"click " + std::to_string(i)}) << size.width();
        }
    }
}

TEST_F(FormViewTest, PixelsMapBackToTwips)
{
    for (QSize size : sizes) {
        const desktop::FormScale scale(28800, 16200, size);
        const QPointF twips = scale.twips(scale.point(12345, 6789));
        EXPECT_NEAR(twips.x(), 12345, 0.01);
        EXPECT_NEAR(twips.y(), 6789, 0.01);
        const QRect left = scale.pixels({1000, 0, 777, 100});
        const QRect right = scale.pixels({1777, 0, 500, 100});
        EXPECT_EQ(left.right() + 1, right.left());
    }
}

TEST_F(FormViewTest, AButtonActsOnReleaseInside)
{
    page_.add(Kind::commandButton, {600, 600, 1800, 600}, "&Enter Call");
    show();
    const QColor normal = painted().pixelColor(placeOf(0).topLeft() + QPoint(4, 4));
    QTest::mousePress(&view_, Qt::LeftButton, Qt::NoModifier, middleOf(0));
    EXPECT_EQ(posted(), Posted{});
    EXPECT_NE(painted().pixelColor(placeOf(0).topLeft() + QPoint(4, 4)), normal);
    QTest::mouseRelease(&view_, Qt::LeftButton, Qt::NoModifier, middleOf(0));
    EXPECT_EQ(posted(), Posted{"click 0"});
    EXPECT_EQ(painted().pixelColor(placeOf(0).topLeft() + QPoint(4, 4)), normal);

    QTest::mousePress(&view_, Qt::LeftButton, Qt::NoModifier, middleOf(0));
    QTest::mouseRelease(&view_, Qt::LeftButton, Qt::NoModifier, QPoint(700, 500));
    EXPECT_EQ(posted(), Posted{});
}

TEST_F(FormViewTest, WhatIsOffTakesNoClick)
{
    page_.add(Kind::commandButton, {600, 600, 1800, 600}).enabled = false;
    page_.add(Kind::textBox, {600, 1800, 1800, 600}).enabled = false;
    show();
    click(middleOf(0));
    click(middleOf(1));
    EXPECT_EQ(posted(), Posted{});
}

TEST_F(FormViewTest, AClickInATextBoxPlacesTheCaret)
{
    page_.add(Kind::textBox, {600, 600, 3000, 450}, "YO2ABC").fontPoints = 12;
    show();
    click(placeOf(0).topLeft() + QPoint(4, 10));
    EXPECT_EQ(posted(), (Posted{"caret 0 0", "click 0"}));
    click(placeOf(0).topRight() + QPoint(-6, 10));
    EXPECT_EQ(posted(), (Posted{"caret 0 6", "click 0"}));
}

TEST_F(FormViewTest, DraggingInATextBoxSelects)
{
    page_.add(Kind::textBox, {600, 600, 3000, 450}, "YO2ABC").fontPoints = 12;
    show();
    const QPoint start = placeOf(0).topLeft() + QPoint(4, 10);
    QTest::mousePress(&view_, Qt::LeftButton, Qt::NoModifier, start);
    move(placeOf(0).topRight() + QPoint(-6, 10));
    QTest::mouseRelease(&view_, Qt::LeftButton, Qt::NoModifier, placeOf(0).topRight() + QPoint(-6, 10));
    EXPECT_EQ(posted(), (Posted{"caret 0 0", "extend 0 6"}));
}

TEST_F(FormViewTest, ADoubleClickInATextBoxIsOne)
{
    page_.add(Kind::textBox, {600, 600, 3000, 450}, "YO2ABC");
    show();
    QTest::mouseDClick(&view_, Qt::LeftButton, Qt::NoModifier, middleOf(0));
    EXPECT_EQ(posted().back(), "double 0");
}

TEST_F(FormViewTest, ALongTextIsScrolledToItsCaret)
{
    const std::string longText(60, 'W');
    app::ControlPicture& box = page_.add(Kind::textBox, {600, 600, 1500, 450}, longText);
    box.hasFocus = true;
    box.caret = 60;
    show();
    click(placeOf(0).topRight() + QPoint(-5, 10));
    EXPECT_EQ(posted().front(), "caret 0 60");
    page_.picture().controls[0].caret = 0;
    view_.setPicture(page_.take());
    click(placeOf(0).topLeft() + QPoint(5, 10));
    EXPECT_EQ(posted().front(), "caret 0 0");
}

TEST_F(FormViewTest, ItemsOfAListArePickedAndScrolled)
{
    app::ControlPicture& list = page_.add(Kind::listBox, {600, 600, 1800, 1200});
    for (int i = 0; i < 20; ++i)
        list.items.push_back(std::to_string(2320 + i));
    show();
    click(placeOf(0).topLeft() + QPoint(10, 6));
    EXPECT_EQ(posted(), Posted{"item 0 0"});
    QWheelEvent wheel(middleOf(0), QPointF(), QPoint(), QPoint(0, -120), Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(&view_, &wheel);
    click(placeOf(0).topLeft() + QPoint(10, 6));
    EXPECT_EQ(posted(), Posted{"item 0 3"});

    page_.picture().controls[0].listIndex = 19;
    view_.setPicture(page_.take());
    click(placeOf(0).bottomLeft() + QPoint(10, -8));
    EXPECT_EQ(posted(), Posted{"item 0 19"}) << "a chosen item comes into view";
}

TEST_F(FormViewTest, AGridTellsItsRoomOnceAndWhenItChanges)
{
    page_.addGrid({600, 600, 6000, 3000}, 3, false, false);
    show();
    const Posted first = posted();
    ASSERT_EQ(first.size(), 1U);
    EXPECT_EQ(first.front().substr(0, 12), "scroll 0 0 o");
    view_.setPicture(page_.take());
    EXPECT_EQ(posted(), Posted{});
    page_.picture().controls[0].place.Height = 4500;
    view_.setPicture(page_.take());
    const Posted second = posted();
    ASSERT_EQ(second.size(), 1U);
    EXPECT_NE(second, first);
}

TEST_F(FormViewTest, RowsOfAGridArePicked)
{
    page_.addGrid({600, 600, 6000, 3000}, 3, false, false);
    show();
    posted();
    const QPoint secondRow = placeOf(0).topLeft() + QPoint(20, 20 + 17 + 8);
    click(secondRow);
    EXPECT_EQ(posted(), Posted{"row 0 2"});
    QTest::mouseDClick(&view_, Qt::LeftButton, Qt::NoModifier, secondRow);
    EXPECT_EQ(posted().back(), "double row 0 2");
    click(placeOf(0).bottomLeft() + QPoint(20, -8));
    EXPECT_EQ(posted(), Posted{}) << "there is no row";
}

TEST_F(FormViewTest, AGridIsScrolledByItsBarAndByTheWheel)
{
    page_.addGrid({600, 600, 6000, 3000}, 10, true, true, 0.5);
    show();
    posted();
    const auto scrolledAt = [&](int fromTop) {
        click(placeOf(0).topRight() + QPoint(-7, fromTop));
        const Posted entries = posted();
        return entries.empty() ? std::string("nothing") : entries.front();
    };
    const int height = placeOf(0).height();
    EXPECT_EQ(scrolledAt(26), "scroll 0 -100000 of 10") << "to the first row";
    EXPECT_EQ(scrolledAt(42), "scroll 0 -1 of 10");
    EXPECT_EQ(scrolledAt(56), "scroll 0 -9 of 10") << "a page";
    EXPECT_EQ(scrolledAt(height - 40), "scroll 0 9 of 10");
    EXPECT_EQ(scrolledAt(height - 24), "scroll 0 1 of 10");
    EXPECT_EQ(scrolledAt(height - 6), "scroll 0 100000 of 10");

    QWheelEvent wheel(middleOf(0), QPointF(), QPoint(), QPoint(0, 120), Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase,
                      false);
    QCoreApplication::sendEvent(&view_, &wheel);
    EXPECT_EQ(posted(), Posted{"scroll 0 -3 of 10"});
}

TEST_F(FormViewTest, TheRowsOfAGridFollowItsThumb)
{
    page_.addGrid({600, 600, 6000, 6000}, 20, true, true, 0.5);
    show();
    posted();
    const QRect before = thumb();
    const QPoint grip(before.center().x(), before.top() + 3);
    QTest::mousePress(&view_, Qt::LeftButton, Qt::NoModifier, grip);
    EXPECT_EQ(posted(), Posted{}) << "it has not moved yet";
    EXPECT_EQ(thumb(), before);

    move(grip + QPoint(0, 40));
    const Posted down = posted();
    ASSERT_EQ(down.size(), 1U);
    EXPECT_EQ(down.front().substr(0, 9), "drag 0 0.");
    EXPECT_GT(placeIn(down.front()), 0.5);
    EXPECT_EQ(thumb(), before.translated(0, 40)) << "it stays under the pointer until the rows are there";
    move(grip + QPoint(-300, 40));
    EXPECT_EQ(posted(), Posted{}) << "beside the bar it is held all the same";

    move(grip + QPoint(0, 2000));
    EXPECT_DOUBLE_EQ(placeIn(posted().back()), 1);
    move(grip - QPoint(0, 2000));
    EXPECT_DOUBLE_EQ(placeIn(posted().back()), 0);

    QTest::mouseRelease(&view_, Qt::LeftButton, Qt::NoModifier, middleOf(0));
    EXPECT_EQ(posted(), Posted{}) << "no row is picked";
    EXPECT_EQ(thumb(), before) << "where the picture has it";
}

TEST_F(FormViewTest, AHeldThumbIgnoresThePlacesOfThePictures)
{
    page_.addGrid({600, 600, 6000, 6000}, 20, true, true, 0.5);
    show();
    const QRect before = thumb();
    const QPoint grip = before.center();
    QTest::mousePress(&view_, Qt::LeftButton, Qt::NoModifier, grip);
    move(grip + QPoint(0, 40));
    const app::ControlPicture old = page_.picture().controls[0];
    auto rows = std::make_shared<app::GridRows>(*old.grid->rows);
    rows->place = 0.9;
    auto grid = std::make_shared<app::GridPicture>(*old.grid);
    grid->rows = rows;
    page_.picture().controls[0].grid = grid;
    view_.setPicture(page_.take());
    EXPECT_EQ(thumb(), before.translated(0, 40));
    QTest::mouseRelease(&view_, Qt::LeftButton, Qt::NoModifier, grip + QPoint(0, 40));
    EXPECT_GT(thumb().top(), before.top() + 40) << "behind a gap";
}

TEST_F(FormViewTest, AListFollowsItsThumb)
{
    app::ControlPicture& list = page_.add(Kind::listBox, {600, 600, 1800, 3000});
    for (int i = 0; i < 100; ++i)
        list.items.push_back(std::to_string(2320 + i));
    show();
    const QPoint grip = thumb().center();
    QTest::mousePress(&view_, Qt::LeftButton, Qt::NoModifier, grip);
    move(grip + QPoint(0, 2000));
    QTest::mouseRelease(&view_, Qt::LeftButton, Qt::NoModifier, grip + QPoint(0, 2000));
    EXPECT_EQ(posted(), Posted{});
    click(placeOf(0).bottomLeft() + QPoint(10, -8));
    EXPECT_EQ(posted(), Posted{"item 0 99"});
}

TEST_F(FormViewTest, TheLetterOfAFrameIsUnderlined)
{
    page_.add(Kind::frame, {600, 600, 3000, 1500}, "&DELETE");
    page_.add(Kind::frame, {600, 3600, 3000, 1500}, "DELETE");
    show();
    const QImage image = painted();
    const QRect marked(placeOf(0).topLeft(), QSize(100, 14));
    const QRect plain(placeOf(1).topLeft(), QSize(100, 14));
    const auto black = [&](const QRect& place) {
        int count = 0;
        for (int y = place.top(); y <= place.bottom(); ++y)
            for (int x = place.left(); x <= place.right(); ++x)
                if (image.pixelColor(x, y).lightness() < 100) ++count;
        return count;
    };
    EXPECT_GT(black(marked), black(plain)) << "the line";
    EXPECT_LT(black(marked), black(plain) + 20) << "no sign more";
}

TEST_F(FormViewTest, TheCurrentRowIsMarked)
{
    app::ControlPicture& grid = page_.addGrid({600, 600, 6000, 3000}, 3, false, false);
    auto standing = std::make_shared<app::GridPicture>(*grid.grid);
    standing->currentKey = 2;
    grid.grid = standing;
    show();
    const QImage image = painted();
    const QPoint firstRow = placeOf(0).topLeft() + QPoint(250, 20 + 8);
    EXPECT_EQ(image.pixelColor(firstRow + QPoint(0, 17)).name(), desktop::currentRowColour().name());
    EXPECT_NE(image.pixelColor(firstRow).name(), desktop::currentRowColour().name());
}

TEST_F(FormViewTest, OnlyWhatChangesIsPaintedAnew)
{
    page_.add(Kind::textBox, {600, 600, 3000, 450}, "YO2A");
    page_.add(Kind::label, {600, 1800, 3000, 450}, "599");
    desktop::FormSurface surface;
    surface.setSize({800, 600});
    surface.setPicture(page_.take());
    EXPECT_TRUE(surface.setPicture(page_.take()).isEmpty());
    page_.picture().controls[0].text = "YO2AB";
    EXPECT_EQ(surface.setPicture(page_.take()).boundingRect(), QRect(40, 40, 200, 30));
    page_.picture().controls.pop_back();
    EXPECT_EQ(surface.setPicture(page_.take()).boundingRect(), QRect(40, 120, 200, 30));
    page_.picture().rose = {true, 6000, 6000, 500, 90};
    EXPECT_TRUE(surface.setPicture(page_.take()).contains(QPoint(400, 400)));
}

TEST_F(FormViewTest, TheRoseIsDrawn)
{
    page_.picture().rose = {true, 6000, 4500, 1500, 90};
    show();
    const QImage image = painted();
    EXPECT_EQ(image.pixelColor(400, 300).name(), QColor(0, 255, 0).name());
    for (QPoint disc : {QPoint(500, 300), QPoint(300, 300), QPoint(400, 200), QPoint(400, 400)})
        EXPECT_EQ(image.pixelColor(disc).name(), QColor(Qt::red).name());
}

TEST_F(FormViewTest, InputMethodsAreOffWhereOnlyPlainCharactersGo)
{
    app::ControlPicture& call = page_.add(Kind::textBox, {600, 600, 3000, 450});
    call.hasFocus = true;
    call.inputMethod = false;
    page_.add(Kind::textBox, {600, 1800, 3000, 450});
    show();
    EXPECT_FALSE(view_.inputMethodQuery(Qt::ImEnabled).toBool());
    page_.picture().controls[0].hasFocus = false;
    page_.picture().controls[1].hasFocus = true;
    view_.setPicture(page_.take());
    EXPECT_TRUE(view_.inputMethodQuery(Qt::ImEnabled).toBool());
    QInputMethodEvent composed;
    composed.setCommitString(QString(QChar(0x0218)));
    QCoreApplication::sendEvent(&view_, &composed);
    EXPECT_EQ(posted(), Posted{"paste \u0218"});
}

}  // namespace
