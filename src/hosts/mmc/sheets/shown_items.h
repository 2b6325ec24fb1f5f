#pragma once

#include "controls/list_box.h"
#include "system/windows/windows_calls.h"

#include <string>
#include <vector>

namespace mmc {

inline std::vector<std::wstring> wideItems(const ListControl& list)
{
    std::vector<std::wstring> items;
    for (const std::string& item : list.items()) items.push_back(wideOf(item));
    return items;
}

/// The texts in a window's list, given anew only where they are other ones: a long list keeps its
/// place so.
class ShownItems {
public:
    void show(HWND window, const std::vector<std::wstring>& items, UINT clear, UINT add)
    {
        if (items == shown_) return;
        shown_ = items;
        SendMessageW(window, WM_SETREDRAW, FALSE, 0);
        SendMessageW(window, clear, 0, 0);
        for (const std::wstring& item : items)
            SendMessageW(window, add, 0, reinterpret_cast<LPARAM>(item.c_str()));
        SendMessageW(window, WM_SETREDRAW, TRUE, 0);
        InvalidateRect(window, nullptr, TRUE);
    }

    const std::vector<std::wstring>& texts() const { return shown_; }

private:
    std::vector<std::wstring> shown_;
};

} // namespace mmc
