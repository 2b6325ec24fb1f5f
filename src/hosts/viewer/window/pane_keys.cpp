#include "hosts/viewer/window/pane_keys.h"

namespace viewer {

std::vector<KeyList::Group> PaneKeys::groups()
{
    return {rows(), values(), bars(), call(), lists()};
}

KeyList::Group PaneKeys::rows()
{
    return {tr("In the rows"),
            {{tr("First and last row"), tr("Home, End"),
              tr("End stays at the end of logs that are followed")},
             {tr("Select"), tr("Shift+Up, Shift+Down"), tr("Selects rows from the current one on")},
             {tr("Sideways"), tr("Left, Right"), tr("Shows the rest of long rows")},
             {tr("Menu of the row"), tr("Menu"), tr("What can be done with the current row")}}};
}

KeyList::Group PaneKeys::values()
{
    return {tr("In the values"),
            {{tr("Tick"), tr("Space"), tr("Shows or hides the rows of the value")},
             {tr("Only This"), tr("Enter"), tr("Shows the rows of the value alone, or all again")},
             {tr("Open or close a group"), tr("Right, Left"), tr("Such as all components")}}};
}

KeyList::Group PaneKeys::bars()
{
    return {tr("In the bars of find and filter"),
            {{tr("Next and previous hit"), tr("Enter, Shift+Enter"), tr("In the text to find")},
             {tr("Close find"), tr("Esc"), tr("Ends the marks of the text, but for those kept")},
             {tr("Back to the rows"), tr("Enter, Esc"), tr("In the texts of the filter")}}};
}

KeyList::Group PaneKeys::call()
{
    return {tr("In the lanes of a call"),
            {{tr("Line before and after"), tr("Left, Right"), tr("In all lanes, by time")},
             {tr("Within the lane"), tr("Ctrl+Left, Ctrl+Right"),
              tr("The line before and after of the same process")},
             {tr("Other lane"), tr("Up, Down"), tr("The line of another process that is nearest")},
             {tr("First and last line"), tr("Home, End"), tr("Of the call; with Ctrl of the lane")},
             {tr("Zoom"), tr("Plus, Minus, 0"), tr("0 shows the whole call")},
             {tr("Go to the row"), tr("Enter"), tr("Shows the line among all rows")},
             {tr("Back to the rows"), tr("Esc"), tr("The lanes stay open")}}};
}

KeyList::Group PaneKeys::lists()
{
    return {tr("In the lists of calls and bookmarks"),
            {{tr("Open"), tr("Enter"), tr("Shows the lanes of the call, or the row of the mark")},
             {tr("Remove a mark"), tr("Del"), tr("In the list of bookmarks and notes")},
             {tr("Back to the rows"), tr("Esc"), tr("In the list of calls; it stays open")}}};
}

} // namespace viewer
