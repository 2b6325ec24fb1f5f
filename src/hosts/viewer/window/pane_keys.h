#pragma once

#include "hosts/common/look/key_list.h"

#include <QCoreApplication>

#include <vector>

namespace viewer {

/// The keys of the window's panes that stand in no menu.
class PaneKeys {
    Q_DECLARE_TR_FUNCTIONS(PaneKeys)

public:
    /// By pane, in the interface language.
    static std::vector<KeyList::Group> groups();

private:
    static KeyList::Group rows();
    static KeyList::Group values();
    static KeyList::Group bars();
    static KeyList::Group call();
    static KeyList::Group lists();
};

} // namespace viewer
