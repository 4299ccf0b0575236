// Opening and closing the entry: its fields, and the lamps of bands and stages.
#pragma once

namespace entry {

/// Switches the entry fields on, once a band is chosen. Nothing else does.
void YesEnabl();

/// True when one of the four modes is chosen.
bool modeIsChosen();

/// Switches the entry fields on when band, mode and stage are all chosen, in whatever order.
void openWhenAllIsChosen();

/// Switches them off until band, mode and stage are chosen.
void NoEnabl();

/// Resets the lamps of bands and stages, the grids and the frame of the microwave bands.
void Init();

}  // namespace entry
