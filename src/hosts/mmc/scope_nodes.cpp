#include "hosts/mmc/scope_nodes.h"

#include "system/windows/windows_calls.h"

#include <algorithm>
#include <utility>

namespace mmc {

namespace {

constexpr MMC_COOKIE rootCookie = 0;

/// In the place of a text: the console asks for it when it shows it.
LPOLESTR askedWhenShown()
{
    return reinterpret_cast<LPOLESTR>(static_cast<LONG_PTR>(-1));
}

/// An item without an image gets the console's own.
void addImage(SCOPEDATAITEM& data, int image)
{
    if (image < 0) return;
    data.mask |= SDI_IMAGE | SDI_OPENIMAGE;
    data.nImage = data.nOpenImage = image;
}

} // namespace

void ScopeNodes::connect(ComPointer<IConsoleNameSpace2> names, ScopeItem& root)
{
    names_ = std::move(names);
    cookieOf(root);
}

void ScopeNodes::disconnect()
{
    names_.reset();
    nodes_.clear();
    cookies_.clear();
}

MMC_COOKIE ScopeNodes::cookieOf(ScopeItem& item)
{
    const auto known = cookies_.find(&item);
    if (known != cookies_.end()) return known->second;
    const bool isRoot = item.inTree() && !item.parent();
    const MMC_COOKIE cookie = isRoot ? rootCookie : ++lastCookie_;
    cookies_[&item] = cookie;
    Node& node = nodes_[cookie];
    node.item = item.weak_from_this();
    node.opensTold = isRoot;
    if (item.parent()) node.parent = cookieOf(*item.parent());
    return cookie;
}

std::shared_ptr<ScopeItem> ScopeNodes::itemOf(MMC_COOKIE cookie) const
{
    const auto found = nodes_.find(cookie);
    return found == nodes_.end() ? nullptr : found->second.item.lock();
}

HSCOPEITEM ScopeNodes::handleOf(ScopeItem& item)
{
    return nodeOf(item).handle;
}

/// The console makes the root itself, with the name that it found then; the snap-in may have given
/// it another one since.
void ScopeNodes::known(ScopeItem& item, HSCOPEITEM handle)
{
    Node& node = nodeOf(item);
    const bool news = std::exchange(node.handle, handle) != handle;
    node.inserted = true;
    if (news && !item.parent()) changed(item);
}

void ScopeNodes::opened(ScopeItem& item, HSCOPEITEM handle)
{
    known(item, handle);
    nodeOf(item).opened = true;
    // A copy, as the console may come back with something else at each insertion.
    const std::vector<ScopeItem*> children = item.children();
    for (ScopeItem* child : children)
        if (const auto& now = item.children();
            std::find(now.begin(), now.end(), child) != now.end())
            insert(*child);
}

void ScopeNodes::emptied(ScopeItem& item)
{
    nodeOf(item).opened = false;
    for (ScopeItem* child : item.children()) {
        Node& node = nodeOf(*child);
        node.inserted = false;
        node.handle = 0;
        emptied(*child);
    }
}

bool ScopeNodes::bringIn(ScopeItem& item)
{
    if (nodeOf(item).inserted) return nodeOf(item).handle != 0;
    ScopeItem* parent = item.parent();
    if (!names_ || !parent || !bringIn(*parent)) return false;
    // The console asks for what lies below, in the call or soon.
    if (!nodeOf(*parent).opened) names_->Expand(nodeOf(*parent).handle);
    if (nodeOf(*parent).opened) insert(item);
    return nodeOf(item).inserted;
}

void ScopeNodes::insert(ScopeItem& item)
{
    const MMC_COOKIE cookie = cookieOf(item);
    if (!names_ || nodes_[cookie].inserted || !item.parent()) return;
    const Node& parent = nodeOf(*item.parent());
    if (!parent.opened) return;
    SCOPEDATAITEM data{};
    data.mask = SDI_STR | SDI_CHILDREN | SDI_PARAM | SDI_PARENT;
    data.displayname = askedWhenShown();
    addImage(data, imageOf(item));
    data.cChildren = item.hasChildren() ? 1 : 0;
    data.lParam = cookie;
    data.relativeID = parent.handle;
    // Before the call, as the console may ask for the node in it.
    nodes_[cookie].inserted = true;
    nodes_[cookie].opensTold = item.hasChildren();
    const HRESULT result = names_->InsertItem(&data);
    const auto inserted = nodes_.find(cookie);
    if (inserted == nodes_.end()) return;
    inserted->second.inserted = SUCCEEDED(result);
    if (SUCCEEDED(result)) inserted->second.handle = data.ID;
}

void ScopeNodes::tell(Node& node, SCOPEDATAITEM& data)
{
    if (!names_ || !node.inserted || node.handle == 0) return;
    data.ID = node.handle;
    names_->SetItem(&data);
}

void ScopeNodes::renewChildren(ScopeItem& item)
{
    Node& node = nodeOf(item);
    const bool opens = item.hasChildren();
    if (!node.inserted || std::exchange(node.opensTold, opens) == opens) return;
    SCOPEDATAITEM data{};
    data.mask = SDI_CHILDREN;
    data.cChildren = opens ? 1 : 0;
    tell(node, data);
}

void ScopeNodes::added(ScopeItem& item)
{
    insert(item);
    if (item.parent()) renewChildren(*item.parent());
}

void ScopeNodes::changed(ScopeItem& item)
{
    Node& node = nodeOf(item);
    SCOPEDATAITEM data{};
    data.mask = SDI_STR;
    std::wstring name = wideOf(item.displayName());
    if (item.parent()) {
        data.displayname = askedWhenShown();
        addImage(data, imageOf(item));
    } else {
        // The root's node is the console's own: it asks for no text, and has an image.
        data.displayname = name.data();
    }
    tell(node, data);
}

/// The cookie goes last: while the console takes the node out, it asks for its data object to tell
/// that it is not on show any more.
void ScopeNodes::removed(ScopeItem& item)
{
    const auto known = cookies_.find(&item);
    if (known == cookies_.end()) return;
    const MMC_COOKIE cookie = known->second;
    const Node node = nodes_[cookie];
    constexpr long itselfToo = TRUE;
    if (names_ && node.inserted && node.handle != 0) names_->DeleteItem(node.handle, itselfToo);
    nodes_.erase(cookie);
    cookies_.erase(&item);
    if (const auto parent = itemOf(node.parent)) renewChildren(*parent);
}

bool ScopeNodes::describe(SCOPEDATAITEM& asked)
{
    const auto item = itemOf(asked.lParam);
    if (!item) return false;
    if (asked.mask & SDI_STR) {
        Node& node = nodeOf(*item);
        node.text = wideOf(item->displayName());
        asked.displayname = node.text.data();
    }
    const int image = imageOf(*item);
    if (asked.mask & SDI_IMAGE && image >= 0) asked.nImage = image;
    if (asked.mask & SDI_OPENIMAGE && image >= 0) asked.nOpenImage = image;
    if (asked.mask & SDI_CHILDREN) asked.cChildren = item->hasChildren() ? 1 : 0;
    return true;
}

int ScopeNodes::imageOf(const ScopeItem& item) const
{
    if (snapIn_.resources.scopeImages == 0) return -1;
    const auto& names = snapIn_.imageNames;
    const auto found = std::find(names.begin(), names.end(), item.image());
    return found == names.end() ? -1 : static_cast<int>(found - names.begin());
}

} // namespace mmc
