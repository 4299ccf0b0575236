#include "support/power_cut_vfs.h"

#include <sqlite3.h>

#include <algorithm>
#include <cstring>
#include <new>
#include <utility>

#include "platform/files.h"
#include "support/temporary_folder.h"

namespace test {

namespace {

constexpr std::size_t sector = 512;
constexpr int longestPath = 4096;

/// What a real disk under SQLite says of itself here: its sectors, and that a write harms nothing beside it.
constexpr int reportedSector = 4096;

}  // namespace

void PowerCutVfs::File::Change::applyTo(std::string& content) const
{
    if (truncation) {
        content.resize(offset);
        return;
    }
    if (content.size() < offset + bytes.size()) content.resize(offset + bytes.size());
    content.replace(offset, bytes.size(), bytes);
}

void PowerCutVfs::File::change(Change change)
{
    change.applyTo(present);
    changes.push_back(std::move(change));
}

void PowerCutVfs::File::synchronise()
{
    durable = present;
    durablyThere = there;
    changes.clear();
}

/// Sectors reach the disk in any order, so each piece of a write that does not cross one lives or dies by itself.
void PowerCutVfs::File::lose(Survival survival, std::mt19937& random)
{
    if (survival == Survival::all) return synchronise();
    // From few to nearly all of them.
    const auto chance = static_cast<double>(1 + random() % 9) / 10;
    std::bernoulli_distribution survives(survival == Survival::some ? chance : 0);
    for (const Change& change : changes) {
        if (change.truncation) {
            if (survives(random)) change.applyTo(durable);
            continue;
        }
        for (std::size_t at = 0; at < change.bytes.size();) {
            const std::size_t length = std::min(sector - (change.offset + at) % sector, change.bytes.size() - at);
            if (survives(random)) Change{false, change.offset + at, change.bytes.substr(at, length)}.applyTo(durable);
            at += length;
        }
    }
    if (durablyThere != there && survives(random)) durablyThere = there;
    if (!durablyThere) durable.clear();
    there = durablyThere;
    present = durable;
    changes.clear();
}

/// An open file. Begins with what SQLite knows of it.
struct PowerCutVfs::Handle {
    sqlite3_file base{};
    PowerCutVfs* disk = nullptr;
    std::shared_ptr<File> file;

    /// A file that was open when the power went leads nowhere.
    bool isDead() const { return disk->off_ || !disk->holds(*file); }
};

/// The functions that SQLite calls.
struct PowerCutVfs::Calls {
    static PowerCutVfs& diskOf(sqlite3_vfs* vfs) { return *static_cast<PowerCutVfs*>(vfs->pAppData); }
    static Handle& handleOf(sqlite3_file* file) { return *reinterpret_cast<Handle*>(file); }

    static int open(sqlite3_vfs* vfs, const char* name, sqlite3_file* opened, int flags, int* flagsOut);
    static int remove(sqlite3_vfs* vfs, const char* name, int synchronised);
    static int access(sqlite3_vfs* vfs, const char* name, int flags, int* result);
    static int fullPathname(sqlite3_vfs* vfs, const char* name, int size, char* result);

    static int close(sqlite3_file* file);
    static int read(sqlite3_file* file, void* into, int amount, sqlite3_int64 offset);
    static int write(sqlite3_file* file, const void* from, int amount, sqlite3_int64 offset);
    static int truncate(sqlite3_file* file, sqlite3_int64 size);
    static int synchronise(sqlite3_file* file, int flags);
    static int fileSize(sqlite3_file* file, sqlite3_int64* size);

    // One program and one connection: locks have nobody to keep out.
    static int lock(sqlite3_file* /*file*/, int /*level*/) { return SQLITE_OK; }
    static int checkReservedLock(sqlite3_file* /*file*/, int* result)
    {
        *result = 0;
        return SQLITE_OK;
    }
    static int fileControl(sqlite3_file* /*file*/, int /*question*/, void* /*answer*/) { return SQLITE_NOTFOUND; }
    static int sectorSize(sqlite3_file* /*file*/) { return reportedSector; }
    static int characteristics(sqlite3_file* /*file*/) { return SQLITE_IOCAP_POWERSAFE_OVERWRITE; }

