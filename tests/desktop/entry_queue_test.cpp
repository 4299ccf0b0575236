#include "desktop/entry_queue.h"

#include <gtest/gtest.h>

#include <chrono>
#include <functional>
#include <thread>

#include "base/runtime_error.h"
#include "screen/form.h"

namespace {

using desktop::EntryQueue;

char32_t characterOf(const std::optional<app::QueueEntry>& entry)
{
    return std::get<app::KeyWentDown>(entry.value()).key.character;
}

app::KeyWentDown typed(char32_t character)
{
    return {platform::Key{0, character}};
}

TEST(EntryQueueTest, EntriesComeInTheirOrder)
{
    EntryQueue queue;
    queue.post(typed(U'a'));
    queue.post(typed(U'b'));
    EXPECT_EQ(characterOf(queue.poll()), U'a');
    EXPECT_EQ(characterOf(queue.waitUntil(std::nullopt)), U'b');
    EXPECT_FALSE(queue.poll());
}

TEST(EntryQueueTest, OnlyTheNewestStepOfADragWaits)
{
    screen::Form form("Page");
    screen::Label one(&form, "one");
    screen::Label other(&form, "other");
    EntryQueue queue;
    queue.post(app::GridDragged{&one, 0.1, 10});
    queue.post(app::GridDragged{&one, 0.2, 10});
    queue.post(app::GridDragged{&other, 0.3, 10});
    queue.post(typed(U'a'));
    queue.post(app::GridDragged{&other, 0.4, 10});
    const auto place = [&] { return std::get<app::GridDragged>(queue.poll().value()).place; };
    EXPECT_DOUBLE_EQ(place(), 0.2);
    EXPECT_DOUBLE_EQ(place(), 0.3);
    EXPECT_EQ(characterOf(queue.poll()), U'a');
    EXPECT_DOUBLE_EQ(place(), 0.4);
    EXPECT_FALSE(queue.poll());
}

TEST(EntryQueueTest, WaitingEndsAtTheDeadline)
{
    EntryQueue queue;
    EXPECT_FALSE(queue.waitUntil(platform::MonotonicTime(1)));
}

TEST(EntryQueueTest, AnAnswerOvertakesWhatArrivedMeanwhile)
{
    EntryQueue queue;
    queue.post(typed(U'a'));
    queue.post(app::BoxAnswered{platform::buttonNo});
    queue.post(typed(U'b'));
    EXPECT_EQ(queue.waitForAnswer(), platform::buttonNo);
    EXPECT_EQ(characterOf(queue.poll()), U'a');
    EXPECT_EQ(characterOf(queue.poll()), U'b');
}

TEST(EntryQueueTest, AnAnswerWakesTheThreadThatWaitsForIt)
{
    EntryQueue queue;
    platform::Button answer = platform::buttonOk;
    std::thread program([&] { answer = queue.waitForAnswer(); });
    queue.post(typed(U'a'));
    while (!queue.idle())
        std::this_thread::yield();
    queue.post(app::BoxAnswered{platform::buttonYes});
    program.join();
    EXPECT_EQ(answer, platform::buttonYes);
    EXPECT_FALSE(queue.idle()) << "nobody waits any more";
}

TEST(EntryQueueTest, StoppingIsToldToWhateverElseWaits)
{
    EntryQueue queue;
    const std::stop_token stops = queue.stopToken();
    EXPECT_FALSE(stops.stop_requested());
    queue.stop();
    EXPECT_TRUE(stops.stop_requested());
}

TEST(EntryQueueTest, StoppingEndsTheProgramWhereverItWaits)
{
    EntryQueue queue;
    bool ended = false;
    std::thread program([&] {
        try {
            queue.waitForAnswer();
        } catch (const base::ProgramEnd&) {
            ended = true;
        }
    });
    queue.stop();
    program.join();
    EXPECT_TRUE(ended);
    EXPECT_THROW(queue.poll(), base::ProgramEnd);
    queue.post(typed(U'a'));
    EXPECT_FALSE(queue.waitUntil(std::nullopt));
}

TEST(EntryQueueTest, AProgramThatOnlyWorksIsBusyAllTheTime)
{
    const EntryQueue queue;
    const auto made = std::chrono::steady_clock::now();
    const auto since = std::chrono::steady_clock::now() - made;
    EXPECT_GE(queue.busyFor(), since) << "the start counts too";
}

TEST(EntryQueueTest, ALookIntoTheQueueAndARestBeginAnew)
{
    EntryQueue queue;
    const std::function<void()> rests[] = {
        [&] { queue.poll(); },
        [&] { queue.noteRest(); },
        [&] { queue.waitUntil(platform::MonotonicTime(1)); },
    };
    for (const auto& rest : rests) {
        const auto before = std::chrono::steady_clock::now();
        rest();
        const auto busy = queue.busyFor();
        EXPECT_LE(busy, std::chrono::steady_clock::now() - before);
    }
}

TEST(EntryQueueTest, AProgramThatWaitsIsNotBusy)
{
    EntryQueue queue;
    std::thread program([&] {
        queue.waitUntil(std::nullopt);
        queue.waitForAnswer();
    });
    while (!queue.waitsForEntry())
        std::this_thread::yield();
    EXPECT_EQ(queue.busyFor().count(), 0);
    queue.post(typed(U'a'));
    while (!queue.idle())
        std::this_thread::yield();
    EXPECT_FALSE(queue.waitsForEntry()) << "it waits for an answer";
    EXPECT_EQ(queue.busyFor().count(), 0);
    queue.post(app::BoxAnswered{platform::buttonOk});
    program.join();
}

}  // namespace
