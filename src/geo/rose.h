// The compass rose of the entry form.
#pragma once

namespace geo {

/// Shows `Beam` on the rose, placed by the width of the form.
void Medalion();

}  // namespace geo
