// Keeps a second program away from a folder, by a file Kelvo.lock beside the databases that is there as long as the
// program runs.
//
// The kernel lets go of the lock of a program that was killed or lost its power, and the file that it left behind is
// cleared away by the next start. Only where another computer left it, as on a network folder, nobody but the operator
// can tell whether Kelvo still runs there.
#pragma once

#include <QLockFile>
#include <QString>
#include <optional>

namespace desktop {

/// Who has a folder in use.
struct LockHolder {
    qint64 process = 0;  ///< 0 when it is not known
    QString computer;    ///< empty when it is not known
    bool onThisComputer = true;
};

class FolderLock {
 public:
    enum class Outcome { taken, heldByAnother, notPossible };

    explicit FolderLock(const QString& folder);

    /// Takes the folder into use until this object goes, or finds out who has it. Not possible where the file cannot be
    /// written.
    Outcome take();

    /// Behind heldByAnother: who it is.
    const LockHolder& holder() const { return holder_; }

    /// Takes the folder away from a program on another computer, which the operator says is gone. False when it is seen
    /// to be at work after all, or the file cannot be removed.
    bool takeOver();

    /// Path of the file.
    QString file() const { return lock_.fileName(); }

 private:
    /// Who wrote the file, nothing when it says nothing.
    std::optional<LockHolder> writer() const;

    QLockFile lock_;
    LockHolder holder_;
};

}  // namespace desktop
