#include "breakage/failing_disk.h"

#include <dlfcn.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdarg>
#include <ctime>
#include <memory>
#include <random>
#include <set>
#include <stdexcept>
#include <string_view>
#include <utility>

#include "support/temporary_folder.h"

namespace test {

namespace fs = std::filesystem;

namespace {

constexpr std::size_t sector = 512;

/// The call of the system that the one of the same name here stands before.
template <typename Function>
Function* real(const char* name)
{
    return reinterpret_cast<Function*>(::dlsym(RTLD_NEXT, name));
}

/// What a call needs of the disk, which says whether a fault is one of its.
enum class Need { makesName, writes, shrinks, synchronises, removesName, opensForWriting, opensForReading, locks };

/// A file of the disk, whatever its names.
struct Node {
    std::string durable;      ///< what a power cut leaves at least
    std::string lastPresent;  ///< of a file that has lost its name
};

using Names = std::map<std::string, std::shared_ptr<Node>>;

/// All that is known of the folder while a FailingDisk watches it.
struct Watched {
    std::string folder;
    Fault fault = Fault::none;
    long failAt = -1;
    long calls = 0;
    std::string hit;
    bool happened = false;  ///< the fault lasts
    bool away = false;
    Names present;
    Names durable;
    std::map<int, std::string> descriptors;  ///< paths of open files
    std::map<int, std::shared_ptr<Node>> openNodes;
    std::set<std::string> exclusive;  ///< files that the program has locked for itself
};

Watched* watched = nullptr;

fs::path awayPlace()
{
    return watched->folder + "-away";
}

bool isInside(std::string_view path)
{
    return watched != nullptr && path.starts_with(watched->folder) &&
           (path.size() == watched->folder.size() || path[watched->folder.size()] == '/');
}

bool concerns(Fault fault, Need need)
{
    switch (fault) {
        case Fault::none:
            return need != Need::opensForReading;
        case Fault::powerCut:
        case Fault::broken:
        case Fault::brokenOnce:
        case Fault::folderGone:
            return need != Need::locks && need != Need::opensForReading;
        case Fault::full:
        case Fault::fullOnce:
            return need == Need::makesName || need == Need::writes;
        case Fault::writeProtected:
            return need != Need::locks && need != Need::opensForReading && need != Need::synchronises;
        case Fault::noAccess:
            return need == Need::makesName || need == Need::removesName;
        case Fault::locked:
            return need == Need::locks;
    }
    return false;
}

/// On a disk without power or in pieces nothing can be read either.
bool concernsLater(Fault fault, Need need)
{
    const bool nothingWorks = fault == Fault::powerCut || fault == Fault::broken;
    return concerns(fault, need) || (nothingWorks && need == Need::opensForReading);
}

int numberOf(Fault fault)
{
    switch (fault) {
        case Fault::full:
        case Fault::fullOnce:
            return ENOSPC;
        case Fault::writeProtected:
            return EROFS;
        case Fault::noAccess:
            return EACCES;
        case Fault::locked:
            return EAGAIN;
        default:
            return EIO;
    }
}

/// Takes the folder away under the program. What is open stays open.
bool takeFolderAway()
{
    static auto* const rename = real<int(const char*, const char*)>("rename");
    rename(watched->folder.c_str(), awayPlace().c_str());
    watched->away = true;
    return false;
}

/// Counts a call. True, with the number of the error, when it is to fail.
bool fails(Need need, const char* call, const std::string& path)
{
    Watched& disk = *watched;
    if (disk.fault == Fault::none && disk.failAt < 0) return false;
    if (disk.happened) {
        errno = numberOf(disk.fault);
        return !disk.away && concernsLater(disk.fault, need);
    }
    if (!concerns(disk.fault, need)) return false;
    if (disk.calls++ != disk.failAt) return false;
    disk.hit = std::string(call) + " " + fs::path(path).filename().string();
    if (disk.fault == Fault::folderGone) {
        disk.happened = true;
        return takeFolderAway();
    }
    disk.happened = disk.fault != Fault::fullOnce && disk.fault != Fault::brokenOnce;
    errno = numberOf(disk.fault);
    return true;
}

std::string contentOf(const std::string& path)
{
    static auto* const open = real<int(const char*, int, ...)>("open64");
    static auto* const close = real<int(int)>("close");
    const int file = open(path.c_str(), O_RDONLY | O_CLOEXEC);
    if (file < 0) return {};
    std::string content;
    std::array<char, 65536> block{};
    for (ssize_t got = 0; (got = ::read(file, block.data(), block.size())) > 0;)
        content.append(block.data(), static_cast<std::size_t>(got));
    close(file);
    return content;
}

std::string contentOf(int descriptor)
{
    return contentOf("/proc/self/fd/" + std::to_string(descriptor));
}

std::string pathOf(int descriptor)
{
    if (watched == nullptr) return {};
    const auto found = watched->descriptors.find(descriptor);
    return found == watched->descriptors.end() ? std::string() : found->second;
}

std::shared_ptr<Node> nodeAt(const std::string& path)
{
    std::shared_ptr<Node>& node = watched->present[path];
    if (node == nullptr) node = std::make_shared<Node>();
    return node;
}

/// The file under this name is about to lose it: its bytes may still come back under an older one.
void keepBytesOf(const std::string& path)
{
    const auto found = watched->present.find(path);
    if (found != watched->present.end()) found->second->lastPresent = contentOf(path);
}

void synchroniseNames(const std::string& folder)
{
    const auto isIn = [&](const auto& name) { return fs::path(name.first).parent_path() == folder; };
    std::erase_if(watched->durable, isIn);
    std::copy_if(watched->present.begin(), watched->present.end(),
                 std::inserter(watched->durable, watched->durable.end()), isIn);
}

/// After the call of the system has done it.
void synchronised(int descriptor, const std::string& path)
{
    const auto node = watched->openNodes.find(descriptor);
    if (node == watched->openNodes.end()) return synchroniseNames(path);
    node->second->durable = contentOf(descriptor);
}

int opened(int descriptor, const std::string& path)
{
    struct stat status {};
    if (descriptor < 0 || ::fstat(descriptor, &status) != 0) return descriptor;
    watched->descriptors[descriptor] = path;
    watched->openNodes.erase(descriptor);
    if (S_ISREG(status.st_mode)) watched->openNodes[descriptor] = nodeAt(path);
    return descriptor;
}

Need needOfOpening(const std::string& path, int flags)
{
    if ((flags & O_CREAT) != 0 && ::access(path.c_str(), F_OK) != 0) return Need::makesName;
    return (flags & O_ACCMODE) == O_RDONLY ? Need::opensForReading : Need::opensForWriting;
}

int openWatched(const char* name, const char* path, int flags, mode_t mode)
{
    auto* const following = real<int(const char*, int, ...)>(name);
    if (!isInside(path)) return following(path, flags, mode);
    const std::string file = path;
    if (fails(needOfOpening(file, flags), "open", file)) return -1;
    return opened(following(path, flags, mode), file);
}

int synchroniseWatched(const char* name, int descriptor)
{
    auto* const following = real<int(int)>(name);
    const std::string path = pathOf(descriptor);
    if (path.empty()) return following(descriptor);
    if (fails(Need::synchronises, name, path)) return -1;
    // The disk below need not be troubled: what would be lost is known here.
    synchronised(descriptor, path);
    return 0;
}

int removeWatched(const char* name, const char* path)
{
    auto* const following = real<int(const char*)>(name);
    if (!isInside(path)) return following(path);
    if (fails(Need::removesName, name, path)) return -1;
    keepBytesOf(path);
    const int result = following(path);
    if (result == 0) watched->present.erase(path);
    return result;
}

/// Bytes as they come back from a disk that had written some sectors of the newer ones.
std::string mixed(const std::string& older, const std::string& newer, std::mt19937& random)
{
    std::string result = random() % 2 == 0 ? older : newer;
    for (std::size_t at = 0; at < result.size(); at += sector) {
        const std::string& source = random() % 2 == 0 ? older : newer;
        if (at >= source.size()) continue;
        const std::size_t length = std::min({sector, result.size() - at, source.size() - at});
        result.replace(at, length, source, at, length);
    }
    return result;
}

/// Works out what a power cut leaves.
class Survivors {
 public:
    Survivors(Left left, std::uint32_t seed) : left_(left), random_(seed) {}

