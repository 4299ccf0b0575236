#include "desktop/folder_lock.h"

#include <QSysInfo>

namespace desktop {

namespace {

/// A program that is just starting has made its file and not written it yet.
constexpr int millisecondsToWrite = 500;

}  // namespace

FolderLock::FolderLock(const QString& folder) : lock_(folder + QStringLiteral("/Kelvo.lock"))
{
    // A contest lasts longer than any age at which a lock would count as forgotten.
    lock_.setStaleLockTime(0);
}

FolderLock::Outcome FolderLock::take()
{
    if (lock_.tryLock(0)) return Outcome::taken;
    if (lock_.error() != QLockFile::LockFailedError) return Outcome::notPossible;
    if (!writer() && lock_.tryLock(millisecondsToWrite)) return Outcome::taken;
    holder_ = writer().value_or(LockHolder{});
    // The file of a dead program may look alive: another program has its number now, or the power failed before it was
    // written. It is removed only if nobody holds it.
    if (holder_.onThisComputer && takeOver()) return Outcome::taken;
    return Outcome::heldByAnother;
}

bool FolderLock::takeOver()
{
    return lock_.removeStaleLockFile() && lock_.tryLock(0);
}

std::optional<LockHolder> FolderLock::writer() const
{
    LockHolder holder;
    QString program;
    if (!lock_.getLockInfo(&holder.process, &holder.computer, &program)) return std::nullopt;
    holder.onThisComputer = holder.computer.isEmpty() || holder.computer == QSysInfo::machineHostName();
    return holder;
}

}  // namespace desktop
