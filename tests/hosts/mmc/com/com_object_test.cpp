#include "hosts/mmc/com/com_object.h"

#include <gmock/gmock.h>

namespace mmc {
namespace {

class Both final : public ComObject<IExtendContextMenu, IExtendPropertySheet2> {
public:
    HRESULT WINAPI AddMenuItems(IDataObject*, IContextMenuCallback*, long*) override { return 11; }
    HRESULT WINAPI Command(long, IDataObject*) override { return S_OK; }
    HRESULT WINAPI CreatePropertyPages(IPropertySheetCallback*, LONG_PTR, IDataObject*) override
    {
        return S_OK;
    }
    HRESULT WINAPI QueryPagesFor(IDataObject*) override { return 22; }
    HRESULT WINAPI GetWatermarks(IDataObject*, HBITMAP*, HBITMAP*, HPALETTE*, BOOL*) override
    {
        return S_OK;
    }
};

TEST(ComObject, AnswersForEachInterfaceWithThatInterface)
{
    const auto object = makeObject<Both>();
    auto* known = static_cast<IExtendContextMenu*>(object.get());

    const auto sheet = ComPointer<IExtendPropertySheet2>::of(known);
    const auto olderSheet = ComPointer<IExtendPropertySheet>::of(known);
    const auto menu = ComPointer<IExtendContextMenu>::of(sheet.get());

    ASSERT_TRUE(sheet && olderSheet && menu);
    EXPECT_EQ(22, sheet->QueryPagesFor(nullptr));
    EXPECT_EQ(22, olderSheet->QueryPagesFor(nullptr));
    EXPECT_EQ(11, menu->AddMenuItems(nullptr, nullptr, nullptr));
    EXPECT_FALSE(ComPointer<IComponent>::of(known));
}

TEST(ComObject, IsTheSameObjectWhicheverInterfaceIsAsked)
{
    const auto object = makeObject<Both>();
    auto* known = static_cast<IExtendContextMenu*>(object.get());
    const auto sheet = ComPointer<IExtendPropertySheet2>::of(known);

    EXPECT_EQ(ComPointer<IUnknown>::of(known).get(), ComPointer<IUnknown>::of(sheet.get()).get());
}

TEST(ComObject, KeepsTheModuleInUseUntilItsLastReferenceGoes)
{
    const long before = ModuleUse::count();
    auto first = makeObject<Both>();
    auto second = first;
    EXPECT_EQ(before + 1, ModuleUse::count());

    first.reset();
    EXPECT_EQ(before + 1, ModuleUse::count());
    second.reset();
    EXPECT_EQ(before, ModuleUse::count());
}

TEST(ComObject, RefusesToAnswerNowhere)
{
    const auto object = makeObject<Both>();
    EXPECT_EQ(E_POINTER, object->QueryInterface(idOf<IExtendContextMenu>, nullptr));
}

} // namespace
} // namespace mmc
