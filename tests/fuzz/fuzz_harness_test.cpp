// The harness of the fuzzers: what the scripts do goes through it without a complaint, some random inputs too, and each
// thing that it watches over can be found broken.
#include <gtest/gtest.h>

#include <algorithm>
#include <random>

#include "entry/commit.h"
#include "fuzz/corpus.h"
#include "fuzz/fresh_folder.h"
#include "fuzz/player.h"
#include "fuzz/step_statements.h"
#include "fuzz/targets.h"
#include "runstate/modul1.h"
#include "runstate/question.h"
#include "screen/frm_qso.h"
#include "script/parser.h"
#include "script/step_failed.h"
#include "support/station.h"

namespace {

namespace fs = std::filesystem;

using fuzz::Broken;

std::vector<std::uint8_t> inputOf(const std::string& bytes)
{
    return {bytes.begin(), bytes.end()};
}

/// What the harness complains of, empty when it does not.
template <typename Work>
std::string complaintOf(Work&& work)
{
    try {
        std::forward<Work>(work)();
        return {};
    } catch (const Broken& broken) {
        return broken.what;
    }
}

std::string complaintOf(const fuzz::Target& target, const std::string& bytes)
{
    const std::vector<std::uint8_t> input = inputOf(bytes);
    return complaintOf([&] { target.run(input, {}); });
}

fs::path scripts()
{
    return fs::path(KELVO_SOURCE_FOLDER) / "tests" / "scripts";
}

/// The same bytes on every machine and in every run.
std::string randomBytes(unsigned seed, std::size_t most)
{
    std::mt19937 random(seed);
    std::string bytes(random() % most + 1, '\0');
    std::generate(bytes.begin(), bytes.end(), [&] { return static_cast<char>(random() & 0xFFU); });
    return bytes;
}

/// Bytes of which each was changed with a chance of one in `oneIn`.
std::string changed(std::string bytes, unsigned seed, unsigned oneIn)
{
    std::mt19937 random(seed);
    for (char& byte : bytes)
        if (random() % oneIn == 0) byte = static_cast<char>(random() & 0xFFU);
    return bytes;
}

}  // namespace

// Steps and bytes.

TEST(Steps, keepTheirByteForm)
{
    for (unsigned seed = 0; seed < 200; ++seed) {
        const std::vector<std::uint8_t> bytes = inputOf(randomBytes(seed, 300));
        fuzz::StepReader reader(bytes);
        while (const std::optional<fuzz::Step> step = reader.next()) {
            const std::vector<std::uint8_t> again = inputOf(fuzz::bytesOf(*step));
            fuzz::StepReader second(again);
            const std::optional<fuzz::Step> same = second.next();
            ASSERT_TRUE(same);
            EXPECT_EQ(same->key, step->key);
            EXPECT_EQ(same->act, step->act);
            EXPECT_EQ(same->arguments, step->arguments);
            EXPECT_EQ(same->text, step->text);
            EXPECT_FALSE(second.next());
        }
    }
}

TEST(Steps, everyKeyHasItsName)
{
    for (unsigned byte = 0; byte < 256; ++byte) {
        if (byte >= 0x40 && byte < 0x80) continue;
        const std::string name = fuzz::keyName(static_cast<std::uint8_t>(byte));
        const std::optional<fuzz::Step> step = fuzz::keyStep(name);
        ASSERT_TRUE(step) << name;
        EXPECT_EQ(step->key, byte) << name;
    }
}

TEST(Steps, areReadableAsAScript)
{
    std::string script;
    const std::vector<std::uint8_t> bytes = inputOf(randomBytes(8, 2000));
    fuzz::Player player(fuzz::FreshFolder::instance().prepare(), false,
                        [&](const std::string& line) { script += line + "\n"; });
    player.play(bytes);
    EXPECT_GT(script::parse(script, "played").statements.size(), 50U) << script;
}

