#include "hosts/mmc/console/image_list.h"

namespace stand_in {

bool ImageList::isFillTime(const char* method)
{
    if (!contract_.onThread(method)) return false;
    if (contract_.innermost() == fillTime_) return true;
    contract_.breach(std::string(method) + " is called outside of " + fillTime_);
    return false;
}

HRESULT WINAPI ImageList::ImageListSetIcon(LONG_PTR* icon, __LONG32 number)
{
    if (!isFillTime("ImageListSetIcon")) return E_UNEXPECTED;
    ICONINFO known;
    if (number < 0 || !GetIconInfo(reinterpret_cast<HICON>(icon), &known)) {
        contract_.breach("ImageListSetIcon is given no icon, or a number below 0");
        return E_INVALIDARG;
    }
    DeleteObject(known.hbmColor);
    DeleteObject(known.hbmMask);
    numbers_.insert(static_cast<int>(number));
    return S_OK;
}

HRESULT WINAPI ImageList::ImageListSetStrip(LONG_PTR* small, LONG_PTR* large, __LONG32 first,
                                            COLORREF)
{
    if (!isFillTime("ImageListSetStrip")) return E_UNEXPECTED;
    BITMAP narrowStrip{};
    BITMAP wideStrip{};
    GetObjectW(reinterpret_cast<HBITMAP>(small), sizeof narrowStrip, &narrowStrip);
    GetObjectW(reinterpret_cast<HBITMAP>(large), sizeof wideStrip, &wideStrip);
    const int images = narrowStrip.bmWidth / 16;
    if (first < 0 || images < 1 || narrowStrip.bmHeight != 16 || wideStrip.bmHeight != 32 ||
        wideStrip.bmWidth != images * 32) {
        contract_.breach("ImageListSetStrip is not given strips of 16 and of 32 pixels");
        return E_INVALIDARG;
    }
    for (int image = 0; image < images; ++image) numbers_.insert(static_cast<int>(first) + image);
    return S_OK;
}

} // namespace stand_in
