#include "review/contest_name.h"

#include <string>

#include "runstate/contests.h"
#include "runstate/modul1.h"
#include "screen/frm_anzeigen.h"

namespace review {

void NameConcurs()
{
    if (runstate::contestById(Modul1.ConcId) == nullptr) return;
    FrmAnzeigen.TxtTName.Text = std::string(runstate::NameConcurs(Modul1.ConcId));
}

}  // namespace review
