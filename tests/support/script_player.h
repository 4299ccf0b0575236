// Plays scripts piece by piece on the real forms, with handlers of the test in their slots.
#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "platform/machine.h"
#include "screen/frm_anzeigen.h"
#include "screen/frm_init.h"
#include "screen/frm_qso.h"
#include "script/operator.h"
#include "script/parser.h"
#include "storage/schema.h"
#include "support/temporary_folder.h"

namespace test {

using Lines = std::vector<std::string>;

/// What the handlers of a test heard, in order.
inline Lines& heard()
{
    static Lines lines;
    return lines;
}

inline void hear(const std::string& what)
{
    heard().push_back(what);
}

inline void sleepFor(platform::MonotonicTime duration)
{
    platform::Clock& clock = platform::machine().clock;
    clock.sleepUntil(clock.monotonic() + duration);
}

/// Takes all handlers out of the slots of a form: it does nothing by itself any more.
inline void silence(screen::Form& form)
{
    for (screen::Control* control : form.controls()) {
        control->Click = nullptr;
        control->DblClick = nullptr;
        control->GotFocus = nullptr;
        control->KeyDown = nullptr;
        control->KeyPress = nullptr;
        control->KeyUp = nullptr;
        if (control->kind == screen::Kind::timer) static_cast<screen::Timer*>(control)->Enabled = false;
        if (control->kind == screen::Kind::grid) static_cast<screen::Grid*>(control)->RowTouched = nullptr;
    }
    form.hooks.exitEntry = nullptr;
}

class ScriptPlayer : public testing::Test {
 protected:
    void SetUp() override
    {
        heard().clear();
        storage::makeMissingDatabases(folder_.path());
        player_ = std::make_unique<script::Operator>(folder_.path(),
                                                     [this](const std::string& line) { printed_.push_back(line); });
    }

    bool play(const std::string& text) { return player_->play(script::parse(text, "s")); }

    /// Plays and gives what it printed.
    Lines printedBy(const std::string& text)
    {
        printed_.clear();
        play(text);
        return printed_;
    }

    /// A program on its first page whose controls do nothing by themselves.
    void startSilent()
    {
        play("start");
        silence(FrmInit);
        silence(FrmQSO);
        FrmInit.TxtMyCall.SetFocus();
        play("key F12");
        heard().clear();
    }

    /// The entry form on the screen, with rows in its first grid.
    void showRows()
    {
        play(
            "sql LogKelvo.mdb \"INSERT INTO Uus144a (Callsign, Data, UTC) VALUES ('YO2ABC', '15.11.26', '12:34'), "
            "('YO|3', 'a\\\\b', NULL), ('YO4XYZ', '', '12:36')\"");
        FrmQSO.Uus144a.DatabaseName = player_->machine().folder() + "\\LogKelvo.mdb";
        FrmQSO.Uus144a.RecordSource = "SELECT * FROM Uus144a";
        FrmQSO.Uus144a.Refresh();
        FrmQSO.DBGrid1.columnWidths = {0, 900, 910, 600};
        FrmQSO.DBGrid1.Visible = true;
        FrmInit.Hide();
        FrmQSO.Show();
    }

    void expectTally(int passed, int failed) const
    {
        EXPECT_EQ(player_->tally().passed, passed);
        EXPECT_EQ(player_->tally().failed, failed);
    }

    test::TemporaryFolder folder_;
    Lines printed_;
    std::unique_ptr<script::Operator> player_;
};

}  // namespace test
