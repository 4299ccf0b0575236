#include "entry/clock.h"

#include "base/number.h"
#include "base/runtime_error.h"
#include "base/text.h"
#include "platform/civil_time.h"
#include "platform/machine.h"
#include "runstate/modul1.h"
#include "screen/frm_qso.h"

namespace entry {

void tmrTimer_Tick()
{
    // A time difference that leads out of the calendar stops the clock in the caption, silently: it comes every second.
    base::passing<base::overflow>([] {
        const auto utc = platform::minusHours(platform::machine().clock.now(), base::numericValue(Modul1.TimeDiff));
        const std::string text = platform::longDate(utc) + " " + platform::longTime(utc);
        const std::string caption = clockCaption(FrmQSO.BaseCaption, text, Modul1.ScaleX >= 1.0F);
        if (FrmQSO.Caption != caption) FrmQSO.Caption = caption;
    });
}

std::string clockCaption(const std::string& baseCaption, const std::string& utc, bool wide)
{
    if (wide) return baseCaption + base::blanks(20) + utc + " UTC" + base::blanks(15) + "Created by XX9ZZZ";
    return baseCaption + base::blanks(10) + utc + " UTC     Created by XX9ZZZ";
}

}  // namespace entry
