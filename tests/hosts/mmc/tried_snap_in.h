#pragma once

#include "console/console.h"
#include "hosts/mmc/snap_in.h"
#include "runtime/run_time_error.h"

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace mmc {

/// A small snap-in whose commands do what a test wants, and what became of it.
///
/// Its root shows two tasks, "First" and "Second". Below it are the groups "one" and "two", which
/// show the nodes below them, and below each group a leaf with rows of its own.
struct TriedSnapIn {
    TriedSnapIn();

    /// What the menu's command "Work" does.
    std::function<void(Console& model)> work = [](Console&) {};

    /// What opening the tool raises; nothing for 0.
    int openingFails = 0;
    std::string complaint;
    ToolLanguages languages;

    /// Gives the turn of a change.
    std::function<std::shared_ptr<const void>()> takeTurn = [] { return nullptr; };

    Desktop* desktop = nullptr;    ///< of the tool that was opened last
    std::vector<std::string> told; ///< what the model was told, such as "expand one"
    int unloaded = 0;
    int toolsAlive = 0;
    int cancelled = 0;

    SnapInDefinition definition;
    SnapIn snapIn{};
};

} // namespace mmc
