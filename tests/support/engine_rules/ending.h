// Forms and programs that end in the middle of their own handlers, and errors that leave a handler.
#pragma once

#include <atomic>

#include "base/number.h"
#include "base/runtime_error.h"
#include "runstate/modul1.h"
#include "support/face.h"

namespace test {

template <typename SomeFace>
class EndingRules : public Desk<SomeFace> {
 protected:
    static constexpr const char* question = "VRETI INTRADEVAR SA IESITI DIN PROGRAM ?";

    /// The way to the first page, as the menu goes it.
    static void backToFirstPage()
    {
        screen::load(FrmInit);
        FrmInit.Show();
        FrmQSO.Unload();
    }

    static void loadAgain()
    {
        FrmInit.Unload();
        screen::load(FrmInit);
    }
};
TYPED_TEST_SUITE_P(EndingRules);

TYPED_TEST_P(EndingRules, AFormThatIsUnloadedInItsKeyDownGetsNothingMoreOfTheKey)
{
    this->startAndOpenEntry();
    this->watch(FrmQSO.txtIndic);
    this->goTo(FrmQSO.txtIndic);
    this->onKeyDown(FrmQSO.txtIndic, [this](int& /*code*/) {
        this->backToFirstPage();
        this->watch(FrmInit.TxtMyCall);
        FrmInit.TxtMyCall.Text = "";
        FrmInit.TxtMyCall.SetFocus();
    });
    this->strike("a");
    EXPECT_EQ(screen::activeForm(), &FrmInit);
    EXPECT_EQ(this->takeLog(), Log({"txtIndic KeyDown 65", "TxtMyCall GotFocus", "TxtMyCall KeyUp 65"}));
    EXPECT_EQ(FrmQSO.txtIndic.Text.get(), "");
    EXPECT_EQ(FrmInit.TxtMyCall.Text.get(), "");
}

TYPED_TEST_P(EndingRules, AFormThatIsUnloadedInItsKeyPressGetsNoRepeats)
{
    this->startAndOpenEntry();
    this->watch(FrmQSO.txtIndic);
    this->goTo(FrmQSO.txtIndic);
    this->onKeyPress(FrmQSO.txtIndic, [this](char32_t& /*character*/) { this->backToFirstPage(); });
    this->down("a");
    this->repeat("a", 3);
    this->up("a");
    EXPECT_EQ(screen::activeForm(), &FrmInit);
    EXPECT_EQ(this->countOf("txtIndic KeyDown 65"), 1);
    EXPECT_EQ(FrmQSO.txtIndic.Text.get(), "");
    EXPECT_EQ(FrmInit.TxtRpNr.Text.get().find('A'), std::string::npos);
}

TYPED_TEST_P(EndingRules, AFormThatIsLoadedAgainInItsKeyDownIsNewToTheKey)
{
    this->startIn(FrmInit.TxtMyCall);
    this->onKeyDown(FrmInit.TxtMyCall, [this](int& /*code*/) {
        this->loadAgain();
        this->watch({&FrmInit.TxtMyCall, &FrmInit.TxtRpNr});
        this->note("loaded");
    });
    this->down("a");
    EXPECT_EQ(this->takeLog(), Log({"TxtMyCall KeyDown 65", "loaded", "TxtRpNr GotFocus"}));
    EXPECT_EQ(FrmInit.TxtMyCall.Text.get(), "") << "the character of a key that went down on the page before";
    this->repeat("a", 3);
    EXPECT_EQ(this->takeLog(), Log());
    this->up("a");
    EXPECT_EQ(this->takeLog(), Log({"TxtRpNr KeyUp 65"}));
    this->onKeyDown(FrmInit.TxtMyCall, [](int& /*code*/) {});
    this->goTo(FrmInit.TxtMyCall);
    this->type("b");
    EXPECT_EQ(FrmInit.TxtMyCall.Text.get(), "b");
}

TYPED_TEST_P(EndingRules, AFormThatIsLoadedAgainInItsKeyPressTakesNoCharacter)
{
    this->startIn(FrmInit.TxtRpNr);
    this->onKeyPress(FrmInit.TxtRpNr, [this](char32_t& /*character*/) { this->loadAgain(); });
    this->strike("1");
    EXPECT_EQ(screen::activeForm(), &FrmInit);
    EXPECT_EQ(FrmInit.TxtRpNr.Text.get(), "");
}

TYPED_TEST_P(EndingRules, AFormThatIsLoadedAgainUnderAKeyThatIsHeldGetsNoRepeats)
{
    this->startIn(FrmInit.TxtRpNr);
    this->onKeyDown(FrmInit.TxtRpNr, [this](int& /*code*/) {
        this->loadAgain();
        this->watch(FrmInit.TxtRpNr);
        this->note("loaded");
    });
    this->down("1");
    this->repeat("1", 3);
    EXPECT_EQ(this->takeLog(), Log({"TxtRpNr KeyDown 49", "loaded", "TxtRpNr GotFocus"}));
    this->up("1");
    EXPECT_EQ(FrmInit.TxtRpNr.Text.get(), "");
}

TYPED_TEST_P(EndingRules, AFormThatIsUnloadedInItsClick)
{
    this->startAndOpenEntry();
    this->watch(FrmQSO.CmdAbbruchX);
    this->onClick(FrmQSO.CmdAbbruchX, [this] { this->backToFirstPage(); });
    this->click(FrmQSO.CmdAbbruchX);
    EXPECT_EQ(screen::activeForm(), &FrmInit);
    EXPECT_EQ(FrmQSO.life, screen::FormLife::unloaded);
    this->goTo(FrmInit.TxtMyCall);
    this->strike("Backspace");
}

TYPED_TEST_P(EndingRules, AFormThatIsLoadedAgainInItsClick)
{
    this->startIn(FrmInit.TxtMyCall);
    this->watch(FrmInit.OpbCwJ);
    this->onClick(FrmInit.OpbCwJ, [this] { this->loadAgain(); });
    this->click(FrmInit.OpbCwJ);
    EXPECT_EQ(screen::activeForm(), &FrmInit);
    EXPECT_EQ(this->focusedName(), "TxtRpNr");
    EXPECT_FALSE(FrmInit.OpbCwJ.Value) << "the page is a fresh one";
}

TYPED_TEST_P(EndingRules, AFormThatIsLoadedAgainWhileEventsAreServed)
{
    this->startIn(FrmInit.TxtMyCall);
    this->watch(FrmInit.txtMyQRA);
    this->onClick(FrmInit.txtMyQRA, [this] {
        this->loadAgain();
        this->note("loaded");
    });
    this->onKeyDown(FrmInit.TxtMyCall, [this](int& /*code*/) { serveUntil([this] { return this->noted("loaded"); }); });
    this->later(std::chrono::milliseconds(5), [this] { this->click(FrmInit.txtMyQRA); });
    this->down("a");
    this->up("a");
    EXPECT_EQ(screen::activeForm(), &FrmInit);
    EXPECT_EQ(FrmInit.TxtMyCall.Text.get(), "");
}

TYPED_TEST_P(EndingRules, AFormThatIsLoadedAgainInItsTimer)
{
    this->startIn(FrmInit.TxtMyCall);
    this->onTick(FrmQSO.tmrTimer, [this] {
        screen::load(FrmQSO);
        FrmQSO.tmrTimer.Enabled = false;
        this->note("loaded");
    });
    this->inProgram([this] {
        this->watch(FrmQSO.tmrTimer);
        FrmQSO.tmrTimer.due = platform::machine().clock.monotonic();
        serveUntil([this] { return this->noted("loaded"); });
    });
    EXPECT_EQ(screen::activeForm(), &FrmInit);
}

TYPED_TEST_P(EndingRules, APasteEndsWithItsForm)
{
    this->startAndOpenEntry();
    this->watch(FrmQSO.txtIndic);
    this->goTo(FrmQSO.txtIndic);
    this->onKeyPress(FrmQSO.txtIndic, [this](char32_t& character) {
        if (character == U'b') this->backToFirstPage();
    });
    this->paste("abc");
    EXPECT_EQ(this->takeLog(), Log({"txtIndic KeyPress 97", "txtIndic KeyPress 98"}));
    EXPECT_EQ(screen::activeForm(), &FrmInit);
}

TYPED_TEST_P(EndingRules, AHandlerMayEndTheProgram)
{
    this->startIn(FrmInit.TxtMyCall);
    this->onKeyDown(FrmInit.TxtMyCall, [](int& /*code*/) { throw base::ProgramEnd{}; });
    this->down("a");
    EXPECT_TRUE(this->ended());
    EXPECT_EQ(this->takeLog(), Log({"TxtMyCall KeyDown 65"}));
}

TYPED_TEST_P(EndingRules, AServedHandlerMayEndTheProgram)
{
    this->startIn(FrmInit.TxtMyCall);
    this->onKeyDown(FrmInit.TxtMyCall, [this](int& code) {
        if (code == platform::keyF3) throw base::ProgramEnd{};
        serveUntil([] { return false; });
        this->note("the handler goes on");
    });
    this->later(std::chrono::milliseconds(5), [this] { this->down("F3"); });
    this->down("F2");
    EXPECT_TRUE(this->ended());
    EXPECT_EQ(this->takeLog(), Log({"TxtMyCall KeyDown 113", "TxtMyCall KeyDown 114"}));
}

TYPED_TEST_P(EndingRules, AServedHandlerMayEndTheProgramBehindABox)
{
    this->startIn(FrmInit.TxtMyCall);
    this->onKeyDown(FrmInit.TxtMyCall, [this](int& code) {
        if (code == platform::keyF3) {
            platform::msgBox("Falsche Eingabe");
            throw base::ProgramEnd{};
        }
        serveUntil([] { return false; });
        this->note("the handler goes on");
    });
    this->later(std::chrono::milliseconds(5), [this] { this->down("F3"); });
    this->down("F2");
    EXPECT_TRUE(this->ended());
    EXPECT_EQ(this->boxes(), std::vector<std::string>({"Falsche Eingabe"}));
    EXPECT_FALSE(this->noted("the handler goes on"));
}

TYPED_TEST_P(EndingRules, TheCloseButtonAsks)
{
    this->startIn(FrmInit.TxtMyCall);
    this->answer(platform::buttonNo);
    this->close();
    EXPECT_FALSE(this->ended());
    EXPECT_EQ(this->boxes(), std::vector<std::string>({this->question}));
    this->type("a");
    EXPECT_EQ(FrmInit.TxtMyCall.Text.get(), "a") << "after a No everything goes on";
    this->answer(platform::buttonYes);
    this->close();
    EXPECT_TRUE(this->ended());
    EXPECT_EQ(this->boxes().size(), 2U);
}

TYPED_TEST_P(EndingRules, TheCloseButtonAsksOnTheOtherForms)
{
    this->startAndOpenEntry();
    const std::size_t boxesBefore = this->boxes().size();
    this->answer(platform::buttonNo);
    this->close();
    EXPECT_EQ(this->boxes().size(), boxesBefore + 1);
    EXPECT_EQ(screen::activeForm(), &FrmQSO);
    this->answer(platform::buttonYes);
    this->close();
    EXPECT_TRUE(this->ended());
}

TYPED_TEST_P(EndingRules, TheCloseButtonWorksInAHandlerThatServes)
{
    this->startIn(FrmInit.TxtMyCall);
    this->onKeyDown(FrmInit.TxtMyCall, [this](int& /*code*/) {
        serveUntil([] { return false; });
        this->note("the handler goes on");
    });
    this->answer(platform::buttonYes);
    this->later(std::chrono::milliseconds(5), [this] { this->close(); });
    this->down("F2");
    EXPECT_TRUE(this->ended());
    EXPECT_EQ(this->boxes(), std::vector<std::string>({this->question}));
    EXPECT_EQ(this->takeLog(), Log({"TxtMyCall KeyDown 113"}));
}

TYPED_TEST_P(EndingRules, AHandlerThatServesGoesOnAfterANo)
{
    this->startIn(FrmInit.TxtMyCall);
    this->onKeyDown(FrmInit.TxtMyCall, [this](int& /*code*/) {
        serveUntil([] { return Modul1.MsgResp == base::toText(platform::buttonNo); });
        this->note("the handler goes on");
    });
    this->answer(platform::buttonNo);
    this->later(std::chrono::milliseconds(5), [this] { this->close(); });
    this->strike("F2");
    EXPECT_FALSE(this->ended());
    EXPECT_EQ(this->takeLog(), Log({"TxtMyCall KeyDown 113", "the handler goes on", "TxtMyCall KeyUp 113"}));
}

TYPED_TEST_P(EndingRules, TheCloseButtonWaitsForTheBoxThatComesBeforeIt)
{
    this->startIn(FrmInit.TxtMyCall);
    std::atomic<bool> closed = false;
    this->onKeyDown(FrmInit.TxtMyCall, [this, &closed](int& /*code*/) {
        sleepUntilThat([&] { return closed.load(); });
        platform::msgBox("Falsche Eingabe");
        this->note("the handler goes on");
    });
    this->answer(platform::buttonYes);
    this->later(std::chrono::milliseconds(5), [&] {
        this->close();
        closed = true;
    });
    this->down("F2");
    EXPECT_TRUE(this->ended());
    EXPECT_EQ(this->boxes(), std::vector<std::string>({"Falsche Eingabe", this->question}));
    EXPECT_TRUE(this->noted("the handler goes on"));
}

TYPED_TEST_P(EndingRules, AnErrorEndsItsHandlerAndNothingElse)
{
    this->startIn(FrmInit.TxtMyCall);
    this->onKeyDown(FrmInit.TxtMyCall, [this](int& code) {
        if (code == 'A') throw base::RuntimeError(base::diskFull, "the disk is full");
        this->note("the handler ends");
    });
    this->type("ab");
    EXPECT_EQ(this->takeLog(),
              Log({"TxtMyCall KeyDown 65", "TxtMyCall KeyPress 97", "TxtMyCall KeyUp 65", "TxtMyCall KeyDown 66",
                   "the handler ends", "TxtMyCall KeyPress 98", "TxtMyCall KeyUp 66"}));
    EXPECT_EQ(FrmInit.TxtMyCall.Text.get(), "ab");
    EXPECT_NE(platform::machine().notices.last().find("the disk is full"), std::string::npos);
}

TYPED_TEST_P(EndingRules, AnErrorInAServedHandlerLeavesTheOneThatServesAlone)
{
    this->startIn(FrmInit.TxtMyCall);
    this->onKeyDown(FrmInit.TxtMyCall, [this](int& code) {
        if (code == platform::keyF3) throw base::RuntimeError(base::diskFull, "the disk is full");
        serveUntil([this] { return this->noted("TxtMyCall KeyUp 114"); });
        this->note("the handler goes on");
    });
    this->later(std::chrono::milliseconds(5), [this] { this->strike("F3"); });
    this->strike("F2");
    EXPECT_EQ(this->takeLog(), Log({"TxtMyCall KeyDown 113", "TxtMyCall KeyDown 114", "TxtMyCall KeyUp 114",
                                    "the handler goes on", "TxtMyCall KeyUp 113"}));
    EXPECT_NE(platform::machine().notices.last().find("the disk is full"), std::string::npos);
}

TYPED_TEST_P(EndingRules, ErrorsLeaveEverySlotAlike)
{
    this->startIn(FrmInit.TxtMyCall);
    this->watch({&FrmInit.txtMyQRA, &FrmQSO.tmrTimer});
    const auto fail = [] { throw base::RuntimeError(base::diskFull, "the disk is full"); };
    this->onKeyPress(FrmInit.TxtMyCall, [fail](char32_t& /*character*/) { fail(); });
    this->onKeyUp(FrmInit.TxtMyCall, [fail](int& /*code*/) { fail(); });
    this->onGotFocus(FrmInit.txtMyQRA, fail);
    this->onClick(FrmInit.txtMyQRA, fail);
    this->type("a");
    this->click(FrmInit.txtMyQRA);
    EXPECT_EQ(this->takeLog(), Log({"TxtMyCall KeyDown 65", "TxtMyCall KeyPress 97", "TxtMyCall KeyUp 65",
                                    "txtMyQRA GotFocus", "txtMyQRA Click"}));
    EXPECT_FALSE(this->ended());
}

REGISTER_TYPED_TEST_SUITE_P(EndingRules, AFormThatIsUnloadedInItsKeyDownGetsNothingMoreOfTheKey,
                            AFormThatIsUnloadedInItsKeyPressGetsNoRepeats,
                            AFormThatIsLoadedAgainInItsKeyDownIsNewToTheKey,
                            AFormThatIsLoadedAgainInItsKeyPressTakesNoCharacter,
                            AFormThatIsLoadedAgainUnderAKeyThatIsHeldGetsNoRepeats, AFormThatIsUnloadedInItsClick,
                            AFormThatIsLoadedAgainInItsClick, AFormThatIsLoadedAgainWhileEventsAreServed,
                            AFormThatIsLoadedAgainInItsTimer, APasteEndsWithItsForm, AHandlerMayEndTheProgram,
                            AServedHandlerMayEndTheProgram, AServedHandlerMayEndTheProgramBehindABox,
                            TheCloseButtonAsks, TheCloseButtonAsksOnTheOtherForms,
                            TheCloseButtonWorksInAHandlerThatServes, AHandlerThatServesGoesOnAfterANo,
                            TheCloseButtonWaitsForTheBoxThatComesBeforeIt, AnErrorEndsItsHandlerAndNothingElse,
                            AnErrorInAServedHandlerLeavesTheOneThatServesAlone, ErrorsLeaveEverySlotAlike);

}  // namespace test
