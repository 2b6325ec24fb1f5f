#include "backends/site/registry/registry_tree.h"

#include "text/utf8.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <utility>

namespace {

struct Hive {
    std::string_view name;
    std::string_view shortName;
};

constexpr std::array<Hive, 5> hives = {{
    {"HKEY_CLASSES_ROOT", "HKCR"},
    {"HKEY_CURRENT_USER", "HKCU"},
    {"HKEY_LOCAL_MACHINE", "HKLM"},
    {"HKEY_USERS", "HKU"},
    {"HKEY_CURRENT_CONFIG", "HKCC"},
}};

/// Takes the next name off a path.
std::string_view takeName(std::string_view& path)
{
    const auto name = path.substr(0, path.find('\\'));
    path.remove_prefix(std::min(name.size() + 1, path.size()));
    return name;
}

std::string_view fullHiveName(std::string_view name)
{
    const auto folded = foldCase(name);
    for (const auto& hive : hives)
        if (folded == hive.name || folded == hive.shortName) return hive.name;
    return {};
}

bool hasControlCharacter(std::string_view text)
{
    return std::any_of(text.begin(), text.end(),
                       [](char c) { return static_cast<unsigned char>(c) < 0x20; });
}

bool isKeyName(std::string_view name)
{
    return !name.empty() && name.size() <= RegistryTree::longestName &&
           !hasControlCharacter(name) && isUtf8(name);
}

bool isAtOrBelow(const std::string& foldedPath, const std::string& foldedKey)
{
    return foldedPath.compare(0, foldedKey.size(), foldedKey) == 0 &&
           (foldedPath.size() == foldedKey.size() || foldedPath[foldedKey.size()] == '\\');
}

} // namespace

std::vector<std::string> RegistryKey::subkeyNames() const
{
    std::vector<std::string> names;
    for (const auto& key : subkeys_) names.push_back(key.name());
    return names;
}

const RegistryEntry* RegistryKey::value(std::string_view name) const
{
    const auto found = valuesByName_.find(foldCase(name));
    return found == valuesByName_.end() ? nullptr : &*found->second;
}

RegistryKey* RegistryKey::subkey(std::string_view name) const
{
    const auto found = subkeysByName_.find(foldCase(name));
    return found == subkeysByName_.end() ? nullptr : &*found->second;
}

void RegistryKey::setValue(RegistryEntry entry)
{
    auto key = foldCase(entry.name);
    const auto found = valuesByName_.find(key);
    if (found == valuesByName_.end()) {
        valuesByName_[std::move(key)] = values_.insert(values_.end(), std::move(entry));
        return;
    }
    auto& old = *found->second;
    old.value = std::move(entry.value);
    old.source = std::move(entry.source);
    std::move(entry.comments.begin(), entry.comments.end(), std::back_inserter(old.comments));
}

void RegistryKey::removeValue(std::string_view name)
{
    const auto found = valuesByName_.find(foldCase(name));
    if (found == valuesByName_.end()) return;
    values_.erase(found->second);
    valuesByName_.erase(found);
}

RegistryKey& RegistryKey::makeSubkey(std::string_view name)
{
    auto folded = foldCase(name);
    const auto found = subkeysByName_.find(folded);
    if (found != subkeysByName_.end()) return *found->second;
    const auto made = subkeys_.emplace(subkeys_.end(), std::string(name));
    subkeysByName_[std::move(folded)] = made;
    return *made;
}

void RegistryKey::removeSubkey(std::string_view name)
{
    const auto found = subkeysByName_.find(foldCase(name));
    if (found == subkeysByName_.end()) return;
    subkeys_.erase(found->second);
    subkeysByName_.erase(found);
}

RegistryTree::RegistryTree()
{
    for (const auto& hive : hives) root_.makeSubkey(hive.name);
}

const RegistryKey* RegistryTree::find(std::string_view path) const
{
    const RegistryKey* key = root_.subkey(fullHiveName(takeName(path)));
    while (key != nullptr && !path.empty()) key = key->subkey(takeName(path));
    return key;
}

RegistryKey* RegistryTree::find(std::string_view path)
{
    return const_cast<RegistryKey*>(std::as_const(*this).find(path));
}

bool RegistryTree::isPath(std::string_view path)
{
    if (fullHiveName(takeName(path)).empty()) return false;
    std::size_t levels = 0;
    while (!path.empty())
        if (!isKeyName(takeName(path)) || ++levels > deepestPath) return false;
    return true;
}

bool RegistryTree::isValueName(std::string_view name)
{
    constexpr std::size_t longestValueName = 16383;
    return name.size() <= longestValueName && !hasControlCharacter(name) && isUtf8(name);
}

RegistryKey& RegistryTree::makeKeys(std::string_view path, std::string& name, std::string& nearest)
{
    RegistryKey* key = root_.subkey(fullHiveName(takeName(path)));
    nearest = name = key->name();
    while (!path.empty()) {
        const auto part = takeName(path);
        const bool there = key->subkey(part) != nullptr;
        key = &key->makeSubkey(part);
        name += "\\" + key->name();
        if (there) nearest = name;
    }
    return *key;
}

RegistryKey& RegistryTree::append(std::string_view path)
{
    std::string name;
    std::string nearest;
    auto& key = makeKeys(path, name, nearest);
    if (!std::exchange(key.listed, true)) sections_.push_back(name);
    return key;
}

RegistryKey& RegistryTree::make(std::string_view path)
{
    std::string name;
    std::string nearest;
    auto& key = makeKeys(path, name, nearest);
    if (std::exchange(key.listed, true)) return key;
    const auto folded = foldCase(nearest);
    const auto last =
        std::find_if(sections_.rbegin(), sections_.rend(), [&](const std::string& section) {
            return isAtOrBelow(foldCase(section), folded);
        });
    sections_.insert(last == sections_.rend() ? sections_.end() : last.base(), name);
    return key;
}

void RegistryTree::remove(std::string_view path)
{
    if (find(path) == nullptr) return;
    auto rest = path;
    std::string name(fullHiveName(takeName(rest)));
    RegistryKey* parent = &root_;
    while (!rest.empty()) {
        parent = find(name);
        name += "\\" + std::string(takeName(rest));
    }
    const auto folded = foldCase(name);
    sections_.remove_if(
        [&](const std::string& section) { return isAtOrBelow(foldCase(section), folded); });
    const auto own = name.substr(name.rfind('\\') + 1);
    parent->removeSubkey(own);
    if (parent == &root_) root_.makeSubkey(own);
}

RegistryValue normalised(RegistryValue value)
{
    if (!isTextType(value.type)) return value;
    std::string text(value.bytes.begin(), value.bytes.end());
    if (!isUtf8(text)) text = validUtf8(text);
    if (!text.empty() && text.back() != '\0') text += '\0';
    const bool isEmptyList =
        value.type == registryType::texts && text.find_first_not_of('\0') == std::string::npos;
    if (text.size() == 1 || isEmptyList) text.clear();
    value.bytes.assign(text.begin(), text.end());
    return value;
}
