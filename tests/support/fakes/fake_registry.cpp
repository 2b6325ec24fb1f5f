#include "support/fakes/fake_registry.h"

#include "support/fakes/files/fake_paths.h"

#include <algorithm>

using fakePaths::folded;

namespace {

std::vector<std::string> namesOf(const std::string& path)
{
    std::vector<std::string> names;
    std::string name;
    for (const char letter : path + "\\") {
        if (letter != '\\') {
            name += letter;
        } else if (!name.empty()) {
            names.push_back(name);
            name.clear();
        }
    }
    return names;
}

RegistryValue textValue(const std::string& text)
{
    RegistryValue value;
    value.bytes.assign(text.begin(), text.end());
    return value;
}

/// A text ends in a zero; one that is nothing else, and a list of nothing, has no bytes.
void keepAsText(RegistryValue& value)
{
    auto& bytes = value.bytes;
    if (!bytes.empty() && bytes.back() != 0) bytes.push_back(0);
    const bool isZeros =
        std::all_of(bytes.begin(), bytes.end(), [](auto byte) { return byte == 0; });
    if (isZeros && (bytes.size() == 1 || value.type == registryType::texts)) bytes.clear();
}

template <typename Key>
Key* childOf(const Key& above, const std::string& name)
{
    for (const auto& key : above.keys)
        if (folded(key->name) == folded(name)) return key.get();
    return nullptr;
}

} // namespace

FakeRegistry::Found FakeRegistry::find(std::uint32_t hive, const std::string& path) const
{
    Found found;
    if (hive != registryRoot::localMachine) return found;
    Key* key = machine_.get();
    for (const std::string& name : namesOf(path)) {
        key = childOf(*key, name);
        if (!key || key->closed) return Found{};
        if (key->readOnly) found.writable = false;
    }
    found.key = key;
    return found;
}

FakeRegistry::Key& FakeRegistry::make(const std::string& path)
{
    Key* key = machine_.get();
    for (const std::string& name : namesOf(path)) {
        Key* below = childOf(*key, name);
        if (!below) {
            key->keys.push_back(std::make_unique<Key>());
            below = key->keys.back().get();
            below->name = name;
        }
        key = below;
    }
    return *key;
}

FakeRegistry& FakeRegistry::withKey(const std::string& path)
{
    make(path);
    return *this;
}

FakeRegistry& FakeRegistry::withText(const std::string& path, const std::string& name,
                                     const std::string& text)
{
    return withValue(path, name, textValue(text));
}

FakeRegistry& FakeRegistry::withNumber(const std::string& path, const std::string& name,
                                       std::int32_t number)
{
    RegistryValue value{registryType::number, {}};
    for (int shift = 0; shift < 32; shift += 8)
        value.bytes.push_back(
            static_cast<std::uint8_t>(static_cast<std::uint32_t>(number) >> shift));
    return withValue(path, name, std::move(value));
}

FakeRegistry& FakeRegistry::withValue(const std::string& path, const std::string& name,
                                      RegistryValue value)
{
    make(path);
    setValue(registryRoot::localMachine, path, name, value);
    written_.clear();
    return *this;
}

FakeRegistry& FakeRegistry::closed(const std::string& path)
{
    make(path).closed = true;
    return *this;
}

FakeRegistry& FakeRegistry::readOnly(const std::string& path)
{
    make(path).readOnly = true;
    return *this;
}

bool FakeRegistry::has(const std::string& path, const std::string& name) const
{
    return value(registryRoot::localMachine, path, name).has_value();
}

std::string FakeRegistry::text(const std::string& path, const std::string& name) const
{
    const auto stored = value(registryRoot::localMachine, path, name);
    if (!stored) return "";
    std::string text(stored->bytes.begin(), stored->bytes.end());
    if (!text.empty() && text.back() == '\0') text.pop_back();
    return text;
}

std::int32_t FakeRegistry::number(const std::string& path, const std::string& name) const
{
    const auto stored = value(registryRoot::localMachine, path, name);
    if (!stored || stored->bytes.size() != 4) return -1;
    std::uint32_t number = 0;
    for (std::size_t place = 0; place < 4; ++place)
        number |= static_cast<std::uint32_t>(stored->bytes[place]) << (8 * place);
    return static_cast<std::int32_t>(number);
}

bool FakeRegistry::keyExists(std::uint32_t hive, const std::string& path) const
{
    return find(hive, path).key != nullptr;
}

std::optional<bool> FakeRegistry::createKey(std::uint32_t hive, const std::string& path)
{
    if (hive != registryRoot::localMachine) return std::nullopt;
    if (find(hive, path).key) return true;
    std::string above;
    for (const std::string& name : namesOf(path)) {
        const Key* key = find(hive, above).key;
        if (!key) return std::nullopt;
        const Key* below = childOf(*key, name);
        if (below && below->closed) return std::nullopt;
        if (!below && !find(hive, above).writable) return std::nullopt;
        above += "\\" + name;
        make(above);
    }
    return false;
}

std::optional<RegistryValue> FakeRegistry::value(std::uint32_t hive, const std::string& path,
                                                 const std::string& name) const
{
    const Key* key = find(hive, path).key;
    if (!key) return std::nullopt;
    for (const auto& [valueName, stored] : key->values)
        if (folded(valueName) == folded(name)) return stored;
    return std::nullopt;
}

bool FakeRegistry::setValue(std::uint32_t hive, const std::string& path, const std::string& name,
                            const RegistryValue& value)
{
    const Found found = find(hive, path);
    if (!found.key || !found.writable) return false;
    RegistryValue stored = value;
    if (isTextType(stored.type)) keepAsText(stored);
    written_.push_back(path + "\\" + name);
    for (auto& [valueName, old] : found.key->values) {
        if (folded(valueName) != folded(name)) continue;
        old = std::move(stored);
        return true;
    }
    found.key->values.emplace_back(name, std::move(stored));
    return true;
}

std::optional<std::vector<std::string>> FakeRegistry::subkeys(std::uint32_t hive,
                                                              const std::string& path) const
{
    const Key* key = find(hive, path).key;
    if (!key) return std::nullopt;
    std::vector<std::string> names;
    for (const auto& below : key->keys) names.push_back(below->name);
    return names;
}
