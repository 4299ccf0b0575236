// Handlers that take long: message boxes, served events, timers, and keys that such a handler looks for itself.
#pragma once

#include <atomic>

#include "base/runtime_error.h"
#include "support/face.h"

namespace test {

template <typename SomeFace>
class ServingRules : public Desk<SomeFace> {
 protected:
    void startWithTwoFields()
    {
        this->startIn(FrmInit.TxtMyCall);
        this->watch(FrmInit.txtMyQRA);
    }

    /// F2 in the call field serves events until there is such a line in the log.
    void serveOnF2Until(const std::string& line)
    {
        this->onKeyDown(FrmInit.TxtMyCall, [this, line](int& code) {
            if (code != platform::keyF2) return;
            serveUntil([&] { return this->noted(line); });
            this->note("the handler goes on");
        });
    }

    /// The key that closed the box comes up now. No field hears of it, and there was that one box.
    void expectNoKeyUpOfTheBox()
    {
        this->up("Enter");
        EXPECT_EQ(this->countOf("TxtMyCall KeyUp 13"), 0);
        EXPECT_EQ(this->countOf("TxtMyCall KeyDown 13"), 0);
        EXPECT_EQ(this->boxes(), std::vector<std::string>({"Falsche Eingabe"}));
    }

    static void showBox() { platform::msgBox("Falsche Eingabe"); }
};
TYPED_TEST_SUITE_P(ServingRules);

TYPED_TEST_P(ServingRules, ABoxInKeyDown)
{
    this->startIn(FrmInit.TxtMyCall);
    this->onKeyDown(FrmInit.TxtMyCall, [this](int& code) {
        if (code == 'A') this->showBox();
    });
    this->strike("a");
    this->expectNoKeyUpOfTheBox();
    this->type("b");
    EXPECT_EQ(this->takeLog(), Log({"TxtMyCall KeyDown 65", "TxtMyCall KeyPress 97", "TxtMyCall KeyUp 65",
                                    "TxtMyCall KeyDown 66", "TxtMyCall KeyPress 98", "TxtMyCall KeyUp 66"}));
    EXPECT_EQ(FrmInit.TxtMyCall.Text.get(), "ab");
}

TYPED_TEST_P(ServingRules, ABoxInKeyPress)
{
    this->startIn(FrmInit.TxtMyCall);
    this->onKeyPress(FrmInit.TxtMyCall, [this](char32_t& character) {
        if (character == U'a') this->showBox();
    });
    this->strike("a");
    this->expectNoKeyUpOfTheBox();
    this->type("b");
    EXPECT_EQ(FrmInit.TxtMyCall.Text.get(), "ab");
    EXPECT_EQ(this->countOf("TxtMyCall KeyUp 65"), 1);
}

TYPED_TEST_P(ServingRules, ABoxInKeyUp)
{
    this->startIn(FrmInit.TxtMyCall);
    this->onKeyUp(FrmInit.TxtMyCall, [this](int& code) {
        if (code == 'A') this->showBox();
    });
    this->strike("a");
    this->expectNoKeyUpOfTheBox();
    this->type("b");
    EXPECT_EQ(FrmInit.TxtMyCall.Text.get(), "ab");
    EXPECT_EQ(this->countOf("TxtMyCall KeyUp 65"), 1);
}

TYPED_TEST_P(ServingRules, ABoxInGotFocusStandsBetweenTheKeyAndItsKeyUp)
{
    this->startWithTwoFields();
    this->onKeyPress(FrmInit.TxtMyCall, [](char32_t& /*character*/) { FrmInit.txtMyQRA.SetFocus(); });
    this->onGotFocus(FrmInit.txtMyQRA, [this] {
        this->showBox();
        FrmInit.TxtMyCall.SetFocus();
    });
    this->strike("a");
    this->expectNoKeyUpOfTheBox();
    EXPECT_EQ(this->takeLog(), Log({"TxtMyCall KeyDown 65", "TxtMyCall KeyPress 97", "txtMyQRA GotFocus",
                                    "TxtMyCall GotFocus", "TxtMyCall KeyUp 65"}));
}

TYPED_TEST_P(ServingRules, KeysTypedAheadOfABoxComeBehindIt)
{
    this->startIn(FrmInit.TxtMyCall);
    std::atomic<bool> typed = false;
    this->onKeyDown(FrmInit.TxtMyCall, [this, &typed](int& code) {
        if (code != platform::keyF2) return;
        sleepUntilThat([&] { return typed.load(); });
        this->showBox();
        this->note("answered");
    });
    this->later(std::chrono::milliseconds(5), [&] {
        this->type("ab");
        typed = true;
    });
    this->strike("F2");
    this->expectNoKeyUpOfTheBox();
    EXPECT_EQ(this->log().at(1), "answered");
    EXPECT_EQ(FrmInit.TxtMyCall.Text.get(), "ab");
    EXPECT_EQ(this->countOf("TxtMyCall KeyUp 65"), 1);
    EXPECT_EQ(this->countOf("TxtMyCall KeyUp 66"), 1);
}

TYPED_TEST_P(ServingRules, AKeyIsHandledInTheMiddleOfAHandlerThatServes)
{
    this->startIn(FrmInit.TxtMyCall);
    this->serveOnF2Until("TxtMyCall KeyUp 66");
    this->later(std::chrono::milliseconds(5), [this] { this->type("b"); });
    this->strike("F2");
    EXPECT_EQ(this->takeLog(), Log({"TxtMyCall KeyDown 113", "TxtMyCall KeyDown 66", "TxtMyCall KeyPress 98",
                                    "TxtMyCall KeyUp 66", "the handler goes on", "TxtMyCall KeyUp 113"}));
    EXPECT_EQ(FrmInit.TxtMyCall.Text.get(), "b");
}

TYPED_TEST_P(ServingRules, GotFocusComesBeforeTheKeyThatIsServed)
{
    this->startWithTwoFields();
    this->onKeyDown(FrmInit.TxtMyCall, [this](int& /*code*/) {
        FrmInit.txtMyQRA.SetFocus();
        serveUntil([this] { return this->noted("txtMyQRA KeyUp 66"); });
        this->note("the handler goes on");
    });
    this->later(std::chrono::milliseconds(5), [this] { this->type("b"); });
    this->strike("F2");
    EXPECT_EQ(this->takeLog(),
              Log({"TxtMyCall KeyDown 113", "txtMyQRA GotFocus", "txtMyQRA KeyDown 66", "txtMyQRA KeyPress 98",
                   "txtMyQRA KeyUp 66", "the handler goes on", "txtMyQRA KeyUp 113"}));
    EXPECT_EQ(FrmInit.txtMyQRA.Text.get(), "b");
}

TYPED_TEST_P(ServingRules, GotFocusComesBetweenTwoServedKeys)
{
    this->startWithTwoFields();
    this->serveOnF2Until("txtMyQRA KeyUp 66");
    this->onKeyUp(FrmInit.TxtMyCall, [](int& code) {
        if (code == 'A') FrmInit.txtMyQRA.SetFocus();
    });
    this->later(std::chrono::milliseconds(5), [this] { this->type("ab"); });
    this->strike("F2");
    EXPECT_EQ(this->takeLog(),
              Log({"TxtMyCall KeyDown 113", "TxtMyCall KeyDown 65", "TxtMyCall KeyPress 97", "TxtMyCall KeyUp 65",
                   "txtMyQRA GotFocus", "txtMyQRA KeyDown 66", "txtMyQRA KeyPress 98", "txtMyQRA KeyUp 66",
                   "the handler goes on", "txtMyQRA KeyUp 113"}));
}

TYPED_TEST_P(ServingRules, AClickIsServedToo)
{
    this->startWithTwoFields();
    this->serveOnF2Until("txtMyQRA Click");
    this->later(std::chrono::milliseconds(5), [this] { this->click(FrmInit.txtMyQRA); });
    this->strike("F2");
    EXPECT_EQ(this->takeLog(), Log({"TxtMyCall KeyDown 113", "txtMyQRA GotFocus", "txtMyQRA Click",
                                    "the handler goes on", "txtMyQRA KeyUp 113"}));
}

TYPED_TEST_P(ServingRules, HandlersThatServeNest)
{
    this->startIn(FrmInit.TxtMyCall);
    this->onKeyDown(FrmInit.TxtMyCall, [this](int& code) {
        if (code == platform::keyF2) serveUntil([this] { return this->noted("inner ends"); });
        if (code == platform::keyF2) this->note("outer ends");
        if (code == platform::keyF3) serveUntil([this] { return this->noted("TxtMyCall KeyUp 66"); });
        if (code == platform::keyF3) this->note("inner ends");
    });
    this->later(std::chrono::milliseconds(5), [this] { this->strike("F3"); });
    this->later(std::chrono::milliseconds(20), [this] { this->type("b"); });
    this->strike("F2");
    EXPECT_EQ(this->countOf("inner ends"), 1);
    EXPECT_EQ(this->log().back(), "TxtMyCall KeyUp 113");
    EXPECT_EQ(FrmInit.TxtMyCall.Text.get(), "b");
}

TYPED_TEST_P(ServingRules, AHandlerThatDoesNotServeGetsTheKeyAfterwards)
{
    this->startIn(FrmInit.TxtMyCall);
    std::atomic<bool> typed = false;
    this->onKeyDown(FrmInit.TxtMyCall, [this, &typed](int& code) {
        if (code != platform::keyF2) return;
        sleepUntilThat([&] { return typed.load(); });
        this->note("the handler goes on");
    });
    this->later(std::chrono::milliseconds(5), [&] {
        this->type("b");
        typed = true;
    });
    this->strike("F2");
    EXPECT_EQ(this->log().at(1), "the handler goes on");
    EXPECT_EQ(this->countOf("TxtMyCall KeyPress 98"), 1);
    EXPECT_EQ(FrmInit.TxtMyCall.Text.get(), "b");
}

TYPED_TEST_P(ServingRules, AKeyTypedAheadGoesWhereTheFocusIsWhenItsTurnComes)
{
    this->startWithTwoFields();
    std::atomic<bool> typed = false;
    this->onKeyDown(FrmInit.TxtMyCall, [&typed](int& code) {
        if (code != platform::keyF2) return;
        sleepUntilThat([&] { return typed.load(); });
        FrmInit.txtMyQRA.SetFocus();
    });
    this->later(std::chrono::milliseconds(5), [&] {
        this->type("b");
        typed = true;
    });
    this->strike("F2");
    EXPECT_EQ(FrmInit.TxtMyCall.Text.get(), "");
    EXPECT_EQ(FrmInit.txtMyQRA.Text.get(), "b");
    EXPECT_EQ(this->log().at(1), "txtMyQRA GotFocus");
}

TYPED_TEST_P(ServingRules, TimersTickWhileEventsAreServed)
{
    this->startIn(FrmInit.TxtMyCall);
    this->inProgram([this] {
        this->watch(FrmQSO.tmrTimer);
        FrmQSO.tmrTimer.Interval = 5;
        FrmQSO.tmrTimer.due = {};
    });
    this->goTo(FrmInit.TxtMyCall);
    this->onKeyDown(FrmInit.TxtMyCall, [this](int& /*code*/) {
        this->takeLog();
        sleepFor(std::chrono::milliseconds(50));
        this->note("slept");
        serveUntil([this] { return this->countOf("tmrTimer Tick") >= 3; });
        FrmQSO.tmrTimer.Enabled = false;
        this->note("served");
    });
    this->strike("F2");
    const Log& log = this->log();
    ASSERT_FALSE(log.empty());
    EXPECT_EQ(log.front(), "slept") << "no timer ticks in a handler that serves nothing";
    EXPECT_EQ(log.back(), "TxtMyCall KeyUp 113");
}

TYPED_TEST_P(ServingRules, ATickThatTakesLongDoesNotTickInItself)
{
    this->startIn(FrmInit.TxtMyCall);
    this->onTick(FrmQSO.tmrTimer, [this] {
        const auto start = platform::machine().clock.monotonic();
        serveUntil([&] { return platform::machine().clock.monotonic() - start > std::chrono::milliseconds(30); });
        FrmQSO.tmrTimer.Enabled = false;
        this->note("tick ends");
    });
    this->inProgram([this] {
        this->watch(FrmQSO.tmrTimer);
        FrmQSO.tmrTimer.Interval = 1000;
        FrmQSO.tmrTimer.due = platform::machine().clock.monotonic();
        serveUntil([this] { return this->noted("tick ends"); });
    });
    EXPECT_EQ(this->countOf("tmrTimer Tick"), 1);
}

TYPED_TEST_P(ServingRules, AKeyThatIsDownIsSeenAtOnce)
{
    this->startIn(FrmInit.TxtMyCall);
    this->onKeyDown(FrmInit.TxtMyCall, [this](int& code) {
        if (code != platform::keyF2) return;
        platform::KeyState& keys = platform::machine().keyState;
        EXPECT_FALSE(keys.pressed(platform::PolledKey::end));
        sleepUntilThat([&] { return keys.pressed(platform::PolledKey::end); });
        EXPECT_TRUE(keys.pressed(platform::PolledKey::end)) << "it is still down";
        EXPECT_FALSE(keys.pressed(platform::PolledKey::escape));
        keys.forget();
        EXPECT_TRUE(keys.pressed(platform::PolledKey::end)) << "a key that is down stays down";
        this->note("seen");
    });
    this->later(std::chrono::milliseconds(5), [this] { this->down("End"); });
    this->strike("F2");
    this->up("End");
    EXPECT_TRUE(this->noted("seen"));
    EXPECT_EQ(this->countOf("TxtMyCall KeyDown 35"), 1) << "it is a key like any other as well";
}

TYPED_TEST_P(ServingRules, AKeyThatWentDownSinceTheLastLookIsSeenOnce)
{
    this->startIn(FrmInit.TxtMyCall);
    std::atomic<bool> struck = false;
    this->onKeyDown(FrmInit.TxtMyCall, [this, &struck](int& code) {
        if (code != platform::keyF2) return;
        platform::KeyState& keys = platform::machine().keyState;
        sleepUntilThat([&] { return struck.load(); });
        EXPECT_TRUE(keys.pressed(platform::PolledKey::escape));
        EXPECT_FALSE(keys.pressed(platform::PolledKey::escape));
        EXPECT_FALSE(keys.pressed(platform::PolledKey::end));
        this->note("seen");
    });
    this->later(std::chrono::milliseconds(5), [&] {
        this->strike("Esc");
        struck = true;
    });
    this->strike("F2");
    EXPECT_TRUE(this->noted("seen"));
}

TYPED_TEST_P(ServingRules, AKeyThatWentDownIsForgotten)
{
    this->startIn(FrmInit.TxtMyCall);
    std::atomic<bool> struck = false;
    this->onKeyDown(FrmInit.TxtMyCall, [this, &struck](int& code) {
        if (code != platform::keyF2) return;
        sleepUntilThat([&] { return struck.load(); });
        platform::machine().keyState.forget();
        EXPECT_FALSE(platform::machine().keyState.pressed(platform::PolledKey::end));
        this->note("seen");
    });
    this->later(std::chrono::milliseconds(5), [&] {
        this->strike("End");
        struck = true;
    });
    this->strike("F2");
    EXPECT_TRUE(this->noted("seen"));
}

REGISTER_TYPED_TEST_SUITE_P(ServingRules, ABoxInKeyDown, ABoxInKeyPress, ABoxInKeyUp,
                            ABoxInGotFocusStandsBetweenTheKeyAndItsKeyUp, KeysTypedAheadOfABoxComeBehindIt,
                            AKeyIsHandledInTheMiddleOfAHandlerThatServes, GotFocusComesBeforeTheKeyThatIsServed,
                            GotFocusComesBetweenTwoServedKeys, AClickIsServedToo, HandlersThatServeNest,
                            AHandlerThatDoesNotServeGetsTheKeyAfterwards,
                            AKeyTypedAheadGoesWhereTheFocusIsWhenItsTurnComes, TimersTickWhileEventsAreServed,
                            ATickThatTakesLongDoesNotTickInItself, AKeyThatIsDownIsSeenAtOnce,
                            AKeyThatWentDownSinceTheLastLookIsSeenOnce, AKeyThatWentDownIsForgotten);

}  // namespace test