TEST(Steps, ofAScriptDoWhatTheScriptDoes)
{
    const std::string bytes = fuzz::bytesOfScript(R"(
now 2026-11-15 12:00:00
start
click OpBFloareademina
click OpbConcurs
focus TxtMyCall
type "yo2xyz"
key Enter
type "kn05os"
key Enter
type "2"
click mnuQSOfahren
click Cmd432
click CmdCW
type "yo5aaa"
key Tab
type "007"
type "kn16aa"
key Enter
)");
    const fs::path folder = fuzz::FreshFolder::instance().prepare();
    const std::vector<std::uint8_t> input = inputOf(bytes);
    fuzz::Player(folder, false, {}).play(fuzz::Bytes(input).subspan(1));
    fuzz::TableReader log(folder / "LogKelvo.mdb");
    const fuzz::Rows rows = log.rows("Uus432a").value();
    ASSERT_EQ(rows.size(), 1U);
    const std::vector<std::string> expected = {
        "YO5AAA", "15.11.26", "10:00", "599 001", "599 007", "CW", "432", "KN16AA", rows.begin()->second.back()};
    EXPECT_EQ(rows.begin()->second, expected);
}

// Every target, with what fuzzing begins with and with some inputs that are made from it.

class EveryTarget : public testing::TestWithParam<const fuzz::Target*> {};

TEST_P(EveryTarget, takesWhatFuzzingBeginsWith)
{
    const fuzz::Target& target = *GetParam();
    // The fuzzers take all scripts.
    const fuzz::Corpus corpus = fuzz::corpusOf(target.name, scripts(), 16);
    ASSERT_FALSE(corpus.empty());
    for (const auto& [name, bytes] : corpus)
        EXPECT_EQ(complaintOf(target, bytes), "") << name;
}

TEST_P(EveryTarget, takesRandomInputs)
{
    const fuzz::Target& target = *GetParam();
    // A whole contest day in one input takes its time.
    const bool slow = target.name == "database" || target.name == "setup";
    for (unsigned seed = 0; seed < (slow ? 20 : 120); ++seed)
        EXPECT_EQ(complaintOf(target, randomBytes(seed, 300)), "") << "seed " << seed;
}

INSTANTIATE_TEST_SUITE_P(Fuzz, EveryTarget, testing::ValuesIn([] {
                             std::vector<const fuzz::Target*> all;
                             for (const fuzz::Target& target : fuzz::targets())
                                 all.push_back(&target);
                             return all;
                         }()),
                         [](const testing::TestParamInfo<const fuzz::Target*>& made) {
                             return std::string(made.param->name);
                         });

TEST(RandomOperator, takesChangedContests)
{
    const fuzz::Corpus corpus = fuzz::corpusOf("operator", scripts() / "commit");
    unsigned seed = 0;
    for (const auto& [name, bytes] : corpus)
        for (int i = 0; i < 3; ++i, ++seed)
            EXPECT_EQ(complaintOf(*fuzz::targetNamed("operator"), changed(bytes, seed, 20)), "") << name << seed;
}

// What the watch looks for: each of it is broken once, behind the back of the program.

namespace {

/// The program in the middle of a contest, with the watch over it.
class Watched : public testing::Test {
 protected:
    void SetUp() override
    {
        play("open 3 0 0");
        play(qso("YO5AAA", "KN16AA"));
        ASSERT_EQ(watchLook(), "");
    }

    static std::string qso(const std::string& call, const std::string& locator)
    {
        return "focus txtIndic\ntype \"" + call + "\"\nkey Tab\ntype \"012\"\ntype \"" + locator + "\"\nkey Enter\n";
    }

    /// Plays statements, the first of which may be "open CONTEST CHOICE MODE".
    void play(const std::string& text)
    {
        fuzz::StepReader nothing({});
        if (text.starts_with("open ")) {
            const auto number = [&](std::size_t at) { return static_cast<std::uint8_t>(text.at(at) - '0'); };
            return player_.playStep(
                {.act = fuzz::Act::open, .arguments = {number(5), number(7), number(9)}, .text = {}, .key = {}},
                nothing);
        }
        for (const script::Statement& statement : script::parse(text, "test").statements)
            for (const fuzz::Step& step : fuzz::stepsOf(statement))
                player_.playStep(step, nothing);
    }

    /// What an event that does nothing brings to light.
    std::string watchLook()
    {
        return complaintOf([&] { play("key Left"); });
    }

