#include "hosts/desktop/window/pane_keys.h"

namespace desktop {

std::vector<KeyList::Group> PaneKeys::groups()
{
    return {
        {tr("In lists and pages"),
         {{tr("Open"), tr("Enter"), tr("Opens the log or the node of the current row")},
          {tr("Open or close a node"), tr("Right, Left"), tr("In a tree")},
          {tr("Tick"), tr("Space"), tr("Ticks or clears the current node of a page's tree")},
          {tr("Help on a page"), QStringLiteral("F1"),
           tr("In a wizard or a sheet, and in the about box")},
          {tr("First and last row"), tr("Home, End"), tr("In a list")},
          {tr("Close find or filter"), tr("Esc"), tr("Closes the bar in which the cursor is")}}}};
}

} // namespace desktop
