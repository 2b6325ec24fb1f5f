#pragma once

#include "hosts/mmc/com/call_guard.h"
#include "hosts/mmc/com/com_object.h"
#include "hosts/mmc/menus.h"

#include <memory>

namespace mmc {

/// What the object of a console and those of its windows have in common: menus and the pages of
/// sheets.
template <typename... Interfaces>
class Extensions : public ComObject<Interfaces..., IExtendContextMenu, IExtendPropertySheet2> {
public:
    explicit Extensions(std::shared_ptr<Host> host) : host_(std::move(host)) {}

    HRESULT WINAPI AddMenuItems(IDataObject*, IContextMenuCallback* menu, long* allowed) override
    {
        return guarded([&]() -> HRESULT {
            if (!menu || !allowed) return E_POINTER;
            if (ResultPane* shown = pane()) addMenuItems(*host_, *shown, *menu, *allowed);
            return S_OK;
        });
    }
    HRESULT WINAPI Command(long number, IDataObject*) override
    {
        return guarded([&]() -> HRESULT {
            ResultPane* const shown = pane();
            return shown && runCommand(*host_, *shown, number) ? S_OK : S_FALSE;
        });
    }

    HRESULT WINAPI CreatePropertyPages(IPropertySheetCallback* callback, LONG_PTR,
                                       IDataObject*) override
    {
        return guarded([&]() -> HRESULT {
            if (!callback) return E_POINTER;
            return host_->sheets().addPages(*callback);
        });
    }

    /// Sheets are the snap-in's own; the console has none to open by itself.
    HRESULT WINAPI QueryPagesFor(IDataObject*) override
    {
        return host_->sheets().wantsPages() ? S_OK : S_FALSE;
    }
    HRESULT WINAPI GetWatermarks(IDataObject*, HBITMAP* watermark, HBITMAP* header,
                                 HPALETTE* palette, BOOL* stretch) override
    {
        if (!watermark || !header || !palette || !stretch) return E_POINTER;
        *watermark = nullptr;
        *header = nullptr;
        *palette = nullptr;
        *stretch = FALSE;
        return S_OK;
    }

protected:
    Host& host() const { return *host_; }

    /// The window that a command of the person's is for; null where there is none.
    virtual ResultPane* pane() = 0;

    std::shared_ptr<Host> host_;
};

} // namespace mmc