    void changeTheLog(const std::string& statement) { test::PlainLog(folder_ / "LogKelvo.mdb").execute(statement); }

    fs::path folder_ = fuzz::FreshFolder::instance().prepare();
    fuzz::Player player_{folder_, window(), {}};

 private:
    /// One of the tests wants pictures.
    static bool window()
    {
        return std::string(testing::UnitTest::GetInstance()->current_test_info()->name()) == "findsTwoGridsInAPicture";
    }
};

/// The same in the contest whose log is one for all bands.
class WatchedMaraton : public Watched {
 protected:
    void SetUp() override
    {
        play("open 7 0 0");
        logs("YO5AAA");
        ASSERT_EQ(watchLook(), "");
        ASSERT_EQ(FrmQSO.LblQSO.Caption, "1");
    }

    /// The locator is followed by the name here, and the call field takes the Enter.
    void logs(const std::string& call) { play(qso(call, "KN16AA") + "focus txtIndic\nkey Enter"); }
};

/// The same in the contest with microwaves.
class WatchedInternational : public Watched {
 protected:
    void SetUp() override { play("open 9 0 0"); }
};

constexpr const char* rowOf144 =
    "INSERT INTO Uus144a (Callsign, Data, UTC, Sent, Rcvd, Mode, Freq, QRALoc, Pct) VALUES ('YO9ZZZ', '15.11.26', "
    "'12:00', '599 001', '599 002', 'CW', '144', 'KN16AA', '70')";

}  // namespace

TEST_F(Watched, findsTwoGrids)
{
    FrmQSO.DBGrid3.Visible = true;
    EXPECT_EQ(watchLook(), "two grids are in view on FrmQSO: DBGrid1 and DBGrid3");
}

TEST_F(Watched, findsTwoGridsInAPicture)
{
    FrmQSO.DBGrid3.Visible = true;
    EXPECT_EQ(watchLook(), "two grids are drawn at once: DBGrid1 and DBGrid3");
}

TEST_F(Watched, findsARowThatNobodyLogged)
{
    changeTheLog(rowOf144);
    EXPECT_EQ(
        watchLook(),
        "Uus144a got the row YO9ZZZ|15.11.26|12:00|599 001|599 002|CW|144|KN16AA|70 by an entry that logs nothing");
}

TEST_F(Watched, findsTwoRowsOfOneEnter)
{
    // The table writes a row of its own for each that it gets.
    changeTheLog(
        "CREATE TRIGGER twice AFTER INSERT ON Uus144a WHEN new.Callsign = 'YO7BBB' BEGIN INSERT INTO Uus144a "
        "(Callsign, Data, UTC, Sent, Rcvd, Mode, Freq, QRALoc, Pct) VALUES (upper(new.Callsign), new.Data, "
        "new.UTC, new.Sent, new.Rcvd, new.Mode, new.Freq, new.QRALoc, new.Pct); END");
    EXPECT_EQ(complaintOf([&] { play(qso("YO7BBB", "KN16AA")); }), "one entry wrote 2 rows");
}

TEST_F(Watched, findsARowInAnotherTable)
{
    changeTheLog(
        "CREATE TRIGGER astray AFTER INSERT ON Uus144a BEGIN INSERT INTO Uus432a SELECT * FROM Uus144a WHERE "
        "ID = new.ID; DELETE FROM Uus144a WHERE ID = new.ID; END");
    const std::string complaint = complaintOf([&] { play(qso("YO7BBB", "KN16AA")); });
    EXPECT_TRUE(complaint.starts_with("Uus432a got the row YO7BBB|") && complaint.ends_with(" of another band"))
        << complaint;
}

TEST_F(Watched, findsARowThatIsGone)
{
    changeTheLog("DELETE FROM Uus144a");
    EXPECT_EQ(watchLook(), "1 rows of Uus144a are gone, and the operator let go of 0");
}

TEST_F(Watched, findsARowThatChanged)
{
    changeTheLog("UPDATE Uus144a SET Callsign = 'YO5AAB'");
    EXPECT_TRUE(watchLook().starts_with("a row of Uus144a changed from YO5AAA|"));
}

