#pragma once

#include "platform/registry.h"

/// The registry of the machine itself. Of other hives than HKEY_LOCAL_MACHINE nothing is read or
/// written. A key is opened and closed within one call, with the rights that the call needs and no
/// others; a value is written by one call of the system, so that it appears whole.
class WindowsRegistry final : public Registry {
public:
    bool keyExists(std::uint32_t hive, const std::string& path) const override;
    std::optional<bool> createKey(std::uint32_t hive, const std::string& path) override;
    std::optional<RegistryValue> value(std::uint32_t hive, const std::string& path,
                                       const std::string& name) const override;
    bool setValue(std::uint32_t hive, const std::string& path, const std::string& name,
                  const RegistryValue& value) override;
    std::optional<std::vector<std::string>> subkeys(std::uint32_t hive,
                                                    const std::string& path) const override;
};
