// The table that ties every event of every control to its handler.
#pragma once

namespace app {

/// Gives the three forms their hooks: the wiring of their events, their Load procedures and their exit entries.
void hookForms();

}  // namespace app
