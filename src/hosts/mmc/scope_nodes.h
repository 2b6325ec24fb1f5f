#pragma once

#include "console/scope_tree.h"
#include "hosts/mmc/com/com_pointer.h"
#include "hosts/mmc/snap_in.h"

#include <map>
#include <memory>
#include <string>
#include <vector>

namespace mmc {

/// The model's tree in the console's: which node of the one is which of the other.
///
/// The console asks for nodes by cookies, 0 for the root. It takes nodes below one that it has
/// opened alone; what the model has besides waits until then.
class ScopeNodes {
public:
    explicit ScopeNodes(const SnapIn& snapIn) : snapIn_(snapIn) {}

    /// From here on changes are brought to the console.
    void connect(ComPointer<IConsoleNameSpace2> names, ScopeItem& root);
    void disconnect();

    /// Gives an item a cookie when it is first asked for.
    MMC_COOKIE cookieOf(ScopeItem& item);

    /// Null for a cookie that stands for nothing, or nothing any more.
    std::shared_ptr<ScopeItem> itemOf(MMC_COOKIE cookie) const;

    /// 0 where the console does not know the item.
    HSCOPEITEM handleOf(ScopeItem& item);

    /// The console told by which handle it knows an item.
    void known(ScopeItem& item, HSCOPEITEM handle);

    /// The console opened a node, and takes what lies below it.
    void opened(ScopeItem& item, HSCOPEITEM handle);

    /// The console has let go of what lay below a node.
    void emptied(ScopeItem& item);

    /// Makes the console know an item, with those above it. False where it refuses one of them.
    bool bringIn(ScopeItem& item);

    /// Brings to the console whether there is something to open below an item.
    void renewChildren(ScopeItem& item);

    // What the model tells.
    void added(ScopeItem& item);
    void changed(ScopeItem& item);
    void removed(ScopeItem& item);

    /// Answers what the console asks about a node. False for a cookie that stands for nothing.
    bool describe(SCOPEDATAITEM& asked);

    /// The number of an item's image; -1 for none.
    int imageOf(const ScopeItem& item) const;

private:
    struct Node {
        std::weak_ptr<ScopeItem> item;
        MMC_COOKIE parent = 0;
        HSCOPEITEM handle = 0;
        bool inserted = false;
        bool opened = false;
        bool opensTold = false;
        std::wstring text; ///< handed out; it holds until it is asked for again
    };

    Node& nodeOf(ScopeItem& item) { return nodes_[cookieOf(item)]; }
    void insert(ScopeItem& item);
    void tell(Node& node, SCOPEDATAITEM& data);

    const SnapIn& snapIn_;
    ComPointer<IConsoleNameSpace2> names_; ///< null while not connected
    std::map<MMC_COOKIE, Node> nodes_;
    std::map<const ScopeItem*, MMC_COOKIE> cookies_;
    MMC_COOKIE lastCookie_ = 0;
};

} // namespace mmc
