// The keying choices of the set-up page in every order, the folder of the voice files, and the sound device.
#include "screen/keying_choices.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <initializer_list>
#include <string>
#include <vector>

#include "platform/files.h"
#include "runstate/modul1.h"
#include "screen/frm_init.h"
#include "screen/frm_qso.h"
#include "support/running_program.h"

namespace {

namespace fs = std::filesystem;

// ---- Every order

enum Choice { cwYes, cwNo, voiceYes, voiceNo, cwRepeat, voiceRepeat };

constexpr Choice choices[] = {cwYes, cwNo, voiceYes, voiceNo, cwRepeat, voiceRepeat};

screen::Control& controlOf(Choice choice)
{
    screen::Control* const controls[] = {&FrmInit.OpbCwJ,  &FrmInit.OpbCwN,   &FrmInit.OpbSSBJ,
                                         &FrmInit.OpbSSBN, &FrmInit.ChkCwRpt, &FrmInit.ChkSSBRpt};
    return *controls[choice];
}

/// What the page and the run state show of the choices.
struct Keying {
    int cw = 10;
    int voice = 10;
    int cwFlag = 0;
    int voiceFlag = 0;
    int cwMark = 0;
    int voiceMark = 0;
    bool cwBox = false;
    bool voiceBox = false;
    bool messages = false;
    bool operator==(const Keying&) const = default;
};

Keying shown()
{
    return {Modul1.CwAllowed,         Modul1.SsbAllowed,         Modul1.CwRptFlag,
            Modul1.SsbRptFlag,        FrmInit.ChkCwRpt.Value,    FrmInit.ChkSSBRpt.Value,
            FrmInit.ChkCwRpt.Visible, FrmInit.ChkSSBRpt.Visible, FrmInit.FramTxtCw.Visible};
}

/// The rules once more, for comparison. A box that is out of sight cannot be clicked.
void expectAfter(Choice choice, Keying& keying)
{
    if (choice == cwYes) keying.cw = 100, keying.cwBox = keying.messages = true;
    if (choice == cwNo) keying.cw = 10, keying.cwBox = keying.messages = false, keying.cwMark = keying.cwFlag = 0;
    if (choice == voiceYes) keying.voice = 100, keying.voiceBox = true;
    if (choice == voiceNo) keying.voice = 10, keying.voiceBox = false, keying.voiceMark = keying.voiceFlag = 0;
    if (choice == cwRepeat && keying.cwBox) {
        keying.cwMark = 1 - keying.cwMark;
        if (keying.cwMark == 1) keying.cwFlag = 100;
        if (keying.cwMark == 0) keying.voiceFlag = 0;
    }
    if (choice == voiceRepeat && keying.voiceBox) {
        keying.voiceMark = 1 - keying.voiceMark;
        keying.voiceFlag = keying.voiceMark == 1 ? 100 : 0;
    }
}

const screen::Control* focusAfter(Choice choice, bool contestRuns, const screen::Control* before)
{
    const screen::Control& clicked = controlOf(choice);
    if (!clicked.seen() && (choice == cwRepeat || choice == voiceRepeat)) return before;
    if (contestRuns || choice == voiceYes || choice == cwRepeat || choice == voiceRepeat) return &clicked;
    if (choice == cwYes) return &FrmInit.TxtF1;
    return &FrmInit.TxtMyCall;
}

/// Walks from choice to choice so that each four of them come in every order.
void walkEveryOrder(test::RunningProgram& program, Keying keying, bool contestRuns)
{
    for (const Choice first : choices)
        for (const Choice second : choices)
            for (const Choice third : choices)
                for (const Choice fourth : choices)
                    for (const Choice choice : {first, second, third, fourth}) {
                        const screen::Control* focus = focusAfter(choice, contestRuns, FrmInit.ActiveControl);
                        program.click(controlOf(choice));
                        expectAfter(choice, keying);
                        ASSERT_EQ(shown(), keying) << first << second << third << fourth << " at " << choice;
                        ASSERT_EQ(FrmInit.ActiveControl, focus) << first << second << third << fourth;
                    }
}

class KeyingChoices : public testing::Test {
 protected:
    void SetUp() override
    {
        fs::create_directory(program.folder() / "WAVUus");
        FrmInit.TxtMyCall.Text = "YO2XYZ";
    }

