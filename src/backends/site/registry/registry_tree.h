#pragma once

#include "platform/registry.h"

#include <list>
#include <map>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

/// A value as the tree keeps it. Texts (types 1, 2 and 7) are UTF-8 there.
struct RegistryEntry {
    std::string name; ///< empty for the key's default value
    RegistryValue value;
    std::string source;                ///< what stood behind "=" in the file; empty once changed
    std::vector<std::string> comments; ///< the lines above it
};

/// A key with its values and the keys below it, each in the order of their coming.
class RegistryKey {
public:
    explicit RegistryKey(std::string name) : name_(std::move(name)) {}

    const std::string& name() const { return name_; }
    const std::list<RegistryEntry>& values() const { return values_; }
    std::vector<std::string> subkeyNames() const;

    /// Null when there is none of that name.
    const RegistryEntry* value(std::string_view name) const;
    RegistryKey* subkey(std::string_view name) const;

    /// Puts a value in the place of the one of its name, or behind the others.
    void setValue(RegistryEntry entry);
    void removeValue(std::string_view name);

    RegistryKey& makeSubkey(std::string_view name);
    void removeSubkey(std::string_view name);

    const std::list<RegistryKey>& subkeys() const { return subkeys_; }

    std::vector<std::string> comments; ///< the lines above it in the file
    bool listed = false;               ///< whether the file has a section for it

private:
    std::string name_;
    std::list<RegistryEntry> values_;
    std::list<RegistryKey> subkeys_;
    std::map<std::string, std::list<RegistryEntry>::iterator> valuesByName_;
    std::map<std::string, std::list<RegistryKey>::iterator> subkeysByName_;
};

/// All keys of a registry file, and how the file is laid out.
///
/// Paths begin with the name of a hive, `HKEY_LOCAL_MACHINE` or for short `HKLM`; names match
/// without regard to case. The hives are always there.
class RegistryTree {
public:
    static constexpr std::size_t longestName = 255;
    static constexpr std::size_t deepestPath = 512;

    RegistryTree();
    RegistryTree(RegistryTree&&) = default;
    RegistryTree& operator=(RegistryTree&&) = default;

    /// Null when there is no such key.
    const RegistryKey* find(std::string_view path) const;
    RegistryKey* find(std::string_view path);

    /// Whether a path can name a key: a hive that there is, and names of 1 to 255 bytes without
    /// control characters, at most 512 levels.
    static bool isPath(std::string_view path);

    /// Whether a text can name a value: no more than 16,383 bytes, none of them a control
    /// character. The empty one names a key's default value.
    static bool isValueName(std::string_view name);

    /// The key of a path that `isPath`, made with those above it where they are missing. A key
    /// without a section gets one: `append` as the last, `make` behind its relatives.
    RegistryKey& append(std::string_view path);
    RegistryKey& make(std::string_view path);

    /// Removes a key with all below it; a hive is only emptied.
    void remove(std::string_view path);

    /// Paths of the sections, in the order of the file.
    const std::list<std::string>& sections() const { return sections_; }

    std::vector<std::string> closingComments;
    std::string lineEnd = "\r\n";

private:
    RegistryKey& makeKeys(std::string_view path, std::string& name, std::string& nearest);

    RegistryKey root_{""};
    std::list<std::string> sections_;
};

/// A value as the store keeps it: a text is valid UTF-8 and ends in a zero byte, or has no bytes.
RegistryValue normalised(RegistryValue value);