    FolderImage image()
    {
        std::set<std::string> names;
        for (const Names* each : {&watched->present, &watched->durable})
            for (const auto& [name, node] : *each)
                names.insert(name);
        FolderImage image;
        for (const std::string& name : names) {
            const Names& from = namesSurvive() ? watched->present : watched->durable;
            const auto found = from.find(name);
            if (found == from.end() || found->second == nullptr) continue;
            image[name.substr(watched->folder.size() + 1)] = bytesOf(*found->second);
        }
        return image;
    }

 private:
    bool namesSurvive()
    {
        if (left_ == Left::some) return random_() % 2 == 0;
        return left_ == Left::everything || left_ == Left::names;
    }

    const std::string& bytesOf(const Node& node)
    {
        const auto [known, isNew] = bytes_.try_emplace(&node);
        if (!isNew) return known->second;
        const bool bytesSurvive = left_ == Left::everything || left_ == Left::bytes;
        if (left_ == Left::some)
            known->second = mixed(node.durable, presentOf(node), random_);
        else
            known->second = bytesSurvive ? presentOf(node) : node.durable;
        return known->second;
    }

    static std::string presentOf(const Node& node)
    {
        const auto named = std::find_if(watched->present.begin(), watched->present.end(),
                                        [&](const auto& name) { return name.second.get() == &node; });
        return named == watched->present.end() ? node.lastPresent : contentOf(named->first);
    }

