// The traps: what they hold, what they let go, and what they tell.
#include "base/runtime_error.h"

#include <gtest/gtest.h>

#include <vector>

namespace {

using base::RuntimeError;

/// Collects the errors that traps swallowed without expecting them.
class Traps : public testing::Test {
 protected:
    Traps()
    {
        base::setSwallowedErrorSink([this](const RuntimeError& error) { told.push_back(error.number()); });
    }
    ~Traps() override { base::setSwallowedErrorSink({}); }
    Traps(const Traps&) = delete;
    Traps& operator=(const Traps&) = delete;

    static void fail(int number) { throw RuntimeError(number, "it failed"); }

    std::vector<int> told;
};

TEST_F(Traps, PassingHoldsTheListedNumbersOnly)
{
    base::passing<3021, 75>([] { fail(75); });
    EXPECT_THROW((base::passing<3021, 75>([] { fail(61); })), RuntimeError);
    EXPECT_TRUE(told.empty());
}

TEST_F(Traps, QuietlyEndsTheBodyAtItsFirstError)
{
    int steps = 0;
    const int error = base::quietly([&] {
        ++steps;
        fail(13);
        ++steps;
    });
    EXPECT_EQ(error, 13);
    EXPECT_EQ(steps, 1);
    EXPECT_EQ(told, std::vector<int>{13});
}

TEST_F(Traps, QuietlySaysNothingOfWhatItExpects)
{
    EXPECT_EQ((base::quietly<3021>([] { fail(3021); })), 3021);
    EXPECT_EQ(base::quietly([] {}), 0);
    EXPECT_TRUE(told.empty());
}

TEST_F(Traps, ResumeNextGoesOnStatementByStatement)
{
    base::ResumeNext go;
    int steps = 0;
    EXPECT_EQ(go([&] { ++steps; }), 0);
    EXPECT_EQ(go([] { fail(75); }), 75);
    EXPECT_EQ(go([&] { ++steps; }), 0);
    EXPECT_EQ(go([] { fail(3021); }), 3021);
    EXPECT_EQ(steps, 2);
    EXPECT_EQ(go.last(), 3021);
    EXPECT_EQ(told, std::vector<int>{75}) << "an empty table is nothing to tell";
    EXPECT_EQ(base::ResumeNext().last(), 0);
}

TEST_F(Traps, ResumeNextCanLeaveThroughItsReceiver)
{
    base::ResumeNext go([](const RuntimeError& error) {
        if (error.number() == 3059) throw base::ProgramEnd{};
    });
    go([] { fail(13); });
    EXPECT_THROW(go([] { fail(3059); }), base::ProgramEnd);
}

TEST_F(Traps, NoTrapHoldsTheEndOfTheProgram)
{
    EXPECT_THROW(base::quietly([] { throw base::ProgramEnd{}; }), base::ProgramEnd);
    EXPECT_THROW(base::passing<5>([] { throw base::ProgramEnd{}; }), base::ProgramEnd);
    base::ResumeNext go;
    EXPECT_THROW(go([] { throw base::ProgramEnd{}; }), base::ProgramEnd);
}

TEST_F(Traps, NoTrapHoldsAProgrammingFault)
{
    EXPECT_THROW(base::quietly([] { throw std::logic_error("a fault"); }), std::logic_error);
    base::ResumeNext go;
    EXPECT_THROW(go([] { throw std::logic_error("a fault"); }), std::logic_error);
}

TEST_F(Traps, TheErrorKnowsItsNumberAndItsReason)
{
    const RuntimeError error(base::diskFull, "The disk is full");
    EXPECT_EQ(error.number(), 61);
    EXPECT_STREQ(error.what(), "The disk is full");
}

}  // namespace
