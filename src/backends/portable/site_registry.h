#pragma once

#include "backends/portable/file_descriptor.h"
#include "backends/portable/registry_tree.h"
#include "platform/registry.h"

#include <functional>
#include <optional>
#include <string>
#include <sys/stat.h>

/// The registry of a site: a file in the registry editor's text format.
///
/// The file is read when it is first asked for and again when it has changed. A missing one is an
/// empty registry, made by the first write. A write takes the lock beside the file, reads what
/// another program may have written, and replaces the file whole; one that changes nothing writes
/// nothing. The keys of other hives than HKEY_LOCAL_MACHINE are kept, and can't be asked for. Any
/// call raises 321 for a damaged file, which stays as it is, and 57, 61.
class SiteRegistry final : public Registry {
public:
    /// `path` is the machine's path of the file.
    explicit SiteRegistry(std::string path);

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

    std::string path_;
    mutable RegistryTree tree_;
    mutable FileDescriptor
        file_; ///< the version that was read; open, so that no other looks like it
    mutable std::optional<struct stat> facts_; ///< of that version; nothing when none was read
    mutable bool known_ = false;               ///< whether `tree_` is the state of `facts_`
};