    Left left_;
    std::mt19937 random_;
    std::map<const Node*, std::string> bytes_;
};

}  // namespace

const char* nameOf(Fault fault)
{
    constexpr std::array names = {"none",        "power cut",       "full",      "full once", "broken",
                                  "broken once", "write-protected", "no access", "locked",    "folder gone"};
    return names.at(static_cast<std::size_t>(fault));
}

FailingDisk::FailingDisk(fs::path folder) : folder_(std::move(folder))
{
    if (watched != nullptr) throw std::logic_error("a disk is watched already");
    watched = new Watched;
    watched->folder = folder_.string();
}

FailingDisk::~FailingDisk()
{
    repair();
    delete watched;
    watched = nullptr;
}

void FailingDisk::failAt(Fault fault, long call)
{
    watched->fault = fault;
    watched->failAt = call;
    watched->calls = 0;
    watched->hit.clear();
    watched->happened = false;
    watched->present.clear();
    for (const auto& [name, bytes] : imageOf(folder_))
        watched->present[watched->folder + "/" + name] = std::make_shared<Node>(Node{bytes, {}});
    watched->durable = watched->present;
    // Files that the program has open already.
    for (auto& [descriptor, node] : watched->openNodes)
        node = nodeAt(watched->descriptors.at(descriptor));
}

long FailingDisk::calls() const
{
    return watched->calls;
}

const std::string& FailingDisk::hit() const
{
    return watched->hit;
}

void FailingDisk::cutPower()
{
    watched->fault = Fault::powerCut;
    watched->happened = true;
}

FolderImage FailingDisk::leftByPowerCut(Left left, std::uint32_t seed) const
{
    return Survivors(left, seed).image();
}

void FailingDisk::repair()
{
    if (watched->away) fs::rename(awayPlace(), folder_);
    watched->away = false;
    watched->happened = false;
    watched->fault = Fault::none;
    watched->failAt = -1;
}

FolderImage imageOf(const fs::path& folder)
{
    FolderImage image;
    for (const auto& entry : fs::recursive_directory_iterator(folder))
        if (entry.is_regular_file()) image[entry.path().lexically_relative(folder).string()] = readFile(entry.path());
    return image;
}

void putImage(const fs::path& folder, const FolderImage& image)
{
    for (const auto& [name, bytes] : imageOf(folder))
        if (!image.contains(name)) fs::remove(folder / name);
    for (const auto& [name, bytes] : image) {
        fs::create_directories((folder / name).parent_path());
        writeFile(folder / name, bytes);
    }
}

}  // namespace test

