#pragma once

#include "runtime/run_time_error.h"

#include <string>
#include <string_view>
#include <vector>

struct MenuItem {
    std::string name;
    std::string caption;
    std::string statusBarText;
    bool visible = true;
    bool enabled = true;
};

struct Menu {
    std::string name;
    std::string caption;
    std::vector<MenuItem> items;

    /// Raises 35601 for a name that is not there.
    MenuItem& item(std::string_view itemName)
    {
        for (auto& entry : items)
            if (entry.name == itemName) return entry;
        throw RunTimeError(runTimeErrors::keyNotFound);
    }
};

/// A menu of the console's that the snap-in adds its own to.
class ContextMenu {
public:
    /// The items of `menu`, as they stand now, become entries.
    void add(const Menu& menu)
    {
        entries_.insert(entries_.end(), menu.items.begin(), menu.items.end());
    }

    const std::vector<MenuItem>& entries() const { return entries_; }

private:
    std::vector<MenuItem> entries_;
};
