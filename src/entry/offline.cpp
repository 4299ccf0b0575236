#include "entry/offline.h"

#include "base/text.h"
#include "platform/keys.h"
#include "runstate/modul1.h"
#include "screen/frm_qso.h"

namespace entry {

namespace {

/// "hh:" and ":mm" alike.
constexpr std::size_t halfTime = 3;

void reopenDay()
{
    Modul1.DateOff = dateWithoutDay(FrmQSO.TxtDate.Text);
    FrmQSO.TxtDate.Text = Modul1.DateOff;
    FrmQSO.TxtDate.SetFocus();
}

void showTimeLeft(const std::string& left)
{
    Modul1.TimeOff = left;
    FrmQSO.TxtUTC.Text = Modul1.TimeOff;
    FrmQSO.TxtUTC.SetFocus();
}

void reopenMinutes()
{
    showTimeLeft(hourOf(FrmQSO.TxtUTC.Text));
    FrmQSO.TxtUTC.caretToEnd();
}

/// The caret stays in front, where the hour goes.
void reopenHour()
{
    showTimeLeft(minutesOf(FrmQSO.TxtUTC.Text));
}

}  // namespace

bool paperLog()
{
    return Modul1.OfflineInput == 100;
}

void switchTimeFields()
{
    for (screen::TextBox* field : {&FrmQSO.TxtUTC, &FrmQSO.TxtDate}) {
        field->BackColor = paperLog() ? screen::yellow : screen::grey;
        if (!paperLog()) field->Enabled = true;
    }
}

void showPaperDateAndHour()
{
    FrmQSO.TxtDate.Text = Modul1.DateOff;
    Modul1.TimeOff = base::trim(base::left(Modul1.TimeOff, halfTime));
    FrmQSO.TxtUTC.Text = Modul1.TimeOff;
}

void reopenPaperTime(int keyCode)
{
    if (!paperLog()) return;
    switch (keyCode) {
        case platform::keyF2:
            return reopenDay();
        case platform::keyF3:
            return reopenMinutes();
        case platform::keyF4:
            return reopenHour();
        default:
            return;
    }
}

std::string dateWithoutDay(std::string_view date)
{
    constexpr std::size_t dayLength = 2;
    std::string trimmed = base::trim(date);
    const std::size_t length = base::length(trimmed);
    if (length != 8 && length != 10) return trimmed;
    return base::right(trimmed, length - dayLength);
}

std::string hourOf(std::string_view time)
{
    return base::left(base::trim(time), halfTime);
}

std::string minutesOf(std::string_view time)
{
    return base::right(base::trim(time), halfTime);
}

}  // namespace entry
