#include "hosts/mmc/about.h"

#include "hosts/mmc/com/call_guard.h"
#include "hosts/mmc/com/task_text.h"

namespace mmc {

namespace {

/// The colour of a bitmap's upper left pixel, for which what lies behind is seen.
COLORREF cornerOf(HBITMAP bitmap)
{
    HDC memory = CreateCompatibleDC(nullptr);
    HGDIOBJ before = SelectObject(memory, bitmap);
    const COLORREF colour = GetPixel(memory, 0, 0);
    SelectObject(memory, before);
    DeleteDC(memory);
    return colour;
}

} // namespace

About::~About()
{
    DeleteObject(small_);
    DeleteObject(large_);
}

HRESULT About::answer(LPOLESTR* asked, std::string SnapInIdentity::*text) const
{
    return guarded([&]() -> HRESULT {
        if (!asked) return E_POINTER;
        *asked = nullptr;
        *asked = taskText(snapIn_.identity().*text);
        return S_OK;
    });
}

HRESULT WINAPI About::GetSnapinDescription(LPOLESTR* description)
{
    return answer(description, &SnapInIdentity::description);
}

HRESULT WINAPI About::GetProvider(LPOLESTR* provider)
{
    return answer(provider, &SnapInIdentity::provider);
}

HRESULT WINAPI About::GetSnapinVersion(LPOLESTR* version)
{
    return answer(version, &SnapInIdentity::version);
}

HRESULT WINAPI About::GetSnapinImage(HICON* icon)
{
    if (!icon) return E_POINTER;
    *icon = nullptr;
    const SnapInResources& resources = snapIn_.resources;
    if (resources.icon != 0) *icon = LoadIconW(resources.module, MAKEINTRESOURCEW(resources.icon));
    return *icon ? S_OK : S_FALSE;
}

HRESULT WINAPI About::GetStaticFolderImage(HBITMAP* small, HBITMAP* smallOpen, HBITMAP* large,
                                           COLORREF* transparent)
{
    if (!small || !smallOpen || !large || !transparent) return E_POINTER;
    if (!small_) small_ = load(snapIn_.resources.smallImage);
    if (!large_) large_ = load(snapIn_.resources.largeImage);
    *small = *smallOpen = small_;
    *large = large_;
    *transparent = small_ ? cornerOf(small_) : RGB(0, 0, 0);
    return small_ && large_ ? S_OK : S_FALSE;
}

HBITMAP About::load(WORD id) const
{
    if (id == 0) return nullptr;
    return static_cast<HBITMAP>(
        LoadImageW(snapIn_.resources.module, MAKEINTRESOURCEW(id), IMAGE_BITMAP, 0, 0, 0));
}

} // namespace mmc
