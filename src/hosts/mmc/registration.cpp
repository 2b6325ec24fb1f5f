#include "hosts/mmc/registration.h"

#include "hosts/mmc/com/data_object.h"

#include <cstring>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace mmc {

namespace {

const std::wstring classes = L"Software\\Classes\\CLSID";
const std::wstring consoles = L"Software\\Microsoft\\MMC";
const std::wstring snapIns = consoles + L"\\SnapIns";
const std::wstring nodeTypes = consoles + L"\\NodeTypes";

/// A text of the registry.
struct Entry {
    std::wstring key;
    std::wstring name; ///< empty for the key's own text
    std::wstring text;
};

std::wstring modulePath()
{
    HMODULE module = nullptr;
    GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS |
                           GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                       reinterpret_cast<LPCWSTR>(&modulePath), &module);
    std::wstring path(MAX_PATH, L'\0');
    for (;;) {
        const DWORD length =
            GetModuleFileNameW(module, path.data(), static_cast<DWORD>(path.size()));
        if (length < path.size()) return path.substr(0, length);
        path.resize(2 * path.size());
    }
}

std::vector<Entry> entriesOf(const SnapIn& snapIn)
{
    const std::wstring path = modulePath();
    const std::wstring about = guidText(snapIn.aboutId);
    const std::wstring node = guidText(snapIn.staticNodeType);
    const std::wstring entry = snapIns + L"\\" + guidText(snapIn.classId);
    std::vector<Entry> entries;
    for (const std::wstring& id : {guidText(snapIn.classId), about}) {
        const std::wstring server = classes + L"\\" + id + L"\\InprocServer32";
        entries.push_back({classes + L"\\" + id, L"", snapIn.name});
        entries.push_back({server, L"", path});
        entries.push_back({server, L"ThreadingModel", L"Apartment"});
    }
    entries.push_back({nodeTypes + L"\\" + node, L"", snapIn.name});
    entries.push_back({entry, L"NameString", snapIn.name});
    entries.push_back({entry, L"About", about});
    entries.push_back({entry, L"Provider", snapIn.provider});
    entries.push_back({entry, L"Version", snapIn.version});
    entries.push_back({entry + L"\\StandAlone", L"", L""});
    entries.push_back({entry + L"\\NodeTypes\\" + node, L"", snapIn.name});
    return entries;
}

class OpenKey {
public:
    OpenKey() = default;
    ~OpenKey()
    {
        if (key_) RegCloseKey(key_);
    }
    OpenKey(const OpenKey&) = delete;
    OpenKey& operator=(const OpenKey&) = delete;

    HKEY* out() { return &key_; }
    HKEY get() const { return key_; }

private:
    HKEY key_ = nullptr;
};

/// Writes entries, and puts back what was there before unless they are kept.
class Writing {
public:
    Writing() = default;
    Writing(const Writing&) = delete;
    Writing& operator=(const Writing&) = delete;
    ~Writing()
    {
        for (auto step = undo_.rbegin(); step != undo_.rend(); ++step) putBack(*step);
    }

    LSTATUS write(const Entry& entry)
    {
        OpenKey key;
        if (const LSTATUS opened = open(entry.key, key)) return opened;
        Undo undo{entry.key, entry.name, valueOf(key.get(), entry.name), false};
        const LSTATUS written = set(key.get(), entry.name, REG_SZ, bytesOf(entry.text));
        if (written == ERROR_SUCCESS) undo_.push_back(std::move(undo));
        return written;
    }

    void keep() { undo_.clear(); }

private:
    struct Value {
        DWORD type;
        std::vector<BYTE> bytes;
    };
    struct Undo {
        std::wstring key;
        std::wstring name;
        std::optional<Value> before;
        bool isKey; ///< the key was made, and goes
    };

    static std::vector<BYTE> bytesOf(const std::wstring& text)
    {
        std::vector<BYTE> bytes((text.size() + 1) * sizeof(wchar_t));
        std::memcpy(bytes.data(), text.c_str(), bytes.size());
        return bytes;
    }

    static LSTATUS set(HKEY key, const std::wstring& name, DWORD type,
                       const std::vector<BYTE>& bytes)
    {
        return RegSetValueExW(key, name.c_str(), 0, type, bytes.data(),
                              static_cast<DWORD>(bytes.size()));
    }

