// The one queue of the program thread: everything that happens outside the program arrives as an entry of it.
#pragma once

#include <chrono>
#include <cstdint>
#include <optional>
#include <string>
#include <variant>

#include "platform/keys.h"
#include "platform/machine.h"
#include "screen/control.h"

namespace app {

/// A key went down. `repeat` when the keyboard repeats it by itself.
struct KeyWentDown {
    platform::Key key;
    bool repeat = false;
};

struct KeyWentUp {
    platform::Key key;
};

/// Text from the clipboard, typed character by character.
struct TextPasted {
    std::string text;
};

/// The pointer clicked a control (or something picked a menu entry).
struct ControlClicked {
    screen::Control* control = nullptr;
};

struct ControlDoubleClicked {
    screen::Control* control = nullptr;
};

/// The focus alone, without a click.
struct FocusAsked {
    screen::Control* control = nullptr;
};

/// The pointer put the caret of a text box at `caret`; with `extend` it selects from where the caret was.
struct CaretPlaced {
    screen::Control* control = nullptr;
    std::size_t caret = 0;
    bool extend = false;
};

/// A click on an item of a list, from 0.
struct ListItemPicked {
    screen::Control* control = nullptr;
    int index = 0;
};

/// A click or double click on the row of a grid with this key.
struct RowPicked {
    screen::Control* control = nullptr;
    std::int64_t key = 0;
    bool doubleClick = false;
};

/// The window shows a grid with room for `capacity` rows and scrolls it by `rows` (down is positive).
struct GridScrolled {
    screen::Control* control = nullptr;
    long rows = 0;
    std::size_t capacity = 0;
};

/// The pointer dragged the thumb of a grid to a place, 0 for the first rows and 1 for the last.
struct GridDragged {
    screen::Control* control = nullptr;
    double place = 0;
    std::size_t capacity = 0;
};

/// The close button, or a signal to end.
struct CloseAsked {};

/// The answer of the message box that is on the screen.
struct BoxAnswered {
    platform::Button button = platform::buttonOk;
};

/// Something the window wants redrawn: nothing happens but a new picture.
struct PictureAsked {};

using QueueEntry =
    std::variant<KeyWentDown, KeyWentUp, TextPasted, ControlClicked, ControlDoubleClicked, FocusAsked, CaretPlaced,
                 ListItemPicked, RowPicked, GridScrolled, GridDragged, CloseAsked, BoxAnswered, PictureAsked>;

/// Where the program thread takes its entries from.
class EntrySource {
 public:
    virtual ~EntrySource() = default;
    /// The next entry if one waits.
    virtual std::optional<QueueEntry> poll() = 0;
};

}  // namespace app
