#pragma once

#include "platform/registry.h"

#include <optional>
#include <string>
#include <vector>

/// A registry in front of another one, which is what it reads.
class RegistryReader : public Registry {
public:
    bool keyExists(std::uint32_t hive, const std::string& path) const override
    {
        return registry_.keyExists(hive, path);
    }

    std::optional<RegistryValue> value(std::uint32_t hive, const std::string& path,
                                       const std::string& name) const override
    {
        return registry_.value(hive, path, name);
    }

    std::optional<std::vector<std::string>> subkeys(std::uint32_t hive,
                                                    const std::string& path) const override
    {
        return registry_.subkeys(hive, path);
    }

protected:
    /// `registry` outlives it.
    explicit RegistryReader(Registry& registry) : registry_(registry) {}

    Registry& behind() const { return registry_; }

private:
    Registry& registry_;
};
