#include "hosts/mmc/console/menu_list.h"

#include "hosts/mmc/console/wide_text.h"

#include <algorithm>

namespace stand_in {

void MenuList::collect(IUnknown* owner, IDataObject* object, __LONG32 allowed)
{
    const auto menu = asked<IExtendContextMenu>(owner, iid::extendContextMenu);
    if (!menu) return;
    owner_ = owner;
    allowed_ = allowed;
    __LONG32 given = allowed;
    const HRESULT result =
        contract_.call("AddMenuItems", [&] { return menu->AddMenuItems(object, this, &given); });
    if (FAILED(result)) contract_.breach("AddMenuItems failed");
    owner_ = nullptr;
}

HRESULT MenuList::refused(const std::string& why)
{
    contract_.breach("a menu item " + why);
    return E_INVALIDARG;
}

bool MenuList::isOpenPoint(__LONG32 point) const
{
    if (std::find(ownPoints_.begin(), ownPoints_.end(), point) != ownPoints_.end()) return true;
    const auto number = static_cast<unsigned __LONG32>(point);
    if (number < static_cast<unsigned __LONG32>(CCM_INSERTIONPOINTID_PRIMARY_TOP) ||
        number > static_cast<unsigned __LONG32>(CCM_INSERTIONPOINTID_PRIMARY_VIEW))
        return false;
    return (allowed_ & (1 << (number & CCM_INSERTIONPOINTID_MASK_FLAGINDEX))) != 0;
}

HRESULT WINAPI MenuList::AddItem(CONTEXTMENUITEM* item)
{
    if (!contract_.onThread("AddItem")) return E_UNEXPECTED;
    if (!owner_ || contract_.innermost() != "AddMenuItems")
        return refused("is added outside of AddMenuItems");
    if (!item) {
        refused("is a null pointer");
        return E_POINTER;
    }
    const std::string caption = narrow(item->strName);
    if (!isOpenPoint(item->lInsertionPointID))
        return refused("\"" + caption + "\" is inserted where it is not allowed");
    if ((item->fFlags & (MF_OWNERDRAW | MF_BITMAP)) != 0)
        return refused("\"" + caption + "\" is to be drawn by the snap-in");
    const bool separator =
        (item->fFlags & MF_SEPARATOR) != 0 || (item->fSpecialFlags & CCM_SPECIAL_SEPARATOR) != 0;
    if (separator) return S_OK;
    const bool submenu = (item->fSpecialFlags & CCM_SPECIAL_SUBMENU) != 0;
    if (submenu && (item->fFlags & MF_POPUP) == 0)
        return refused("\"" + caption + "\" is a submenu without MF_POPUP");
    if (submenu || (item->fSpecialFlags & CCM_SPECIAL_INSERTION_POINT) != 0) {
        ownPoints_.push_back(item->lCommandID);
        return S_OK;
    }
    if (caption.empty()) return refused("has no text");
    if ((static_cast<unsigned __LONG32>(item->lCommandID) &
         static_cast<unsigned __LONG32>(CCM_COMMANDID_MASK_RESERVED)) != 0)
        return refused("\"" + caption + "\" has a number that is reserved");
    for (const MenuItem& other : items_)
        if (other.owner == owner_ && other.command == item->lCommandID)
            return refused("\"" + caption + "\" has the number of another");
    items_.push_back({caption, narrow(item->strStatusBarText), item->lCommandID,
                      item->lInsertionPointID, (item->fFlags & (MF_GRAYED | MF_DISABLED)) == 0,
                      (item->fFlags & MF_CHECKED) != 0, owner_});
    return S_OK;
}

} // namespace stand_in
