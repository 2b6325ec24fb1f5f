#pragma once

#include "backends/site/database/lock_patience.h"
#include "backends/site/registry/registry_tree.h"
#include "platform/registry.h"
#include "system/file_descriptor.h"
#include "system/root_folder.h"

#include <chrono>
#include <functional>
#include <optional>
#include <string>

/// The registry of a site: a file in the registry editor's text format.
///
/// The file is read when it is first asked for and again when it has changed. A missing one is an
/// empty registry, made by the first write. A write takes the lock beside the file, reads what
/// another program may have written, and replaces the file whole; one that changes nothing writes
/// nothing. The keys of other hives than HKEY_LOCAL_MACHINE are kept, and can't be asked for. Any
/// call raises 321 for a damaged file, which stays as it is, and 57, 61; 70 for what is no plain
/// file or leads out of the site; a write 70 too when another program does not let go of the lock
/// in time.
class SiteRegistry final : public Registry {
public:
    /// How long the writes of a run wait, all together, for another program's lock.
    static constexpr std::chrono::seconds usualPatience{10};

    /// Takes what a person who waits for a lock is to know.
    using Notice = std::function<void(const std::string&)>;

    /// The file is `registry.reg` in the site's folder.
    explicit SiteRegistry(RootFolder site, const Notice& notice = {},
                          std::chrono::milliseconds patience = usualPatience);

    /// `act` comes before each write: what was changed elsewhere is lasting before the registry
    /// tells of it. A write raises what it raises, with nothing written.
    void beforeWrites(std::function<void()> act) { beforeWrites_ = std::move(act); }

    bool keyExists(std::uint32_t hive, const std::string& path) const override;
    std::optional<bool> createKey(std::uint32_t hive, const std::string& path) override;
    std::optional<RegistryValue> value(std::uint32_t hive, const std::string& path,
                                       const std::string& name) const override;
    bool setValue(std::uint32_t hive, const std::string& path, const std::string& name,
                  const RegistryValue& value) override;
    std::optional<std::vector<std::string>> subkeys(std::uint32_t hive,
                                                    const std::string& path) const override;

private:
    /// Changes the tree, and tells whether it did.
    using Change = std::function<bool(RegistryTree&)>;

    RegistryTree& current() const;
    void read() const;
    const FileDescriptor& remember() const;
    const RegistryKey* key(std::uint32_t hive, const std::string& path) const;
    bool write(const Change& change);
    void save();
    FileDescriptor takeLock();
    void waitFor(const FileDescriptor& lock);

    RootFolder site_;
    std::function<void()> beforeWrites_;
    LockPatience patience_;
    mutable RegistryTree tree_;
    mutable FileDescriptor
        file_; ///< the version that was read; open, so that no other looks like it
    mutable std::optional<FileFacts> facts_; ///< of that version; nothing when none was read
    mutable bool known_ = false;             ///< whether `tree_` is the state of `facts_`
};
