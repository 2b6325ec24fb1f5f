#pragma once

#include "hosts/common/registry_reader.h"

#include <map>
#include <string>

/// The site's registry, with a note of what it refused: the tool goes on after a value that was not
/// written, and tells nobody.
class WatchedRegistry final : public RegistryReader {
public:
    /// `registry` outlives it.
    explicit WatchedRegistry(Registry& registry) : RegistryReader(registry) {}

    std::optional<bool> createKey(std::uint32_t hive, const std::string& path) override;
    bool setValue(std::uint32_t hive, const std::string& path, const std::string& name,
                  const RegistryValue& value) override;

    /// The first write since `forget` that was refused, and why, as the end of a sentence; empty
    /// when there was none. A value of a key that is not there is none: no one was to write it.
    const std::string& refusal() const { return first_; }

    /// The same for the values of one name.
    std::string refusalOf(const std::string& value) const;

    void forget();

private:
    std::string note(const std::string& what, const std::string& why);

    std::string first_;
    std::map<std::string, std::string> ofValues_;
};
