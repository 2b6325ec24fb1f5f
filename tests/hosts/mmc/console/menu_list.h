#pragma once

#include "hosts/mmc/console/guids.h"
#include "hosts/mmc/console/handed.h"

#include <string>
#include <vector>

namespace stand_in {

/// What a person can choose in a context menu.
struct MenuItem {
    std::string caption;
    std::string statusText;
    __LONG32 command = 0;
    __LONG32 point = 0; ///< where it stands, as one of `CCM_INSERTIONPOINTID_PRIMARY_...`
    bool enabled = true;
    bool checked = false;
    IUnknown* owner = nullptr; ///< the object of the snap-in that added it; no reference
};

/// A context menu while a snap-in adds to it.
class MenuList final : public Handed<IContextMenuCallback> {
public:
    explicit MenuList(Contract& contract) : Handed(contract) {}

    /// Has an object of the snap-in add its items where `allowed` (`CCM_INSERTIONALLOWED_...`) lets
    /// it. Objects without context menus add none.
    void collect(IUnknown* owner, IDataObject* object, __LONG32 allowed);

    const std::vector<MenuItem>& items() const { return items_; }

    HRESULT WINAPI AddItem(CONTEXTMENUITEM* item) override;

private:
    void* interfaceOf(REFIID id) override
    {
        return id == IID_IUnknown || id == iid::contextMenuCallback
                   ? static_cast<IContextMenuCallback*>(this)
                   : nullptr;
    }
    HRESULT refused(const std::string& why);
    bool isOpenPoint(__LONG32 point) const;

    std::vector<MenuItem> items_;
    std::vector<__LONG32> ownPoints_; ///< of submenus and points that the snap-in added
    IUnknown* owner_ = nullptr;
    __LONG32 allowed_ = 0;
};

} // namespace stand_in
