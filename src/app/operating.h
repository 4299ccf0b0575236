// What keys and clicks do to a page beyond the events of its fields: buttons, options, lists, the rows of a grid, the
// walk of Tab, help.
#pragma once

#include <utility>

#include "app/grid_view.h"
#include "base/runtime_error.h"
#include "platform/keys.h"
#include "screen/form.h"

namespace app {

/// Runs a handler: an error that leaves it ends it, becomes a notice, and touches nothing else.
template <typename Handler>
void run(Handler&& handler)
{
    base::quietly<base::noCurrentRecord>(std::forward<Handler>(handler));
}

/// A click: an option is chosen, a check box changes over, and Click runs.
void choose(screen::Control& control);

/// The control that Tab leads to from `from` among the stops of the form, nullptr when there is no other.
screen::Control* nextStop(const screen::Form& form, const screen::Control* from, bool backwards);

/// What a key does to a button, an option, a check box or a list that has the focus.
void operate(screen::Control& control, const platform::Key& key);

/// True for a key that acts on the rows in view, wherever the focus is: Ctrl with an arrow or Delete, and with Page Up,
/// Page Down, Home or End where the fields of the form have no use for these.
bool isForGrid(const platform::Key& key);

/// Does what a key for the grid does to the one in view. Nothing where none is.
void actOnGrid(const platform::Key& key, GridViews& gridViews);

/// Opens the help at the number of the form on the screen.
void openHelp();

}  // namespace app