TEST_F(Watched, findsAQsoThatWasClearedAndNotLogged)
{
    changeTheLog("CREATE TRIGGER lost AFTER INSERT ON Uus144a BEGIN DELETE FROM Uus144a WHERE ID = new.ID; END");
    EXPECT_EQ(complaintOf([&] { play(qso("YO7BBB", "KN16AA")); }),
              "the screen was cleared of \"YO7BBB\", which was not logged");
}

TEST_F(Watched, findsACountThatIsWrong)
{
    ++Modul1.Qso144a;
    EXPECT_EQ(watchLook(), "Uus144a has 1 rows and the program counts 2");
}

TEST_F(Watched, findsPointsThatAreWrong)
{
    ++Modul1.Pct144a;
    EXPECT_TRUE(watchLook().starts_with("Uus144a has "));
}

TEST_F(Watched, findsACountThatWentUpWithoutARow)
{
    play("focus txtIndic");
    FrmQSO.CmdEnterCall.Enabled = true;
    FrmQSO.txtIndic.KeyDown = [](int& /*KeyCode*/) { FrmQSO.LblQSO.Caption = "2"; };
    EXPECT_EQ(complaintOf([&] { play("key F12"); }),
              "the count on the screen went up to 2 without a row, and nobody was told");
}

TEST_F(Watched, findsAScoreThatIsWrong)
{
    FrmQSO.LblQSO.Caption = "2";
    const std::string complaint = watchLook();
    EXPECT_TRUE(complaint.starts_with("row 0 of the score shows 2 QSOs and ")) << complaint;
}

TEST_F(Watched, findsAPointTooManyInTheScore)
{
    const std::string right = FrmQSO.LblPkt.Caption;
    FrmQSO.LblPkt.Caption = std::to_string(std::stol(right) + 1);
    const std::string complaint = watchLook();
    EXPECT_TRUE(complaint.ends_with(", and Uus144a has 1 QSOs and " + right + " points")) << complaint;
}

TEST_F(Watched, findsTheScoreOfAnotherBandWrong)
{
    for (screen::Label* label : {&FrmQSO.LblQSO1, &FrmQSO.LblPkt2, &FrmQSO.LblQSO3}) {
        label->Caption = "7";
        const std::string complaint = watchLook();
        EXPECT_TRUE(complaint.starts_with("row ")) << label->name << complaint;
        label->Caption = "0";
        ASSERT_EQ(watchLook(), "");
    }
}

TEST_F(Watched, findsAScoreThatIsFilledWrong)
{
    FrmQSO.Cmd432.Click = [] {
        Modul1.BandCur = 432;
        FrmQSO.LblPkt1.Caption = "0";
    };
    const std::string complaint = complaintOf([&] { play("click Cmd432"); });
    EXPECT_TRUE(complaint.starts_with("row 0 of the score shows 1 QSOs and ")) << complaint;
}

TEST_F(WatchedInternational, takesAMicrowaveFromTheListOfAnUndoneAbort)
{
    play(qso("YO5BBB", "KN16AA") + "click CmdGHz\ntype \"YO5CCC\"\nclick CmdAbbruchX\nclick Cmd144\nclick mnuRecup");
    ASSERT_TRUE(FrmQSO.Frame3.Visible);
    play("row List1 1");
    ASSERT_GT(Modul1.BandCur, 1296);
    EXPECT_EQ(watchLook(), "");
}

TEST_F(WatchedMaraton, takesItsRowsAsTheyAre)
{
    logs("YO7BBB");
    play("click Cmd432");
    logs("YO7BBB");
    play("answer Yes\ndblrow DBGrid9 1\nclick Cmd1296\nclick Cmd144");
    EXPECT_EQ(watchLook(), "");
    EXPECT_EQ(FrmQSO.LblQSO.Caption, "2");
    EXPECT_EQ(FrmQSO.LblQSO1.Caption, "0");
}

