#pragma once

#include "hosts/cli/driving/wizard_driver.h"

#include <string>
#include <vector>

namespace cli {

/// What a command is to turn on and off, each a `Name` of the command's own.
template <typename Name>
struct TraceChoice {
    std::vector<Name> on;
    std::vector<Name> off;

    bool empty() const { return on.empty() && off.empty(); }

    /// Calls `visit` with each name, which it may write otherwise.
    template <typename Visit>
    void forEach(Visit visit)
    {
        for (auto* names : {&on, &off})
            for (auto& name : *names) visit(name);
    }

    /// Calls `visit` with each name.
    template <typename Visit>
    void forEach(Visit visit) const
    {
        for (const auto* names : {&on, &off})
            for (const auto& name : *names) visit(name);
    }

    /// The first of `on` that `off` has, too, as `same` tells; null where none is.
    template <typename Same>
    const Name* contradiction(Same same) const
    {
        for (const auto& name : on)
            for (const auto& other : off)
                if (same(name, other)) return &name;
        return nullptr;
    }

    /// Clears and then ticks the nodes of a wizard's tree once all of them are found: `nodeOf`
    /// gives that of a name, or raises.
    template <typename NodeOf>
    void make(WizardDriver& wizard, TreeView& tree, NodeOf nodeOf) const
    {
        forEach([&](const Name& name) { nodeOf(tree, name); });
        for (const auto& name : off) wizard.choose(tree, nodeOf(tree, name), false);
        for (const auto& name : on) wizard.choose(tree, nodeOf(tree, name), true);
    }
};

} // namespace cli
