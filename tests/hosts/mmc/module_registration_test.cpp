#include "hosts/mmc/console/wide_text.h"
#include "hosts/mmc/loaded_snap_in.h"

using testing::IsEmpty;

namespace stand_in {

namespace {

const wchar_t* const consoleKeys = L"Software\\Microsoft\\MMC";
const wchar_t* const classKeys = L"Software\\Classes\\CLSID";

/// All keys below one and all their values, a line each.
void list(HKEY above, const std::wstring& name, std::vector<std::string>& lines)
{
    HKEY key = nullptr;
    if (RegOpenKeyExW(above, name.c_str(), 0, KEY_READ, &key) != ERROR_SUCCESS) return;
    lines.push_back(narrow(name));
    for (DWORD number = 0;; ++number) {
        wchar_t value[256];
        BYTE data[1024] = {};
        DWORD length = 256;
        DWORD bytes = sizeof data - 2;
        DWORD type = 0;
        if (RegEnumValueW(key, number, value, &length, nullptr, &type, data, &bytes) !=
            ERROR_SUCCESS)
            break;
        lines.push_back(narrow(name) + ": " + narrow(value) + "=" +
                        narrow(reinterpret_cast<wchar_t*>(data)));
    }
    for (DWORD number = 0;; ++number) {
        wchar_t child[256];
        DWORD length = 256;
        if (RegEnumKeyExW(key, number, child, &length, nullptr, nullptr, nullptr, nullptr) !=
            ERROR_SUCCESS)
            break;
        list(above, name + L"\\" + child, lines);
    }
    RegCloseKey(key);
}

std::vector<std::string> registryLines()
{
    std::vector<std::string> lines;
    list(HKEY_LOCAL_MACHINE, consoleKeys, lines);
    list(HKEY_LOCAL_MACHINE, classKeys, lines);
    return lines;
}

std::string value(const std::wstring& key, const wchar_t* name)
{
    wchar_t text[512] = {};
    DWORD bytes = sizeof text;
    const LSTATUS got =
        RegGetValueW(HKEY_LOCAL_MACHINE, key.c_str(), name, RRF_RT_REG_SZ, nullptr, text, &bytes);
    return got == ERROR_SUCCESS ? narrow(text) : "(none)";
}

bool isKey(const std::wstring& name)
{
    HKEY key = nullptr;
    const LSTATUS opened = RegOpenKeyExW(HKEY_LOCAL_MACHINE, name.c_str(), 0, KEY_READ, &key);
    if (opened == ERROR_SUCCESS) RegCloseKey(key);
    return opened == ERROR_SUCCESS;
}

TEST(Registration, HasAllKeysBetweenAndLeavesTheRegistryAsItWas)
{
    const SiteModule& module = SiteModule::get();
    const auto before = registryLines();
    const std::wstring snapIn = widen(guidText(SiteModule::snapIn));
    const std::wstring about = widen(guidText(SiteModule::about));
    const std::wstring node = widen(guidText(SiteModule::staticNode));
    const std::wstring classes = std::wstring(classKeys) + L"\\";
    const std::wstring listed = std::wstring(consoleKeys) + L"\\SnapIns\\" + snapIn;

    ASSERT_EQ(S_OK, module.callWithout("DllRegisterServer"));

    for (const std::wstring& id : {snapIn, about}) {
        const std::wstring server = classes + id + L"\\InprocServer32";
        EXPECT_EQ(0, lstrcmpiW(module.path().c_str(), widen(value(server, nullptr)).c_str()));
        EXPECT_EQ("Apartment", value(server, L"ThreadingModel"));
    }
    EXPECT_EQ("Diagnostics of a site", value(listed, L"NameString"));
    EXPECT_EQ(narrow(about), value(listed, L"About"));
    EXPECT_EQ("Tests", value(listed, L"Provider"));
    EXPECT_EQ("4.3", value(listed, L"Version"));
    EXPECT_TRUE(isKey(listed + L"\\StandAlone"));
    EXPECT_TRUE(isKey(listed + L"\\NodeTypes\\" + node));
    EXPECT_TRUE(isKey(std::wstring(consoleKeys) + L"\\NodeTypes\\" + node));

    Held<IUnknown> made;
    EXPECT_EQ(S_OK, CoCreateInstance(SiteModule::about, nullptr, CLSCTX_INPROC_SERVER,
                                     iid::snapinAbout, reinterpret_cast<void**>(made.place())));

    EXPECT_EQ(S_OK, module.callWithout("DllUnregisterServer"));
    EXPECT_EQ(before, registryLines());
}

} // namespace

} // namespace stand_in
