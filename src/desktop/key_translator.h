// From the keys of the toolkit to the keys of the program.
//
// Not every toolkit event is a key of the operator: a keyboard that repeats may look like release and press, a key that
// went down under Shift comes up under another name, and a release may be that of a key that answered a message box.
#pragma once

#include <QKeyEvent>
#include <optional>
#include <vector>

#include "app/queue.h"
#include "platform/keys.h"

namespace desktop {

/// The key of an event; without code and character when it is none that the program takes.
platform::Key keyOf(const QKeyEvent& event);

/// The key that long work asks for, if the event is one.
std::optional<platform::PolledKey> polledKeyOf(const QKeyEvent& event);

class KeyTranslator {
 public:
    using Entries = std::vector<app::QueueEntry>;

    /// A key went down in the form: what the program gets for it.
    Entries keyDown(const QKeyEvent& event);

    /// A key came up, anywhere. It is kept back for a moment, because a press of the same key at the same instant makes
    /// a repeat of both.
    Entries keyUp(const QKeyEvent& event);

    /// The moment has passed: the release that was kept back.
    Entries turned();

    /// A press that continues one: the toolkit says so, or the key came up at this very instant. The toolkit says so
    /// only when it sees both events together, and wrongly where it did not see the release.
    bool isRepeat(const QKeyEvent& press) const;

    /// A key went down that is not for the form. True when that is a repeat.
    bool wentDown(const QKeyEvent& press);

    /// Another application has the keyboard: releases of all keys that went down in the form.
    Entries allUp();

    /// A release is kept back.
    bool holdsRelease() const { return held_.has_value(); }

 private:
    /// How the toolkit knows a key.
    struct ToolkitKey {
        quint32 scanCode = 0;
        int code = 0;

        bool isKeyOf(const QKeyEvent& event) const;
    };
    /// A key that is down, and what it was when it went down.
    struct DownKey {
        ToolkitKey toolkitKey;
        platform::Key key;
    };
    struct Release {
        ToolkitKey toolkitKey;
        quint64 instant = 0;
    };

    struct Press {
        ToolkitKey toolkitKey;
        quint64 instant = 0;
        bool saidToRepeat = false;
        bool repeat = false;

        bool isThatOf(const QKeyEvent& event) const;
    };

    bool releaseWasMissed(const QKeyEvent& press) const;
    void note(const QKeyEvent& press, bool repeat);
    std::vector<DownKey>::iterator downKeyOf(const QKeyEvent& event);

    std::vector<DownKey> down_;
    std::optional<DownKey> held_;  ///< its release is kept back
    std::optional<Release> lastRelease_;
    std::optional<Press> lastPress_;  ///< of all but modifiers, in whatever window
};

}  // namespace desktop
