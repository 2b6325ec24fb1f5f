#include "backends/windows/windows_registry.h"

#include "system/windows/windows_calls.h"

#include <cstring>
#include <string_view>
#include <utility>
#include <windows.h>

namespace {

constexpr std::size_t longestKeyName = 255;

/// Owner of an open key.
class OpenKey {
public:
    OpenKey() = default;
    ~OpenKey()
    {
        if (key_ != nullptr) ::RegCloseKey(key_);
    }
    OpenKey(const OpenKey&) = delete;
    OpenKey& operator=(const OpenKey&) = delete;

    HKEY get() const { return key_; }
    HKEY* address() { return &key_; }

private:
    HKEY key_ = nullptr;
};

/// A path of a key as the system takes it; nothing for one that names no key of the tool's hive.
std::optional<std::wstring> keyPath(std::uint32_t hive, std::string_view path)
{
    if (hive != registryRoot::localMachine || path.find('\0') != std::string_view::npos) return {};
    while (path.ends_with('\\')) path.remove_suffix(1);
    return wideOf(path);
}

bool openKey(std::uint32_t hive, const std::string& path, REGSAM access, OpenKey& key)
{
    const auto name = keyPath(hive, path);
    return name && ::RegOpenKeyExW(HKEY_LOCAL_MACHINE, name->c_str(), 0, access, key.address()) ==
                       ERROR_SUCCESS;
}

/// A text as the store has it: UTF-16, with its zero; without bytes when it is empty.
std::wstring storedText(const RegistryValue& value)
{
    std::wstring text =
        wideOf({reinterpret_cast<const char*>(value.bytes.data()), value.bytes.size()});
    const bool isEmpty = text.find_first_not_of(L'\0') == std::wstring::npos &&
                         (text.size() <= 1 || value.type == registryType::texts);
    if (isEmpty) return {};
    if (text.back() != L'\0') text += L'\0';
    return text;
}

/// The bytes of a stored text as `RegistryValue` has them, whether or not its writer gave it a
/// zero.
std::vector<std::uint8_t> bytesOfText(int type, const std::vector<std::uint8_t>& stored)
{
    std::wstring units(stored.size() / sizeof(wchar_t), L'\0');
    std::memcpy(units.data(), stored.data(), units.size() * sizeof(wchar_t));
    std::string text = utf8Of(units);
    if (!text.empty() && text.back() != '\0') text += '\0';
    const bool isEmptyList =
        type == registryType::texts && text.find_first_not_of('\0') == std::string::npos;
    if (text.size() == 1 || isEmptyList) text.clear();
    return {text.begin(), text.end()};
}

/// A value with its bytes, however often it grows meanwhile; nothing when there is none.
std::optional<RegistryValue> readValue(HKEY key, const std::wstring& name)
{
    std::vector<std::uint8_t> bytes(1024);
    for (;;) {
        DWORD type = 0;
        auto size = static_cast<DWORD>(bytes.size());
        const LONG result =
            ::RegQueryValueExW(key, name.c_str(), nullptr, &type, bytes.data(), &size);
        if (result == ERROR_SUCCESS) {
            bytes.resize(size);
            return RegistryValue{static_cast<int>(type), std::move(bytes)};
        }
        if (result != ERROR_MORE_DATA) return {};
        bytes.resize(size + bytes.size());
    }
}

} // namespace

bool WindowsRegistry::keyExists(std::uint32_t hive, const std::string& path) const
{
    OpenKey key;
    return openKey(hive, path, KEY_READ, key);
}

std::optional<bool> WindowsRegistry::createKey(std::uint32_t hive, const std::string& path)
{
    const auto name = keyPath(hive, path);
    if (!name) return {};
    constexpr REGSAM noRights = 0;
    OpenKey key;
    DWORD disposition = 0;
    const LONG result =
        ::RegCreateKeyExW(HKEY_LOCAL_MACHINE, name->c_str(), 0, nullptr, REG_OPTION_NON_VOLATILE,
                          noRights, nullptr, key.address(), &disposition);
    if (result != ERROR_SUCCESS) return {};
    return disposition == REG_OPENED_EXISTING_KEY;
}

std::optional<RegistryValue> WindowsRegistry::value(std::uint32_t hive, const std::string& path,
                                                    const std::string& name) const
{
    OpenKey key;
    if (name.find('\0') != std::string::npos || !openKey(hive, path, KEY_READ, key)) return {};
    auto found = readValue(key.get(), wideOf(name));
    if (found && isTextType(found->type)) found->bytes = bytesOfText(found->type, found->bytes);
    return found;
}

bool WindowsRegistry::setValue(std::uint32_t hive, const std::string& path, const std::string& name,
                               const RegistryValue& value)
{
    OpenKey key;
    if (name.find('\0') != std::string::npos || !openKey(hive, path, KEY_WRITE, key)) return false;
    const auto write = [&](const void* bytes, std::size_t size) {
        return ::RegSetValueExW(key.get(), wideOf(name).c_str(), 0, static_cast<DWORD>(value.type),
                                static_cast<const BYTE*>(bytes),
                                static_cast<DWORD>(size)) == ERROR_SUCCESS;
    };
    if (!isTextType(value.type)) return write(value.bytes.data(), value.bytes.size());
    const std::wstring text = storedText(value);
    return write(text.data(), text.size() * sizeof(wchar_t));
}

std::optional<std::vector<std::string>> WindowsRegistry::subkeys(std::uint32_t hive,
                                                                 const std::string& path) const
{
    OpenKey key;
    if (!openKey(hive, path, KEY_READ, key)) return {};
    std::vector<std::string> names;
    for (DWORD index = 0;; ++index) {
        wchar_t name[longestKeyName + 1];
        DWORD length = longestKeyName + 1;
        if (::RegEnumKeyExW(key.get(), index, name, &length, nullptr, nullptr, nullptr, nullptr) !=
            ERROR_SUCCESS)
            return names;
        names.push_back(utf8Of({name, length}));
    }
}