    static std::optional<Value> valueOf(HKEY key, const std::wstring& name)
    {
        Value value{};
        DWORD size = 0;
        if (RegQueryValueExW(key, name.c_str(), nullptr, &value.type, nullptr, &size)) return {};
        value.bytes.resize(size);
        if (RegQueryValueExW(key, name.c_str(), nullptr, &value.type, value.bytes.data(), &size))
            return {};
        value.bytes.resize(size);
        return value;
    }

    /// Opens a key; makes it, and those above it, where they are not there.
    LSTATUS open(const std::wstring& path, OpenKey& key)
    {
        for (auto end = path.find(L'\\'); end != std::wstring::npos;
             end = path.find(L'\\', end + 1)) {
            OpenKey above;
            if (const LSTATUS made = make(path.substr(0, end), above, KEY_QUERY_VALUE)) return made;
        }
        return make(path, key, KEY_QUERY_VALUE | KEY_SET_VALUE);
    }

    LSTATUS make(const std::wstring& path, OpenKey& key, REGSAM access)
    {
        if (RegOpenKeyExW(HKEY_LOCAL_MACHINE, path.c_str(), 0, access, key.out()) == ERROR_SUCCESS)
            return ERROR_SUCCESS;
        DWORD made = 0;
        const LSTATUS result = RegCreateKeyExW(HKEY_LOCAL_MACHINE, path.c_str(), 0, nullptr, 0,
                                               access, nullptr, key.out(), &made);
        if (result == ERROR_SUCCESS && made == REG_CREATED_NEW_KEY)
            undo_.push_back({path, {}, {}, true});
        return result;
    }

    static void putBack(const Undo& step)
    {
        if (step.isKey) {
            RegDeleteKeyW(HKEY_LOCAL_MACHINE, step.key.c_str());
            return;
        }
        OpenKey key;
        if (RegOpenKeyExW(HKEY_LOCAL_MACHINE, step.key.c_str(), 0, KEY_SET_VALUE, key.out()))
            return;
        if (step.before)
            set(key.get(), step.name, step.before->type, step.before->bytes);
        else
            RegDeleteValueW(key.get(), step.name.c_str());
    }

    std::vector<Undo> undo_;
};

LSTATUS removeTree(const std::wstring& path)
{
    const LSTATUS removed = RegDeleteTreeW(HKEY_LOCAL_MACHINE, path.c_str());
    return removed == ERROR_FILE_NOT_FOUND ? ERROR_SUCCESS : removed;
}

/// Removes a key that has nothing in it any more.
void removeIfEmpty(const std::wstring& path)
{
    DWORD keys = 0;
    DWORD values = 0;
    {
        OpenKey key;
        if (RegOpenKeyExW(HKEY_LOCAL_MACHINE, path.c_str(), 0, KEY_QUERY_VALUE, key.out())) return;
        if (RegQueryInfoKeyW(key.get(), nullptr, nullptr, nullptr, &keys, nullptr, nullptr, &values,
                             nullptr, nullptr, nullptr, nullptr))
            return;
    }
    if (keys == 0 && values == 0) RegDeleteKeyW(HKEY_LOCAL_MACHINE, path.c_str());
}

} // namespace

HRESULT registerSnapIn(const SnapIn& snapIn)
{
    Writing writing;
    for (const Entry& entry : entriesOf(snapIn))
        if (const LSTATUS written = writing.write(entry)) return HRESULT_FROM_WIN32(written);
    writing.keep();
    return S_OK;
}

HRESULT unregisterSnapIn(const SnapIn& snapIn)
{
    LSTATUS first = ERROR_SUCCESS;
    for (const std::wstring& path :
         {snapIns + L"\\" + guidText(snapIn.classId),
          nodeTypes + L"\\" + guidText(snapIn.staticNodeType),
          classes + L"\\" + guidText(snapIn.aboutId), classes + L"\\" + guidText(snapIn.classId)}) {
        const LSTATUS removed = removeTree(path);
        if (first == ERROR_SUCCESS) first = removed;
    }
    for (const std::wstring& path : {snapIns, nodeTypes, consoles}) removeIfEmpty(path);
    return HRESULT_FROM_WIN32(first);
}

} // namespace mmc
