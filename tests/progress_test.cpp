// How far long work has come, as another thread sees it.
#include "platform/progress.h"

#include <gtest/gtest.h>

#include <atomic>
#include <string>
#include <thread>

#include "base/runtime_error.h"

namespace {

using platform::LongWork;
using platform::presentWork;

std::string seen()
{
    const auto work = presentWork();
    if (!work) return "nothing";
    return work->what + " " + std::to_string(work->done) + "/" + std::to_string(work->total);
}

TEST(LongWorkTest, NothingIsSeenWhereNothingGoesOn)
{
    EXPECT_EQ(seen(), "nothing");
}

TEST(LongWorkTest, ItsStepsAreSeenUntilItEnds)
{
    {
        LongWork work("Export", 300);
        EXPECT_EQ(seen(), "Export 0/300");
        work.done(120);
        EXPECT_EQ(seen(), "Export 120/300");
    }
    EXPECT_EQ(seen(), "nothing");
}

TEST(LongWorkTest, WorkInsideOtherWorkIsSeenInItsPlace)
{
    LongWork outer("Export", 300);
    outer.done(7);
    {
        const LongWork inner("Waiting for the disk");
        EXPECT_EQ(seen(), "Waiting for the disk 0/0");
    }
    EXPECT_EQ(seen(), "Export 7/300");
}

TEST(LongWorkTest, AnErrorAndTheEndOfTheProgramEndIt)
{
    base::quietly([] {
        const LongWork work("Export");
        throw base::RuntimeError(base::diskFull, "full");
    });
    EXPECT_EQ(seen(), "nothing");
    try {
        const LongWork work("Export");
        throw base::ProgramEnd{};
    } catch (const base::ProgramEnd&) {
        EXPECT_EQ(seen(), "nothing");
    }
}

TEST(LongWorkTest, AnotherThreadSeesItAtAnyMoment)
{
    constexpr long total = 2000;
    std::atomic<bool> over = false;
    std::thread worker([&] {
        for (int round = 0; round < 50; ++round) {
            LongWork work("Export", total);
            for (long step = 1; step <= total; ++step)
                work.done(step);
        }
        over = true;
    });
    while (!over) {
        const auto work = presentWork();
        if (!work) continue;
        EXPECT_EQ(work->what, "Export");
        EXPECT_EQ(work->total, total);
        EXPECT_LE(work->done, total);
    }
    worker.join();
    EXPECT_EQ(seen(), "nothing");
}

}  // namespace
