#include "backends/site/registry/site_registry.h"

#include "backends/site/registry/registry_file.h"
#include "system/system_error.h"
#include "system/whole_file.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>
#include <utility>

namespace {

constexpr mode_t ordinaryMode = 0644;
constexpr const char* fileName = "registry.reg";
constexpr const char* lockName = "registry.reg.lock";

bool sameVersion(const struct stat& left, const struct stat& right)
{
    return left.st_dev == right.st_dev && left.st_ino == right.st_ino &&
           left.st_size == right.st_size && left.st_mtim.tv_sec == right.st_mtim.tv_sec &&
           left.st_mtim.tv_nsec == right.st_mtim.tv_nsec &&
           left.st_ctim.tv_sec == right.st_ctim.tv_sec &&
           left.st_ctim.tv_nsec == right.st_ctim.tv_nsec;
}

/// The path with its hive; the empty one, which names no key, for other hives than the tool's.
std::string fullPath(std::uint32_t hive, const std::string& path)
{
    if (hive != registryRoot::localMachine) return {};
    std::string full = "HKEY_LOCAL_MACHINE";
    if (!path.empty()) full += "\\" + path;
    while (full.back() == '\\') full.pop_back();
    return full;
}

} // namespace

SiteRegistry::SiteRegistry(RootFolder site, const Notice& notice,
                           std::chrono::milliseconds patience)
    : site_(std::move(site)), patience_(patience)
{
    if (notice)
        patience_.onLongWait([notice, text = "waiting for another program that holds " +
                                             site_.shown(fileName)] { notice(text); });
}

RegistryTree& SiteRegistry::current() const
{
    const auto facts = site_.facts(fileName);
    if (known_ && facts.has_value() == facts_.has_value() &&
        (!facts || sameVersion(*facts, *facts_)))
        return tree_;
    read();
    return tree_;
}

void SiteRegistry::read() const
{
    known_ = false;
    facts_.reset();
    if (site_.facts(fileName)) {
        file_ = site_.openFile(fileName, O_RDONLY, runTimeErrors::fileNotFound);
        tree_ = parseRegistryFile(readWholeFile(remember(), runTimeErrors::fileNotFound));
    } else {
        file_ = FileDescriptor();
        tree_ = RegistryTree{};
    }
    known_ = true;
}

/// Notes the facts of the open version.
const FileDescriptor& SiteRegistry::remember() const
{
    struct stat facts {};
    if (::fstat(file_.get(), &facts) != 0) throw systemError(errno, runTimeErrors::deviceIo);
    facts_ = facts;
    return file_;
}

const RegistryKey* SiteRegistry::key(std::uint32_t hive, const std::string& path) const
{
    return std::as_const(current()).find(fullPath(hive, path));
}

bool SiteRegistry::keyExists(std::uint32_t hive, const std::string& path) const
{
    return key(hive, path) != nullptr;
}

std::optional<RegistryValue> SiteRegistry::value(std::uint32_t hive, const std::string& path,
                                                 const std::string& name) const
{
    const auto* found = key(hive, path);
    const auto* entry = found == nullptr ? nullptr : found->value(name);
    if (entry == nullptr) return {};
    return entry->value;
}

std::optional<std::vector<std::string>> SiteRegistry::subkeys(std::uint32_t hive,
                                                              const std::string& path) const
{
    const auto* found = key(hive, path);
    if (found == nullptr) return {};
    return found->subkeyNames();
}

std::optional<bool> SiteRegistry::createKey(std::uint32_t hive, const std::string& path)
{
    const auto full = fullPath(hive, path);
    if (!RegistryTree::isPath(full)) return {};
    if (keyExists(hive, path)) return true;
    bool existed = false;
    const bool written = write([&](RegistryTree& tree) {
        existed = tree.find(full) != nullptr;
        if (!existed) tree.make(full);
        return !existed;
    });
    if (!written) return {};
    return existed;
}

bool SiteRegistry::setValue(std::uint32_t hive, const std::string& path, const std::string& name,
                            const RegistryValue& value)
{
    if (!RegistryTree::isValueName(name)) return false;
    const auto full = fullPath(hive, path);
    bool opens = key(hive, path) != nullptr;
    if (!opens) return false;
    const bool written = write([&](RegistryTree& tree) {
        auto* found = tree.find(full);
        opens = found != nullptr;
        if (!opens) return false;
        auto wanted = normalised(value);
        const auto* old = found->value(name);
        if (old != nullptr && old->value == wanted) return false;
        if (!found->listed) tree.make(full);
        found->setValue({name, std::move(wanted), {}, {}});
        return true;
    });
    return opens && written;
}

/// Takes the lock beside the registry; closing the file lets it go. Not open where nobody may
/// write.
FileDescriptor SiteRegistry::takeLock()
{
    FileDescriptor lock = site_.open(lockName, O_RDWR | O_CREAT | O_NOFOLLOW | O_NONBLOCK, 0666);
    if (!lock.isOpen()) {
        if (errno == EACCES || errno == EPERM || errno == EROFS) return lock;
        site_.fail(lockName, runTimeErrors::pathNotFound);
    }
    struct stat facts {};
    if (::fstat(lock.get(), &facts) != 0 || !S_ISREG(facts.st_mode))
        throw RunTimeError(runTimeErrors::permissionDenied,
                           "Permission denied: " + site_.shown(lockName) + " is no plain file");
    waitFor(lock);
    return lock;
}

void SiteRegistry::waitFor(const FileDescriptor& lock)
{
    patience_.begin();
    for (int tries = 0; ::flock(lock.get(), LOCK_EX | LOCK_NB) != 0; ++tries) {
        if (errno == EINTR) continue;
        if (errno != EWOULDBLOCK) throw systemError(errno, runTimeErrors::deviceIo);
        if (!patience_.wait(tries))
            throw RunTimeError(runTimeErrors::permissionDenied,
                               "Permission denied: another program holds " + site_.shown(fileName) +
                                   " and did not let go in time");
    }
}

/// Makes a change under the lock. False where nobody may write.
bool SiteRegistry::write(const Change& change)
{
    if (beforeWrites_) beforeWrites_();
    const auto lock = takeLock();
    if (!lock.isOpen()) return false;
    auto& tree = current();
    if (facts_ && (facts_->st_mode & S_IWUSR) == 0) return false;
    try {
        if (change(tree)) save();
    } catch (...) {
        known_ = false; // what is in memory is not what is on the disk
        throw;
    }
    return true;
}

void SiteRegistry::save()
{
    ReplacementFile file(site_, fileName, ordinaryMode);
    if (facts_) {
        const bool owned = ::fchown(file.descriptor(), facts_->st_uid, facts_->st_gid) == 0;
        ::fchmod(file.descriptor(), facts_->st_mode & (owned ? 07777 : 0777));
    }
    file.write(registryFileText(tree_));
    file.commit(true);
    file_ = site_.openFile(fileName, O_RDONLY, runTimeErrors::fileNotFound);
    remember();
}