    static int randomness(sqlite3_vfs* vfs, int size, char* bytes)
    {
        return diskOf(vfs).below_->xRandomness(diskOf(vfs).below_, size, bytes);
    }
    static int sleep(sqlite3_vfs* vfs, int microseconds)
    {
        return diskOf(vfs).below_->xSleep(diskOf(vfs).below_, microseconds);
    }
    static int currentTime(sqlite3_vfs* vfs, double* day)
    {
        return diskOf(vfs).below_->xCurrentTime(diskOf(vfs).below_, day);
    }
    static int lastError(sqlite3_vfs* /*vfs*/, int /*size*/, char* /*text*/) { return 0; }

    static const sqlite3_io_methods& methods();
};

int PowerCutVfs::Calls::open(sqlite3_vfs* vfs, const char* name, sqlite3_file* opened, int flags, int* flagsOut)
{
    opened->pMethods = nullptr;
    PowerCutVfs& disk = diskOf(vfs);
    if (disk.off_) return SQLITE_IOERR;
    const std::string path = name != nullptr ? name : "a file without a name";
    std::shared_ptr<File>& file = disk.files_[path];
    const bool missing = file == nullptr || !file->there;
    if (missing && ((flags & SQLITE_OPEN_CREATE) == 0 || disk.refusesNewFiles_)) return SQLITE_CANTOPEN;
    if (file == nullptr) file = std::make_shared<File>();
    file->there = true;
    if (flagsOut != nullptr) {
        *flagsOut = flags;
        if (disk.protected_) *flagsOut = (flags & ~SQLITE_OPEN_READWRITE) | SQLITE_OPEN_READONLY;
    }
    Handle* const handle = new (opened) Handle{{&methods()}, &disk, file};
    return handle == nullptr ? SQLITE_NOMEM : SQLITE_OK;
}

int PowerCutVfs::Calls::remove(sqlite3_vfs* vfs, const char* name, int synchronised)
{
    PowerCutVfs& disk = diskOf(vfs);
    if (disk.off_) return SQLITE_IOERR;
    const auto found = disk.files_.find(name);
    if (found == disk.files_.end() || !found->second->there) return SQLITE_IOERR_DELETE_NOENT;
    File& file = *found->second;
    file.there = false;
    file.change({true, 0, {}});
    if (synchronised != 0) file.synchronise();
    return disk.operationDone() ? SQLITE_OK : SQLITE_IOERR;
}

int PowerCutVfs::Calls::access(sqlite3_vfs* vfs, const char* name, int /*flags*/, int* result)
{
    PowerCutVfs& disk = diskOf(vfs);
    if (disk.off_) return SQLITE_IOERR;
    const auto found = disk.files_.find(name);
    *result = found != disk.files_.end() && found->second != nullptr && found->second->there ? 1 : 0;
    return SQLITE_OK;
}

int PowerCutVfs::Calls::fullPathname(sqlite3_vfs* /*vfs*/, const char* name, int size, char* result)
{
    sqlite3_snprintf(size, result, "%s", name);
    return SQLITE_OK;
}

int PowerCutVfs::Calls::close(sqlite3_file* file)
{
    std::destroy_at(&handleOf(file));
    return SQLITE_OK;
}

int PowerCutVfs::Calls::read(sqlite3_file* file, void* into, int amount, sqlite3_int64 offset)
{
    const Handle& handle = handleOf(file);
    if (handle.isDead()) return SQLITE_IOERR_READ;
    if (handle.disk->readCode_ != 0) return handle.disk->readCode_;
    ++handle.disk->reads_;
    const std::string& content = handle.file->present;
    const auto wanted = static_cast<std::size_t>(amount);
    const std::size_t start = std::min(static_cast<std::size_t>(offset), content.size());
    const std::size_t got = std::min(wanted, content.size() - start);
    std::memset(into, 0, wanted);
    std::memcpy(into, content.data() + start, got);
    return got == wanted ? SQLITE_OK : SQLITE_IOERR_SHORT_READ;
}

int PowerCutVfs::Calls::write(sqlite3_file* file, const void* from, int amount, sqlite3_int64 offset)
{
    const Handle& handle = handleOf(file);
    if (handle.isDead()) return SQLITE_IOERR_WRITE;
    if (handle.disk->writeCode_ != 0) return handle.disk->writeCode_;
    const std::string bytes(static_cast<const char*>(from), static_cast<std::size_t>(amount));
    handle.file->change({false, static_cast<std::size_t>(offset), bytes});
    return handle.disk->operationDone() ? SQLITE_OK : SQLITE_IOERR_WRITE;
}

int PowerCutVfs::Calls::truncate(sqlite3_file* file, sqlite3_int64 size)
{
    const Handle& handle = handleOf(file);
    if (handle.isDead()) return SQLITE_IOERR_TRUNCATE;
    handle.file->change({true, static_cast<std::size_t>(size), {}});
    return handle.disk->operationDone() ? SQLITE_OK : SQLITE_IOERR_TRUNCATE;
}

int PowerCutVfs::Calls::synchronise(sqlite3_file* file, int /*flags*/)
{
    const Handle& handle = handleOf(file);
    if (handle.isDead()) return SQLITE_IOERR_FSYNC;
    if (handle.disk->synchronisationCode_ != 0) return handle.disk->synchronisationCode_;
    handle.file->synchronise();
    return handle.disk->operationDone() ? SQLITE_OK : SQLITE_IOERR_FSYNC;
}

int PowerCutVfs::Calls::fileSize(sqlite3_file* file, sqlite3_int64* size)
{
    const Handle& handle = handleOf(file);
    if (handle.isDead()) return SQLITE_IOERR_FSTAT;
    *size = static_cast<sqlite3_int64>(handle.file->present.size());
    return SQLITE_OK;
}

const sqlite3_io_methods& PowerCutVfs::Calls::methods()
{
    static const sqlite3_io_methods table = [] {
        sqlite3_io_methods calls{};
        calls.iVersion = 1;
        calls.xClose = close;
        calls.xRead = read;
        calls.xWrite = write;
        calls.xTruncate = truncate;
        calls.xSync = synchronise;
        calls.xFileSize = fileSize;
        calls.xLock = lock;
        calls.xUnlock = lock;
        calls.xCheckReservedLock = checkReservedLock;
        calls.xFileControl = fileControl;
        calls.xSectorSize = sectorSize;
        calls.xDeviceCharacteristics = characteristics;
        return calls;
    }();
    return table;
}

PowerCutVfs::PowerCutVfs() : vfs_(std::make_unique<sqlite3_vfs>()), below_(sqlite3_vfs_find(nullptr))
{
    vfs_->iVersion = 1;
    vfs_->szOsFile = sizeof(Handle);
    vfs_->mxPathname = longestPath;
    vfs_->zName = "power-cut";
    vfs_->pAppData = this;
    vfs_->xOpen = Calls::open;
    vfs_->xDelete = Calls::remove;
    vfs_->xAccess = Calls::access;
    vfs_->xFullPathname = Calls::fullPathname;
    vfs_->xRandomness = Calls::randomness;
    vfs_->xSleep = Calls::sleep;
    vfs_->xCurrentTime = Calls::currentTime;
    vfs_->xGetLastError = Calls::lastError;
    const int asDefault = 1;
    sqlite3_vfs_register(vfs_.get(), asDefault);
}

PowerCutVfs::~PowerCutVfs()
{
    sqlite3_vfs_unregister(vfs_.get());
    const int asDefault = 1;
    sqlite3_vfs_register(below_, asDefault);
}

void PowerCutVfs::load(const std::filesystem::path& file)
{
    auto loaded = std::make_shared<File>();
    loaded->present = readFile(file);
    loaded->synchronise();
    files_[platform::pathText(file)] = std::move(loaded);
}

PowerCutVfs::Files PowerCutVfs::files() const
{
    Files copies;
    for (const auto& [path, file] : files_)
        if (file != nullptr) copies[path] = *file;
    return copies;
}

void PowerCutVfs::setFiles(const Files& files)
{
    files_.clear();
    for (const auto& [path, file] : files)
        files_[path] = std::make_shared<File>(file);
    off_ = false;
    operationsLeft_ = -1;
}

void PowerCutVfs::cutAfter(long operations)
{
    operationsLeft_ = operations;
    if (operations == 0) off_ = true;
}

void PowerCutVfs::powerOn(Survival survival, std::uint32_t seed)
{
    std::mt19937 random(seed);
    Files survivors = files();
    for (auto& [path, file] : survivors)
        file.lose(survival, random);
    setFiles(survivors);
}

bool PowerCutVfs::holds(const File& file) const
{
    return std::any_of(files_.begin(), files_.end(), [&](const auto& entry) { return entry.second.get() == &file; });
}

/// Counts an operation. False when the power went with it: the disk has it, but nobody is told any more.
bool PowerCutVfs::operationDone()
{
    if (operationsLeft_ > 0 && --operationsLeft_ == 0) off_ = true;
    return !off_;
}

}  // namespace test