TEST_F(WatchedMaraton, findsAScoreThatIsWrong)
{
    for (screen::Label* label : {&FrmQSO.LblQSO, &FrmQSO.LblPkt, &FrmQSO.LblQSO1, &FrmQSO.LblPkt2}) {
        const std::string right = label->Caption;
        label->Caption = "7";
        const std::string complaint = watchLook();
        EXPECT_TRUE(complaint.starts_with("row ")) << label->name << complaint;
        label->Caption = right;
        ASSERT_EQ(watchLook(), "");
    }
}

TEST_F(WatchedMaraton, findsATotalThatIsWrong)
{
    play("click Cmd432");
    ++Modul1.QsoYO144;
    const std::string complaint = watchLook();
    EXPECT_TRUE(complaint.starts_with("the total of the Maraton contest on 144 is 2 QSOs and ")) << complaint;
    --Modul1.QsoYO144;
    ASSERT_EQ(watchLook(), "");
    ++Modul1.PctYO1296;
    EXPECT_EQ(watchLook(),
              "the total of the Maraton contest on 1296 is 0 QSOs and 1 points, and its log has 0 QSOs and 0 points");
}

TEST_F(WatchedMaraton, findsATotalThatADeletionLeft)
{
    play("click Cmd144");
    FrmQSO.DBGrid9.RowTouched = [] {
        runstate::ask("DO YOU WANT TO DELETE?", "LÖSCHEN?");
        Modul1.DbLog.Execute("DELETE FROM UusLGYO2");
        FrmQSO.LblQSO.Caption = FrmQSO.LblPkt.Caption = "0";
    };
    const std::string complaint = complaintOf([&] { play("answer Yes\ndblrow DBGrid9 1"); });
    EXPECT_TRUE(complaint.starts_with("the total of the Maraton contest on 144 is 1 QSOs and ")) << complaint;
}

TEST_F(WatchedMaraton, findsFiguresThatTheWriterKeepsWrong)
{
    FrmQSO.CmdEnterCall.Click = [] {
        entry::Enter();
        ++Modul1.PctGHz;
    };
    play("focus txtIndic\ntype \"YO7BBB\"\nkey Tab\ntype \"012\"\ntype \"KN16AA\"");
    const std::string complaint = complaintOf([&] { play("click CmdEnterCall"); });
    EXPECT_TRUE(complaint.starts_with("the band in hand has 2 QSOs and ")) << complaint;
}

TEST_F(Watched, findsATransmitterThatIsOn)
{
    play("port 1");
    player_.program().machine().serialPort.open(1);
    player_.program().machine().serialPort.setRts(true);
    EXPECT_EQ(watchLook(), "the transmitter is on although nothing is sent");
}

TEST_F(Watched, findsAKeyThatIsDown)
{
    play("port 1");
    player_.program().machine().serialPort.open(1);
    player_.program().machine().serialPort.setDtr(true);
    EXPECT_EQ(watchLook(), "the key is down although nothing is sent");
}

TEST_F(Watched, findsAPortThatIsOpen)
{
    play("port 1");
    player_.program().machine().serialPort.open(1);
    EXPECT_EQ(watchLook(), "the serial port is open although nothing is sent");
}

TEST_F(Watched, findsALocatorThatWasLearnedUnasked)
{
    test::PlainLog(folder_ / "DbsKelvo.mdb").execute("INSERT INTO QRA (Call, QRA_LOC) VALUES ('YO9ZZZ', 'KN16AA')");
    EXPECT_EQ(watchLook(), "the locator memory learned YO9ZZZ|KN16AA by an entry that logs nothing");
}

TEST_F(Watched, findsACallThatTheMemoryLost)
{
    test::PlainLog(folder_ / "DbsKelvo.mdb").execute("DELETE FROM QRA");
    EXPECT_EQ(watchLook(), "the locator memory lost YO5AAA|KN16AA");
}

TEST_F(Watched, findsALogThatIsDamaged)
{
    player_.program().kill();
    std::string bytes = fuzz::bytesOfFile(folder_ / "LogKelvo.mdb");
    std::fill(bytes.begin() + 4096, bytes.begin() + 8192, '\x55');
    fuzz::writeBytes(folder_ / "LogKelvo.mdb", bytes);
    EXPECT_TRUE(complaintOf([&] { player_.finish(); }).starts_with("the log is damaged: "));
}
