// Letters that Alt picks controls with where no caption marks one.
//
// On the set-up page and the review form Tab leads to every control. On the entry form Tab belongs to the exchange and
// the captions mark few letters, so the page itself gives the others. A band has the same letter everywhere.
#pragma once

#include "screen/frm_anzeigen.h"
#include "screen/frm_qso.h"

namespace screen {

/// Gives the controls of the entry form the letters that their captions do not mark. No two controls that can be in
/// view together have the same one.
void giveAccessKeys(FrmQSOForm& form);

/// Gives the choices of a band on the review form the letters of the bands.
void giveAccessKeys(FrmAnzeigenForm& form);

}  // namespace screen
