// The event engine: takes one entry of the queue after the other, finds the field that it is for, and runs its
// handlers.
//
// The order of the three events of a key, when a field gets its GotFocus, what a key does that repeats by itself or
// overlaps the next one: all that is decided here, the same for every face of the program.
#pragma once

#include <memory>
#include <optional>
#include <vector>

#include "app/grid_view.h"
#include "app/picture.h"
#include "app/queue.h"
#include "platform/machine.h"
#include "screen/form.h"

namespace app {

class Engine {
 public:
    /// `forms` are the forms whose timers tick. Both sources outlive the engine; `sink` may be nullptr.
    Engine(std::vector<screen::Form*> forms, EntrySource& source, PictureSink* sink);

    /// Runs one entry to its end, with the GotFocus of a field that got the focus. Errors that leave a handler end that
    /// handler and become a notice. ProgramEnd goes up.
    void handle(const QueueEntry& entry);

    /// Serves, in the middle of a handler, everything that waits: GotFocus, entries, timers; then a new picture.
    void serve();

    /// Runs the timers that are due.
    void tick();

    /// When the next timer is due, nothing when none runs.
    std::optional<platform::MonotonicTime> nextTick() const;

    /// Runs the GotFocus of the field that has the focus and did not get it yet.
    void settleFocus();

    /// Makes a picture of the form on the screen and hands it to the sink.
    void publish();

 private:
    /// The field that a key goes to, if there is one. A form that is loaded again has other fields at the same place.
    struct Addressee {
        screen::Control* field = nullptr;
        unsigned lifeOfForm = 0;

        /// The field is on the screen's form, and still the one that it was.
        bool isThere() const;
    };

    /// A key that is down, and the field that had the focus when it went down.
    struct DownKey {
        platform::Key key;
        Addressee to;
        bool reachedField = false;  ///< its KeyDown went to that field; otherwise nobody gets its KeyUp
    };

    void keyWentDown(const platform::Key& key);
    void keyRepeats(const platform::Key& key);
    void keyWentUp(const platform::Key& key);
    void releaseEarlierCharacterKeys();
    void deliverKeyUp(const platform::Key& key);
    void press(Addressee to, const platform::Key& key);
    void typeOrOperate(Addressee to, const platform::Key& key);
    void pasted(const std::string& text);
    void clicked(screen::Control& control);
    void doubleClicked(screen::Control& control);
    void caretPlaced(const CaretPlaced& entry);
    void listItemPicked(const ListItemPicked& entry);
    void rowPicked(const RowPicked& entry);
    void takeFocus(screen::Control& control);
    void moveLostFocus(screen::Form& form);
    static Addressee addressee();
    std::vector<screen::Timer*> timers() const;
    void runHandlersOf(const QueueEntry& entry);

    std::vector<screen::Form*> forms_;
    EntrySource& source_;
    PictureSink* sink_;
    std::vector<DownKey> downKeys_;
    screen::Form* focusForm_ = nullptr;
    GridViews gridViews_;
    std::uint64_t pictures_ = 0;
};

}  // namespace app