// The calls that stand before those of the system.
extern "C" {

int open(const char* path, int flags, ...)
{
    va_list arguments;
    va_start(arguments, flags);
    const mode_t mode = (flags & O_CREAT) != 0 ? va_arg(arguments, mode_t) : 0;
    va_end(arguments);
    return test::openWatched("open", path, flags, mode);
}

int open64(const char* path, int flags, ...)
{
    va_list arguments;
    va_start(arguments, flags);
    const mode_t mode = (flags & O_CREAT) != 0 ? va_arg(arguments, mode_t) : 0;
    va_end(arguments);
    return test::openWatched("open64", path, flags, mode);
}

int close(int descriptor)
{
    static auto* const following = test::real<int(int)>("close");
    if (test::watched != nullptr) {
        test::watched->descriptors.erase(descriptor);
        test::watched->openNodes.erase(descriptor);
    }
    return following(descriptor);
}

ssize_t write(int descriptor, const void* bytes, size_t size)
{
    static auto* const following = test::real<ssize_t(int, const void*, size_t)>("write");
    const std::string path = test::pathOf(descriptor);
    if (!path.empty() && test::fails(test::Need::writes, "write", path)) return -1;
    return following(descriptor, bytes, size);
}

ssize_t pwrite64(int descriptor, const void* bytes, size_t size, off64_t offset)
{
    static auto* const following = test::real<ssize_t(int, const void*, size_t, off64_t)>("pwrite64");
    const std::string path = test::pathOf(descriptor);
    if (!path.empty() && test::fails(test::Need::writes, "write", path)) return -1;
    return following(descriptor, bytes, size, offset);
}

int ftruncate64(int descriptor, off64_t size) noexcept
{
    static auto* const following = test::real<int(int, off64_t)>("ftruncate64");
    const std::string path = test::pathOf(descriptor);
    if (!path.empty() && test::fails(test::Need::shrinks, "truncate", path)) return -1;
    return following(descriptor, size);
}

int fsync(int descriptor)
{
    return test::synchroniseWatched("fsync", descriptor);
}

int fdatasync(int descriptor)
{
    return test::synchroniseWatched("fdatasync", descriptor);
}

int rename(const char* from, const char* to) noexcept
{
    static auto* const following = test::real<int(const char*, const char*)>("rename");
    if (!test::isInside(from)) return following(from, to);
    if (test::fails(test::Need::removesName, "rename", to)) return -1;
    test::keepBytesOf(to);
    const int result = following(from, to);
    if (result != 0) return result;
    test::watched->present[to] = test::nodeAt(from);
    test::watched->present.erase(from);
    return result;
}

int link(const char* from, const char* to) noexcept
{
    static auto* const following = test::real<int(const char*, const char*)>("link");
    if (!test::isInside(from)) return following(from, to);
    if (test::fails(test::Need::makesName, "link", to)) return -1;
    const int result = following(from, to);
    if (result == 0) test::watched->present[to] = test::nodeAt(from);
    return result;
}

int unlink(const char* path) noexcept
{
    return test::removeWatched("unlink", path);
}

int remove(const char* path) noexcept
{
    return test::removeWatched("remove", path);
}

int mkdir(const char* path, mode_t mode) noexcept
{
    static auto* const following = test::real<int(const char*, mode_t)>("mkdir");
    if (test::isInside(path) && test::fails(test::Need::makesName, "mkdir", path)) return -1;
    return following(path, mode);
}

int fcntl64(int descriptor, int command, ...)
{
    va_list arguments;
    va_start(arguments, command);
    void* argument = va_arg(arguments, void*);
    va_end(arguments);
    static auto* const following = test::real<int(int, int, ...)>("fcntl64");
    const std::string path = command == F_SETLK ? test::pathOf(descriptor) : std::string();
    if (path.empty()) return following(descriptor, command, argument);
    const auto kind = static_cast<struct flock*>(argument)->l_type;
    // Whoever has a file for itself may always let others read it too.
    const bool keepsLess = kind == F_RDLCK && test::watched->exclusive.contains(path);
    if (kind != F_UNLCK && !keepsLess && test::fails(test::Need::locks, "lock", path)) return -1;
    const int result = following(descriptor, command, argument);
    if (result == 0 && kind == F_WRLCK) test::watched->exclusive.insert(path);
    if (result == 0 && kind != F_WRLCK) test::watched->exclusive.erase(path);
    return result;
}

/// Nobody has to wait for the lock of another program that is none.
int nanosleep(const timespec* duration, timespec* left)
{
    static auto* const following = test::real<int(const timespec*, timespec*)>("nanosleep");
    const bool waitsForLock = test::watched != nullptr && test::watched->fault == test::Fault::locked;
    return waitsForLock ? 0 : following(duration, left);
}

}  // extern "C"