    test::RunningProgram program;
};

TEST_F(KeyingChoices, ComeInEveryOrder)
{
    EXPECT_EQ(shown(), Keying{});
    walkEveryOrder(program, {}, false);
}

TEST_F(KeyingChoices, ComeInEveryOrderInARunningContest)
{
    program.click(FrmInit.mnuQSOfahren);
    program.click(FrmQSO.mnuAnfang);
    walkEveryOrder(program, {}, true);
}

TEST_F(KeyingChoices, AreTakenFromTheBoxesAtTheStartOfTheEntry)
{
    for (const int cw : {0, 1})
        for (const int voice : {0, 1}) {
            FrmInit.ChkCwRpt.Value = cw;
            FrmInit.ChkSSBRpt.Value = voice;
            Modul1.CwRptFlag = cw == 1 ? 0 : 100;
            Modul1.SsbRptFlag = voice == 1 ? 0 : 100;
            program.click(FrmInit.mnuQSOfahren);
            EXPECT_EQ(Modul1.CwRptFlag, cw == 1 ? 100 : 0);
            EXPECT_EQ(Modul1.SsbRptFlag, voice == 1 ? 100 : 0);
            EXPECT_EQ(FrmQSO.TxtF1.BackColor, cw == 1 ? screen::green : screen::yellow);
            EXPECT_EQ(FrmQSO.TxtPauseSSB.BackColor, voice == 1 ? screen::green : screen::yellow);
            program.click(FrmQSO.mnuAnfang);
            EXPECT_EQ(FrmInit.ChkCwRpt.Value, cw);
            EXPECT_EQ(FrmInit.ChkSSBRpt.Value, voice);
        }
}

TEST_F(KeyingChoices, PutTheCaretBehindTheCallOrNowhere)
{
    program.click(FrmInit.OpbCwJ);
    program.click(FrmInit.OpbCwN);
    EXPECT_EQ(FrmInit.ActiveControl, &FrmInit.TxtMyCall);
    EXPECT_EQ(FrmInit.TxtMyCall.SelStart, 6U);
    FrmInit.TxtMyCall.Text = "";
    program.click(FrmInit.OpbCwN);
    EXPECT_EQ(FrmInit.TxtMyCall.SelStart, 0U);
    FrmInit.TxtMyCall.Text = "YO2XYZ";
    program.click(FrmInit.OpbSSBN);
    EXPECT_EQ(FrmInit.TxtMyCall.SelStart, 0U) << "the choice about voice leaves the caret";
}

TEST_F(KeyingChoices, TakeThePauseAway)
{
    for (screen::TextBox* pause : {&FrmQSO.txtPauseCW, &FrmQSO.TxtPauseSSB})
        pause->Visible = true;
    program.click(FrmInit.OpbCwN);
    EXPECT_FALSE(FrmQSO.txtPauseCW.Visible);
    EXPECT_TRUE(FrmQSO.TxtPauseSSB.Visible);
    program.click(FrmInit.OpbSSBN);
    EXPECT_FALSE(FrmQSO.TxtPauseSSB.Visible);
}

// ---- The folder of the voice files

class VoiceFolder : public testing::Test {
 protected:
    static std::string message(const std::string& folder)
    {
        return "Folderul " + folder +
               "\\WAVUus a fost creiat dar este gol. Pentru functionare cu PC-ul in SSB, trebuiesc creiate in acest "
               "folder, fisierele F1.WAV...F7WAV ! ";
    }

    /// Text of the box that came, empty without one.
    std::string told()
    {
        const auto box = program.box();
        if (!box) return {};
        EXPECT_EQ(box->request.title, "");
        EXPECT_EQ(box->request.style, 0);
        return box->request.text;
    }

    fs::path voice() const { return program.folder() / "WAVUus"; }

    test::RunningProgram program;
};

TEST_F(VoiceFolder, IsMadeAndToldOnce)
{
    screen::OrdWav();
    EXPECT_TRUE(fs::is_directory(voice()));
    EXPECT_EQ(told(), message(Modul1.AppDir));
    screen::OrdWav();
    EXPECT_EQ(told(), "");
    EXPECT_TRUE(program.notices().empty());
}

TEST_F(VoiceFolder, IsTheOneThatTheMessageKeysLookIn)
{
    screen::OrdWav();
    EXPECT_EQ(Modul1.AppDir, Modul1.AppPath);
    EXPECT_TRUE(fs::equivalent(platform::resolve(Modul1.AppPath + "\\WAVUus"), voice()));
}

TEST_F(VoiceFolder, KeepsWhatIsInIt)
{
    fs::create_directory(voice());
    test::writeFile(voice() / "F1.wav", "sound");
    screen::OrdWav();
    EXPECT_EQ(told(), "");
    EXPECT_EQ(test::readFile(voice() / "F1.wav"), "sound");
}

TEST_F(VoiceFolder, ThatIsNoneIsToldInTheQuietLine)
{
    test::writeFile(voice(), "a file");
    screen::OrdWav();
    EXPECT_EQ(told(), "");
    EXPECT_EQ(program.notices(), std::vector<std::string>{"WAVUus is there already"});
    EXPECT_EQ(test::readFile(voice()), "a file");
}

TEST_F(VoiceFolder, ThatCannotBeMadeForAnotherReasonIsToldAlike)
{
    Modul1.AppDir += "\\none";
    screen::OrdWav();
    EXPECT_EQ(told(), message(Modul1.AppDir));
    EXPECT_EQ(program.notices().size(), 1U);
    EXPECT_FALSE(fs::exists(program.folder() / "none"));
}

// ---- The sound device

TEST(SoundDevice, IsAskedFor)
{
    test::RunningProgram program;
    for (const bool device : {true, false}) {
        program.machine().description.soundCard = device;
        bool flag = false;
        screen::Soundkarte(flag);
        EXPECT_EQ(flag, device);
    }
}

TEST(SoundDevice, ThatIsPulledInARunningContestTakesVoiceAway)
{
    test::RunningProgram program;
    program.click(FrmInit.OpbSSBJ);
    program.click(FrmInit.mnuQSOfahren);
    program.machine().description.soundCard = false;
    program.click(FrmQSO.mnuAnfang);
    EXPECT_EQ(Modul1.SoundCard, 0);
    EXPECT_EQ(Modul1.SsbAllowed, 0);
    EXPECT_TRUE(FrmInit.OpbSSBN.Value);
    for (const screen::Control* control : std::initializer_list<const screen::Control*>{
             &FrmInit.FramSSB, &FrmInit.OpbSSBJ, &FrmInit.OpbSSBN, &FrmInit.ChkSSBRpt})
        EXPECT_FALSE(control->Visible) << control->name;
}

}  // namespace
