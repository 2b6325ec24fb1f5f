#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

/// Roots of keys, by the system's own numbers.
namespace registryRoot {
constexpr std::uint32_t localMachine = 0x80000002; ///< of all keys that the tool uses
} // namespace registryRoot

/// What a value is, by the system's own numbers. The names are ours: its headers define theirs as
/// macros, which would take these apart.
namespace registryType {
constexpr int text = 1;
constexpr int expandableText = 2; ///< with names of variables in it
constexpr int bytes = 3;
constexpr int number = 4; ///< of 32 bits
constexpr int texts = 7;  ///< with a zero behind each, and one zero more
} // namespace registryType

/// Whether a type's values are texts.
constexpr bool isTextType(int type)
{
    return type == registryType::text || type == registryType::expandableText ||
           type == registryType::texts;
}

/// A stored value. A text's bytes, of whatever text type, are UTF-8 and end in a zero byte, which
/// the store adds when a writer leaves it out; the empty text and the empty list of texts have no
/// bytes. A number has four, lowest first.
struct RegistryValue {
    int type = registryType::text;
    std::vector<std::uint8_t> bytes;

    friend bool operator==(const RegistryValue&, const RegistryValue&) = default;
};

/// The registry of the machine under diagnosis. Key and value names match without regard to case;
/// a trailing `\` of a path means nothing.
class Registry {
public:
    virtual ~Registry() = default;

    /// Whether the key opens for reading.
    virtual bool keyExists(std::uint32_t hive, const std::string& path) const = 0;

    /// Makes the key and those above it. True when it existed, false when it is new; nothing when
    /// it can't be made.
    virtual std::optional<bool> createKey(std::uint32_t hive, const std::string& path) = 0;

    /// Nothing when the key or the value is missing.
    virtual std::optional<RegistryValue> value(std::uint32_t hive, const std::string& path,
                                               const std::string& name) const = 0;

    /// Whether the key opens for writing, and then the value is written. Never makes a key.
    virtual bool setValue(std::uint32_t hive, const std::string& path, const std::string& name,
                          const RegistryValue& value) = 0;

    /// Names of the keys below one, in the order of the store; nothing when it does not open.
    virtual std::optional<std::vector<std::string>> subkeys(std::uint32_t hive,
                                                            const std::string& path) const = 0;
};
