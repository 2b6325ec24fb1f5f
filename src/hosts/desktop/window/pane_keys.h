#pragma once

#include "hosts/common/look/key_list.h"

#include <QCoreApplication>

#include <vector>

namespace desktop {

/// The keys of the window's lists and pages that stand in no menu.
class PaneKeys {
    Q_DECLARE_TR_FUNCTIONS(PaneKeys)

public:
    /// In the interface language.
    static std::vector<KeyList::Group> groups();
};

} // namespace desktop
