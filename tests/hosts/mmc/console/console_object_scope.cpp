#include "hosts/mmc/console/console.h"
#include "hosts/mmc/console/console_object.h"
#include "hosts/mmc/console/wide_text.h"

namespace stand_in {

namespace {

constexpr DWORD placeBits = SDI_PREVIOUS | SDI_NEXT | SDI_FIRST;
constexpr DWORD memberBits =
    SDI_STR | SDI_IMAGE | SDI_OPENIMAGE | SDI_STATE | SDI_PARAM | SDI_CHILDREN;

bool isTextByCall(const wchar_t* text)
{
    return reinterpret_cast<LONG_PTR>(text) == -1;
}

void take(ScopeNode& node, const SCOPEDATAITEM& item)
{
    if (item.mask & SDI_STR) {
        node.textByCall = isTextByCall(item.displayname);
        node.text = node.textByCall ? "" : narrow(item.displayname);
    }
    if (item.mask & SDI_IMAGE) node.image = item.nImage;
    if (item.mask & SDI_OPENIMAGE) node.openImage = item.nOpenImage;
    if (item.mask & SDI_PARAM) node.cookie = item.lParam;
    if (item.mask & SDI_CHILDREN) node.childrenTold = item.cChildren;
}

} // namespace

/// What inserting and setting have in common: known bits, a text, images that are there.
bool ConsoleObject::checkMask(const SCOPEDATAITEM& item, const char* method)
{
    const std::string name = method;
    if ((item.mask & ~(placeBits | memberBits)) != 0) {
        contract_.breach(name + " is given bits of a mask that mean nothing");
        return false;
    }
    if ((item.mask & SDI_STR) && !item.displayname) {
        contract_.breach(name + " is given SDI_STR without a text");
        return false;
    }
    const auto known = [&](int image) {
        return image == MMC_IMAGECALLBACK || console_.scopeImages().has(image);
    };
    if (((item.mask & SDI_IMAGE) && !known(item.nImage)) ||
        ((item.mask & SDI_OPENIMAGE) && !known(item.nOpenImage))) {
        contract_.breach(name + " is given an image that was never added");
        return false;
    }
    return true;
}

HRESULT WINAPI ConsoleObject::InsertItem(LPSCOPEDATAITEM item)
{
    if (!contract_.onThread("IConsoleNameSpace2::InsertItem")) return RPC_E_WRONG_THREAD;
    if (!item) return refused("InsertItem is given a null pointer", E_POINTER);
    if (!checkMask(*item, "InsertItem")) return E_INVALIDARG;
    ScopeTree& tree = console_.tree();
    ScopeNode* relative = tree.find(item->relativeID);
    if (!relative) return refused("InsertItem is given a relative that is not in the tree");
    const DWORD place = item->mask & placeBits;
    const bool besides = place == SDI_PREVIOUS || place == SDI_NEXT;
    ScopeNode* parent = besides ? tree.find(relative->parent) : relative;
    if (!parent || (place & (place - 1)) != 0)
        return refused("InsertItem is given a place that is none");
    if (!parent->expandedOnce)
        return refused("InsertItem is called for a parent that was never opened", E_UNEXPECTED);
    if (!(item->mask & SDI_STR)) return refused("InsertItem is called without a text");
    if (!(item->mask & SDI_PARAM)) return refused("InsertItem is called without a cookie");
    if (tree.hasCookie(item->lParam)) contract_.breach("two items of the tree have one cookie");
    std::size_t position = parent->children.size();
    if (place == SDI_FIRST) position = 0;
    if (place == SDI_PREVIOUS) position = tree.positionOf(*relative) + 1;
    if (place == SDI_NEXT) position = tree.positionOf(*relative);
    ScopeNode& made = tree.insert(parent->handle, position);
    take(made, *item);
    item->ID = made.handle;
    return S_OK;
}

HRESULT WINAPI ConsoleObject::DeleteItem(HSCOPEITEM handle, __LONG32 itself)
{
    if (!contract_.onThread("IConsoleNameSpace2::DeleteItem")) return RPC_E_WRONG_THREAD;
    if (!console_.tree().find(handle))
        return refused("DeleteItem is given an item that is not in the tree");
    if (itself && handle == console_.tree().root())
        return refused("DeleteItem is given the static node, which is the console's");
    console_.nodeLeaves(handle, itself != 0);
    return S_OK;
}

HRESULT WINAPI ConsoleObject::SetItem(LPSCOPEDATAITEM item)
{
    if (!contract_.onThread("IConsoleNameSpace2::SetItem")) return RPC_E_WRONG_THREAD;
    if (!item) return refused("SetItem is given a null pointer", E_POINTER);
    ScopeNode* node = console_.tree().find(item->ID);
    if (!node) return refused("SetItem is given an item that is not in the tree");
    if (item->mask & placeBits) return refused("SetItem is given a place");
    if (!checkMask(*item, "SetItem")) return E_INVALIDARG;
    take(*node, *item);
    ++node->changes;
    return S_OK;
}

HRESULT WINAPI ConsoleObject::GetItem(LPSCOPEDATAITEM item)
{
    if (!contract_.onThread("IConsoleNameSpace2::GetItem")) return RPC_E_WRONG_THREAD;
    if (!item) return refused("GetItem is given a null pointer", E_POINTER);
    const ScopeNode* node = console_.tree().find(item->ID);
    if (!node) return refused("GetItem is given an item that is not in the tree");
    if (item->mask & SDI_STR) return refused("GetItem is asked for a text, which is not kept");
    item->nImage = node->image;
    item->nOpenImage = node->openImage;
    item->nState = node->expandedOnce ? MMC_SCOPE_ITEM_STATE_EXPANDEDONCE : 0;
    item->cChildren = node->childrenTold;
    item->lParam = node->cookie;
    return S_OK;
}

HRESULT WINAPI ConsoleObject::GetChildItem(HSCOPEITEM handle, HSCOPEITEM* child, MMC_COOKIE* cookie)
{
    if (!contract_.onThread("GetChildItem")) return RPC_E_WRONG_THREAD;
    const ScopeNode* node = console_.tree().find(handle);
    if (!node || !child) return refused("GetChildItem is given an item that is not in the tree");
    *child = node->children.empty() ? 0 : node->children.front();
    if (!*child) return S_FALSE;
    if (cookie) *cookie = console_.tree().find(*child)->cookie;
    return S_OK;
}

HRESULT WINAPI ConsoleObject::GetNextItem(HSCOPEITEM handle, HSCOPEITEM* next, MMC_COOKIE* cookie)
{
    if (!contract_.onThread("GetNextItem")) return RPC_E_WRONG_THREAD;
    const ScopeNode* node = console_.tree().find(handle);
    if (!node || !next) return refused("GetNextItem is given an item that is not in the tree");
    *next = 0;
    const ScopeNode* parent = console_.tree().find(node->parent);
    if (!parent) return S_FALSE;
    const std::size_t position = console_.tree().positionOf(*node) + 1;
    if (position >= parent->children.size()) return S_FALSE;
    *next = parent->children[position];
    if (cookie) *cookie = console_.tree().find(*next)->cookie;
    return S_OK;
}

HRESULT WINAPI ConsoleObject::GetParentItem(HSCOPEITEM handle, HSCOPEITEM* parent,
                                            MMC_COOKIE* cookie)
{
    if (!contract_.onThread("GetParentItem")) return RPC_E_WRONG_THREAD;
    const ScopeNode* node = console_.tree().find(handle);
    if (!node || !parent) return refused("GetParentItem is given an item that is not in the tree");
    *parent = node->parent;
    if (!node->parent) return S_FALSE;
    if (cookie) *cookie = console_.tree().find(node->parent)->cookie;
    return S_OK;
}

HRESULT WINAPI ConsoleObject::Expand(HSCOPEITEM handle)
{
    if (!contract_.onThread("IConsoleNameSpace2::Expand")) return RPC_E_WRONG_THREAD;
    ScopeNode* node = console_.tree().find(handle);
    if (!node)
        return refused("IConsoleNameSpace2::Expand is given an item that is not in the tree");
    if (node->expandedOnce) return S_FALSE;
    console_.expand(handle);
    return S_OK;
}

HRESULT WINAPI ConsoleObject::AddExtension(HSCOPEITEM, LPCLSID)
{
    return contract_.onThread("AddExtension") ? E_NOTIMPL : RPC_E_WRONG_THREAD;
}

} // namespace stand_in
