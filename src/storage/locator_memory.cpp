#include "storage/locator_memory.h"

#include "base/text.h"
#include "runstate/modul1.h"
#include "screen/frm_qso.h"
#include "storage/log_statements.h"

namespace storage {

void ScrQRA()
{
    Modul1.DbQra.Execute(insertLocator(base::trim(Modul1.IndicLog), Modul1.QraLoc));
}

void ModifQRA()
{
    Modul1.DbQra.Execute(updateLocator(base::trim(Modul1.IndicLog), Modul1.QraLoc));
}

void learnLocator()
{
    constexpr std::size_t wholeLocator = 6;
    const std::string typed = base::trim(FrmQSO.TxtRSTr3.Text);
    if (Modul1.QraMemOn != 100 || base::length(typed) != wholeLocator) return;
    Modul1.QraLoc = typed;
    if (Modul1.QraUnknown == 100)
        ScrQRA();
    else if (Modul1.QraLoc != FrmQSO.QraMem)
        ModifQRA();
}

}  // namespace storage
