#pragma once

#include "hosts/mmc/sheets/native_sheet.h"

#include <memory>

namespace mmc {

/// What a page's window is sent by us and by the newer ones of the systems.
namespace pageMessage {
constexpr UINT updateLater = WM_APP + 1;
constexpr UINT drawNow = WM_APP + 2;
constexpr UINT anotherDensity = 0x02E3; ///< the window came to another screen with its parent
} // namespace pageMessage

/// What a page of the system's keeps alive.
struct PageHold {
    std::shared_ptr<NativeSheet> sheet;
    SheetPageWindow* page;
};

} // namespace mmc
