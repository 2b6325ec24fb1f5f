#pragma once

#include "platform/registry.h"

#include <memory>
#include <string>
#include <utility>
#include <vector>

/// A registry in memory that keeps every promise of registry.h. Setting up is done below
/// HKEY_LOCAL_MACHINE.
class FakeRegistry final : public Registry {
public:
    /// Make the key with all above it, and the value.
    FakeRegistry& withKey(const std::string& path);
    FakeRegistry& withText(const std::string& path, const std::string& name,
                           const std::string& text);
    FakeRegistry& withNumber(const std::string& path, const std::string& name, std::int32_t number);
    FakeRegistry& withValue(const std::string& path, const std::string& name, RegistryValue value);

    /// The key, and what lies below it, opens neither for reading nor for writing, nor is it made.
    FakeRegistry& closed(const std::string& path);

    /// The key, and what lies below it, opens for reading alone.
    FakeRegistry& readOnly(const std::string& path);

    /// Whether a value is stored, and a text without its terminating zero; the empty text when it
    /// is not there.
    bool has(const std::string& path, const std::string& name) const;
    std::string text(const std::string& path, const std::string& name) const;

    /// A number, or -1 when it is not there.
    std::int32_t number(const std::string& path, const std::string& name) const;

    /// "path\name" of each value written, oldest first, as the writer spelled it.
    const std::vector<std::string>& written() const { return written_; }

    bool keyExists(std::uint32_t hive, const std::string& path) const override;
    std::optional<bool> createKey(std::uint32_t hive, const std::string& path) override;
    std::optional<RegistryValue> value(std::uint32_t hive, const std::string& path,
                                       const std::string& name) const override;
    bool setValue(std::uint32_t hive, const std::string& path, const std::string& name,
                  const RegistryValue& value) override;
    std::optional<std::vector<std::string>> subkeys(std::uint32_t hive,
                                                    const std::string& path) const override;

private:
    struct Key {
        std::string name;
        std::vector<std::unique_ptr<Key>> keys;
        std::vector<std::pair<std::string, RegistryValue>> values;
        bool closed = false;
        bool readOnly = false;
    };

    struct Found {
        Key* key = nullptr; ///< null when it is not there or one on the way is closed
        bool writable = true;
    };

    Found find(std::uint32_t hive, const std::string& path) const;
    Key& make(const std::string& path);

    std::unique_ptr<Key> machine_ = std::make_unique<Key>();
    std::vector<std::string> written_;
};
