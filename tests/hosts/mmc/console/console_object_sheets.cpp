#include "hosts/mmc/console/console.h"
#include "hosts/mmc/console/console_object.h"

#include <algorithm>

namespace stand_in {

HRESULT WINAPI ConsoleObject::CreatePropertySheet(LPCWSTR title, boolean plain, MMC_COOKIE,
                                                  LPDATAOBJECT object, DWORD options)
{
    if (!contract_.onThread("CreatePropertySheet")) return RPC_E_WRONG_THREAD;
    constexpr DWORD known =
        MMC_PSO_NOAPPLYNOW | MMC_PSO_HASHELP | MMC_PSO_NEWWIZARDTYPE | MMC_PSO_NO_PROPTITLE;
    if (frame_) return refused("CreatePropertySheet is called while a sheet is in the making");
    if (!title || (options & ~known) != 0)
        return refused("CreatePropertySheet is given no title, or options that are none");
    if (plain && (options & MMC_PSO_NEWWIZARDTYPE))
        return refused("CreatePropertySheet is given a wizard's option for a plain sheet");
    if (!object) return refused("CreatePropertySheet is given no data object");
    frame_ = std::make_unique<SheetFrame>();
    frame_->title = title;
    frame_->wizard = !plain;
    frame_->options = options;
    object->AddRef();
    frame_->object = Held<IDataObject>(object);
    return S_OK;
}

HRESULT WINAPI ConsoleObject::FindPropertySheet(MMC_COOKIE, LPCOMPONENT, LPDATAOBJECT)
{
    return contract_.onThread("FindPropertySheet") ? S_FALSE : RPC_E_WRONG_THREAD;
}

HRESULT WINAPI ConsoleObject::AddPrimaryPages(LPUNKNOWN extension, WINBOOL handle, HWND, WINBOOL)
{
    if (!contract_.onThread("AddPrimaryPages")) return RPC_E_WRONG_THREAD;
    if (!frame_) return refused("AddPrimaryPages is called without CreatePropertySheet");
    const auto pages = asked<IExtendPropertySheet>(extension, iid::extendPropertySheet);
    if (!pages) return refused("AddPrimaryPages is given an object without pages");
    if (const auto marks = asked<IExtendPropertySheet2>(extension, iid::extendPropertySheet2);
        marks && (frame_->options & MMC_PSO_NEWWIZARDTYPE)) {
        HPALETTE palette = nullptr;
        WINBOOL stretch = FALSE;
        contract_.call("GetWatermarks", [&] {
            return marks->GetWatermarks(frame_->object.get(), &frame_->watermark, &frame_->header,
                                        &palette, &stretch);
        });
    }
    addsPages_ = true;
    const HRESULT made = contract_.call("CreatePropertyPages", [&] {
        return pages->CreatePropertyPages(this, handle ? 1 : 0, frame_->object.get());
    });
    addsPages_ = false;
    if (FAILED(made)) return made;
    if (frame_->pages.empty() != (made == S_FALSE))
        contract_.breach("CreatePropertyPages does not say whether there are pages");
    frame_->hasPrimaryPages = true;
    return S_OK;
}

HRESULT WINAPI ConsoleObject::AddExtensionPages()
{
    if (!contract_.onThread("AddExtensionPages")) return RPC_E_WRONG_THREAD;
    if (!frame_) return refused("AddExtensionPages is called without CreatePropertySheet");
    return S_OK;
}

HRESULT WINAPI ConsoleObject::Show(LONG_PTR window, int page)
{
    if (!contract_.onThread("IPropertySheetProvider::Show")) return RPC_E_WRONG_THREAD;
    if (!frame_) return refused("Show is called without CreatePropertySheet");
    std::unique_ptr<SheetFrame> frame = std::move(frame_);
    if (window == -1) return S_OK; // how a snap-in lets a sheet go that it could not fill
    if (!frame->hasPrimaryPages || frame->pages.empty())
        return refused("Show is called for a sheet without pages", E_UNEXPECTED);
    if (page < 0 || page >= static_cast<int>(frame->pages.size()))
        return refused("Show is given a page that is not there");
    const auto owner = reinterpret_cast<HWND>(window);
    SheetRegister& sheets = console_.sheets();
    if (frame->wizard) {
        if (!IsWindow(owner)) return refused("a wizard has no window to stand before");
        return frame->run(sheets, owner, page) < 0 ? E_FAIL : S_OK;
    }
    // A data object belongs to the console's thread; the sheet's has no use for it.
    frame->object.release();
    sheets.start([&sheets, page, shared = std::shared_ptr<SheetFrame>(std::move(frame))] {
        shared->run(sheets, nullptr, page);
    });
    return S_OK;
}

HRESULT WINAPI ConsoleObject::AddPage(HPROPSHEETPAGE page)
{
    if (!contract_.onThread("AddPage")) return RPC_E_WRONG_THREAD;
    if (!frame_ || contract_.innermost() != "CreatePropertyPages")
        return refused("AddPage is called outside of CreatePropertyPages", E_UNEXPECTED);
    if (!page) return refused("AddPage is given no page");
    if (std::find(frame_->pages.begin(), frame_->pages.end(), page) != frame_->pages.end())
        return refused("AddPage is given a page twice");
    frame_->pages.push_back(page);
    return S_OK;
}

HRESULT WINAPI ConsoleObject::RemovePage(HPROPSHEETPAGE page)
{
    if (!contract_.onThread("RemovePage")) return RPC_E_WRONG_THREAD;
    if (!frame_ || std::erase(frame_->pages, page) == 0)
        return refused("RemovePage is given a page that is not there");
    DestroyPropertySheetPage(page);
    return S_OK;
}

} // namespace stand_in
