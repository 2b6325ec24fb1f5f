#include "hosts/mmc/registration.h"

#include "hosts/mmc/com/data_object.h"

#include <gmock/gmock.h>

#include <map>
#include <string>
#include <vector>

namespace mmc {
namespace {

using testing::Contains;
using testing::EndsWith;
using testing::Pair;

const std::wstring consoles = L"Software\\Microsoft\\MMC";
const std::wstring classes = L"Software\\Classes\\CLSID";

using Texts = std::map<std::wstring, std::wstring>; ///< by key and, behind ":", name

void collect(const std::wstring& path, Texts& found)
{
    HKEY key = nullptr;
    if (RegOpenKeyExW(HKEY_LOCAL_MACHINE, path.c_str(), 0, KEY_READ, &key)) return;
    found[path];
    std::vector<std::wstring> below;
    wchar_t name[256];
    wchar_t text[1024];
    for (DWORD number = 0;; ++number) {
        DWORD length = 256;
        DWORD size = sizeof text;
        if (RegEnumValueW(key, number, name, &length, nullptr, nullptr,
                          reinterpret_cast<BYTE*>(text), &size))
            break;
        found[path + L":" + name] = text;
    }
    for (DWORD number = 0;; ++number) {
        DWORD length = 256;
        if (RegEnumKeyExW(key, number, name, &length, nullptr, nullptr, nullptr, nullptr)) break;
        below.push_back(path + L"\\" + name);
    }
    RegCloseKey(key);
    for (const std::wstring& each : below) collect(each, found);
}

class Registration : public testing::Test {
protected:
    Registration()
    {
        snapIn_.classId = {0x7A3B6C01, 0x1E2F, 0x4D5C, {0x9B, 0x8A, 1, 2, 3, 4, 5, 6}};
        snapIn_.aboutId = {0x7A3B6C02, 0x1E2F, 0x4D5C, {0x9B, 0x8A, 1, 2, 3, 4, 5, 6}};
        snapIn_.staticNodeType = {0x7A3B6C03, 0x1E2F, 0x4D5C, {0x9B, 0x8A, 1, 2, 3, 4, 5, 6}};
        snapIn_.name = L"A snap-in of tests";
        snapIn_.provider = L"Tests";
        snapIn_.version = L"1.0";
    }
    ~Registration() override { unregisterSnapIn(snapIn_); }

    /// All that a snap-in may touch.
    Texts registry() const
    {
        Texts found;
        collect(consoles, found);
        for (const GUID& id : {snapIn_.classId, snapIn_.aboutId})
            collect(classes + L"\\" + guidText(id), found);
        return found;
    }

    std::wstring entry() const { return consoles + L"\\SnapIns\\" + guidText(snapIn_.classId); }

    SnapIn snapIn_{};
};

TEST_F(Registration, EntersTheSnapInForConsolesAndForTheMakingOfItsObjects)
{
    ASSERT_EQ(S_OK, registerSnapIn(snapIn_));

    const Texts found = registry();
    const std::wstring node = guidText(snapIn_.staticNodeType);
    const std::wstring server = classes + L"\\" + guidText(snapIn_.classId) + L"\\InprocServer32";
    EXPECT_THAT(found, Contains(Pair(entry() + L":NameString", L"A snap-in of tests")));
    EXPECT_THAT(found, Contains(Pair(entry() + L":About", guidText(snapIn_.aboutId))));
    EXPECT_THAT(found, Contains(Pair(entry() + L":Provider", L"Tests")));
    EXPECT_THAT(found, Contains(Pair(entry() + L":Version", L"1.0")));
    EXPECT_TRUE(found.contains(entry() + L"\\StandAlone"));
    EXPECT_TRUE(found.contains(entry() + L"\\NodeTypes\\" + node));
    EXPECT_TRUE(found.contains(consoles + L"\\NodeTypes\\" + node));
    EXPECT_THAT(found, Contains(Pair(server + L":ThreadingModel", L"Apartment")));
    EXPECT_THAT(found, Contains(Pair(server + L":", EndsWith(L".exe"))));
}

TEST_F(Registration, LeavesTheRegistryAsItWasFoundWhenItIsTakenBack)
{
    const Texts before = registry();
    ASSERT_EQ(S_OK, registerSnapIn(snapIn_));
    ASSERT_EQ(S_OK, registerSnapIn(snapIn_));
    ASSERT_NE(before, registry());

    EXPECT_EQ(S_OK, unregisterSnapIn(snapIn_));
    EXPECT_EQ(before, registry());
    EXPECT_EQ(S_OK, unregisterSnapIn(snapIn_));
}

TEST_F(Registration, LeavesOthersEntriesWhenItIsTakenBack)
{
    const std::wstring other = consoles + L"\\SnapIns\\{of another}";
    HKEY key = nullptr;
    ASSERT_EQ(0, RegCreateKeyExW(HKEY_LOCAL_MACHINE, other.c_str(), 0, nullptr, 0, KEY_WRITE,
                                 nullptr, &key, nullptr));
    RegCloseKey(key);
    ASSERT_EQ(S_OK, registerSnapIn(snapIn_));

    unregisterSnapIn(snapIn_);

    EXPECT_TRUE(registry().contains(other));
    RegDeleteKeyW(HKEY_LOCAL_MACHINE, other.c_str());
    unregisterSnapIn(snapIn_);
}

/// Below a key that goes with the machine's next start nothing else can be made.
TEST_F(Registration, TakesBackWhatItEnteredWhenOneEntryFails)
{
    HKEY key = nullptr;
    ASSERT_EQ(0, RegCreateKeyExW(HKEY_LOCAL_MACHINE, entry().c_str(), 0, nullptr,
                                 REG_OPTION_VOLATILE, KEY_WRITE, nullptr, &key, nullptr));
    const wchar_t version[] = L"an older one";
    RegSetValueExW(key, L"Version", 0, REG_SZ, reinterpret_cast<const BYTE*>(version),
                   sizeof version);
    RegCloseKey(key);
    const Texts before = registry();

    EXPECT_TRUE(FAILED(registerSnapIn(snapIn_)));

    EXPECT_EQ(before, registry());
    EXPECT_EQ(L"an older one", registry()[entry() + L":Version"]);
}

} // namespace
} // namespace mmc
