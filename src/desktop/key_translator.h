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

    /// A key came up, anywhere. It is kept back until the event loop has turned, because a press of the same key at
    /// the same instant makes a repeat of both.
    Entries keyUp(const QKeyEvent& event);

    /// The event loop has turned: the release that was kept back.
    Entries turned();

    /// Another application has the keyboard: releases of all keys that went down in the form.
    Entries allUp();

    /// A release is kept back.
    bool holdsRelease() const { return held_.has_value(); }

 private:
    /// A key that is down: how the toolkit knows it, and what it was when it went down.
    struct DownKey {
        quint32 scanCode = 0;
        int toolkitKey = 0;
        platform::Key key;

        bool isKeyOf(const QKeyEvent& event) const;
    };
    struct HeldRelease {
        DownKey key;
        quint64 instant = 0;
    };

    std::vector<DownKey> down_;
    std::optional<HeldRelease> held_;
};

}  // namespace desktop
