#include "desktop/scroll_bar.h"

#include <gtest/gtest.h>

namespace {

using desktop::ScrollBar;
using desktop::ScrollPart;
using desktop::ScrollPlace;

constexpr QRect tall{100, 50, 15, 400};
constexpr QRect low{0, 0, 15, 60};

QPoint middleOf(const QRect& rect)
{
    return rect.center();
}

TEST(ScrollBarTest, TheThumbStandsAtThePlace)
{
    const QRect top = ScrollBar(tall, {false, true, 0}).thumb();
    const QRect half = ScrollBar(tall, {true, true, 0.5}).thumb();
    const QRect foot = ScrollBar(tall, {true, false, 1}).thumb();
    EXPECT_EQ(top.top(), 50 + 2 * 15) << "below the two buttons";
    EXPECT_EQ(foot.bottom(), 449 - 2 * 15);
    EXPECT_NEAR(half.center().y(), tall.center().y(), 1);
    EXPECT_EQ(top.height(), foot.height());
    EXPECT_EQ(ScrollBar(tall, {true, true, 1.5}).thumb(), foot);
}

TEST(ScrollBarTest, WithNothingToScrollToThereIsNoThumb)
{
    const ScrollBar bar(tall, {false, false, 0});
    EXPECT_TRUE(bar.thumb().isEmpty());
    for (int y = tall.top(); y <= tall.bottom(); ++y)
        EXPECT_EQ(bar.partAt({105, y}), ScrollPart::none) << y;
}

TEST(ScrollBarTest, APlaceOfTheThumbIsThePlaceThatItIsDraggedTo)
{
    for (const QRect& place : {tall, low}) {
        for (int percent = 0; percent <= 100; ++percent) {
            const double at = percent / 100.0;
            const ScrollBar bar(place, {true, true, at});
            const double onePixel = 1.0 / std::max(1, place.height() - 4 * bar.thumb().width() - bar.thumb().height());
            EXPECT_NEAR(bar.placeOfThumb(bar.thumb().top()), at, std::max(onePixel, 0.01)) << percent;
        }
        const ScrollBar bar(place, {true, true, 0.3});
        EXPECT_DOUBLE_EQ(bar.placeOfThumb(-1000), 0);
        EXPECT_LE(bar.placeOfThumb(1000), 1);
    }
    EXPECT_DOUBLE_EQ(ScrollBar(tall, {true, true, 0.3}).placeOfThumb(1000), 1);
}

TEST(ScrollBarTest, EveryPartIsFound)
{
    const ScrollBar bar(tall, {true, true, 0.5});
    const auto partAt = [&](int fromTop) { return bar.partAt({107, 50 + fromTop}); };
    EXPECT_EQ(partAt(7), ScrollPart::toFirst);
    EXPECT_EQ(partAt(22), ScrollPart::rowUp);
    EXPECT_EQ(partAt(32), ScrollPart::pageUp);
    EXPECT_EQ(bar.partAt(middleOf(bar.thumb())), ScrollPart::thumb);
    EXPECT_EQ(partAt(368), ScrollPart::pageDown);
    EXPECT_EQ(partAt(377), ScrollPart::rowDown);
    EXPECT_EQ(partAt(392), ScrollPart::toLast);
    EXPECT_EQ(bar.partAt({99, 200}), ScrollPart::none);
    EXPECT_EQ(bar.partAt({107, 451}), ScrollPart::none);
}

TEST(ScrollBarTest, AtAnEndOnlyTheOtherWayIsOpen)
{
    const ScrollBar first(tall, {false, true, 0});
    EXPECT_EQ(first.partAt({107, 57}), ScrollPart::none);
    EXPECT_EQ(first.partAt({107, 72}), ScrollPart::none);
    EXPECT_EQ(first.partAt({107, 300}), ScrollPart::pageDown);
    EXPECT_EQ(first.partAt({107, 442}), ScrollPart::toLast);
    const ScrollBar last(tall, {true, false, 1});
    EXPECT_EQ(last.partAt({107, 57}), ScrollPart::toFirst);
    EXPECT_EQ(last.partAt({107, 200}), ScrollPart::pageUp);
    EXPECT_EQ(last.partAt({107, 427}), ScrollPart::none);
    EXPECT_EQ(last.partAt({107, 442}), ScrollPart::none);
}

TEST(ScrollBarTest, AHeldThumbStaysUnderThePointer)
{
    ScrollBar bar(tall, {true, true, 0.2});
    bar.holdThumb(0.7);
    EXPECT_EQ(bar.thumb(), ScrollBar(tall, {true, true, 0.7}).thumb());
}

}  // namespace
