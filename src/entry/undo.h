// Bringing back a QSO that was given up.
#pragma once

namespace entry {

/// Takes a snapshot of the screen.
void MemUndo();

/// Restores the screen from the snapshot.
void mnuRecup_Click();

/// Switches the menu entry that brings an aborted QSO back: on between an abort and the next logged line.
void switchRecup(bool on);

}  // namespace entry
