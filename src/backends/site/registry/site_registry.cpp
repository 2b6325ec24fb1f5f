#include "backends/site/registry/site_registry.h"

#include "backends/site/files/site_file.h"
#include "backends/site/registry/registry_file.h"
#include "runtime/run_time_error.h"
#include "system/file_lock.h"
#include "system/whole_file.h"

#include <utility>

namespace {

constexpr const char* fileName = "registry.reg";
constexpr const char* lockName = "registry.reg.lock";

bool sameVersion(const FileFacts& left, const FileFacts& right)
{
    return left.identity == right.identity && left.size == right.size &&
           left.modified == right.modified && left.changed == right.changed;
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
        file_ = openSiteFile(site_, fileName, forReading, runTimeErrors::fileNotFound);
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
    facts_ = factsOf(file_);
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
    FileDescriptor lock = site_.openIfAllowed(
        lockName, {FileAccess::readAndWrite, Creation::ifMissing, LastLink::refused},
        runTimeErrors::pathNotFound);
    if (lock.isOpen()) waitFor(lock);
    return lock;
}

void SiteRegistry::waitFor(const FileDescriptor& lock)
{
    patience_.begin();
    for (int tries = 0; !tryLock(lock); ++tries)
        if (!patience_.wait(tries))
            throw RunTimeError(runTimeErrors::permissionDenied,
                               "Permission denied: another program holds " + site_.shown(fileName) +
                                   " and did not let go in time");
}

/// Makes a change under the lock. False where nobody may write.
bool SiteRegistry::write(const Change& change)
{
    if (beforeWrites_) beforeWrites_();
    const auto lock = takeLock();
    if (!lock.isOpen()) return false;
    auto& tree = current();
    if (facts_ && facts_->readOnly) return false;
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
    ReplacementFile file(site_, fileName, OthersMay::read);
    if (facts_) file.resemble(file_);
    file.write(registryFileText(tree_));
    file.commit(true);
    file_ = openSiteFile(site_, fileName, forReading, runTimeErrors::fileNotFound);
    remember();
}
