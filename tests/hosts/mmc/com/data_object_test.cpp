#include "hosts/mmc/com/data_object.h"

#include <gmock/gmock.h>

#include <cstring>
#include <optional>
#include <string>

namespace mmc {
namespace {

constexpr GUID snapIn{0x11111111, 0x2222, 0x3333, {1, 2, 3, 4, 5, 6, 7, 8}};
constexpr GUID nodeType{0xABCDEF01, 0x2345, 0x6789, {0xA, 0xB, 0xC, 0xD, 0xE, 0xF, 1, 2}};

ComPointer<IDataObject> objectOf(const Subject& subject)
{
    const auto made = makeObject<DataObject>(subject, NodeFacts{snapIn, nodeType, L"Caf\x00E9"});
    return ComPointer<IDataObject>::of(static_cast<IDataObject*>(made.get()));
}

FORMATETC formatOf(const wchar_t* name)
{
    return {static_cast<CLIPFORMAT>(RegisterClipboardFormatW(name)), nullptr, DVASPECT_CONTENT, -1,
            TYMED_HGLOBAL};
}

/// The bytes that a data object writes into memory of `size` bytes; nothing when it refuses.
std::optional<std::string> written(IDataObject& object, const wchar_t* name, std::size_t size)
{
    FORMATETC format = formatOf(name);
    STGMEDIUM medium{};
    medium.tymed = TYMED_HGLOBAL;
    medium.hGlobal = GlobalAlloc(GMEM_MOVEABLE | GMEM_ZEROINIT, size);
    std::optional<std::string> bytes;
    if (object.GetDataHere(&format, &medium) == S_OK) {
        const auto* start = static_cast<const char*>(GlobalLock(medium.hGlobal));
        bytes.emplace(start, GlobalSize(medium.hGlobal));
        GlobalUnlock(medium.hGlobal);
    }
    GlobalFree(medium.hGlobal);
    return bytes;
}

std::wstring textIn(const std::string& bytes)
{
    std::wstring text(bytes.size() / sizeof(wchar_t), L'\0');
    std::memcpy(text.data(), bytes.data(), text.size() * sizeof(wchar_t));
    return text.c_str();
}

TEST(DataObject, TellsNodeTypeNameAndSnapIn)
{
    const auto object = objectOf({});

    const auto type = written(*object.get(), CCF_NODETYPE, sizeof(GUID));
    const auto owner = written(*object.get(), CCF_SNAPIN_CLASSID, sizeof(GUID));
    const auto text = written(*object.get(), CCF_SZNODETYPE, 200);
    const auto name = written(*object.get(), CCF_DISPLAY_NAME, 200);

    ASSERT_TRUE(type && owner && text && name);
    EXPECT_EQ(0, std::memcmp(type->data(), &nodeType, sizeof nodeType));
    EXPECT_EQ(0, std::memcmp(owner->data(), &snapIn, sizeof snapIn));
    EXPECT_EQ(L"{ABCDEF01-2345-6789-0A0B-0C0D0E0F0102}", textIn(*text));
    EXPECT_EQ(L"Caf\x00E9", textIn(*name));
}

TEST(DataObject, LetsMemoryGrowThatIsTooSmallForAText)
{
    const auto name = written(*objectOf({}).get(), CCF_DISPLAY_NAME, 2);
    ASSERT_TRUE(name);
    EXPECT_EQ(L"Caf\x00E9", textIn(*name));
}

TEST(DataObject, RefusesFormatsThatItDoesNotHave)
{
    const auto object = objectOf({});
    FORMATETC unknown = formatOf(L"What nobody has");

    EXPECT_FALSE(written(*object.get(), L"What nobody has", 100));
    EXPECT_EQ(DV_E_FORMATETC, object->QueryGetData(&unknown));
}

TEST(DataObject, IsKnownByTheHostThatMadeItAlone)
{
    const int one = 0;
    const int other = 0;
    const auto object = objectOf({&one, 5, 7});

    EXPECT_EQ((Subject{&one, 5, 7}), subjectOf(object.get(), &one));
    EXPECT_EQ(Subject{}, subjectOf(object.get(), &other));
    EXPECT_EQ(Subject{}, subjectOf(nullptr, &one));
    EXPECT_EQ(Subject{}, subjectOf(DOBJ_CUSTOMWEB, &one));
}

} // namespace
} // namespace mmc
