#include "hosts/desktop/window/commands.h"
#include "shell/snapin_names.h"

namespace desktop {

namespace {

struct ConsoleItem {
    const char* name;
    const char* key;
    const char* icon;
};

constexpr ConsoleItem consoleItems[] = {
    {snapinItem::configureMacroTrace, "Ctrl+1", "macro-traces"},
    {snapinItem::configureMicroTraces, "Ctrl+2", "micro-traces"},
    {snapinItem::disableAllTraces, "Ctrl+3", "reset"},
    {snapinItem::startNewLogFiles, "Ctrl+4", "new-logs"},
    {snapinItem::gatherLogFiles, "Ctrl+5", "gather"},
    {snapinItem::configureLogSettings, "Ctrl+6", "settings"},
    {snapinItem::openLogFile, "Ctrl+O", "open-log"},
    {snapinItem::changeLanguage, "Ctrl+7", "language"},
};

} // namespace

const std::vector<MenuInfo>& Commands::menus()
{
    using M = CommandMenu;
    static const std::vector<MenuInfo> infos = {
        {M::file, QT_TR_NOOP("&File")}, {M::action, QT_TR_NOOP("&Action")},
        {M::edit, QT_TR_NOOP("&Edit")}, {M::log, QT_TR_NOOP("&Log")},
        {M::view, QT_TR_NOOP("&View")}, {M::theme, QT_TR_NOOP("&Theme")},
        {M::help, QT_TR_NOOP("&Help")},
    };
    return infos;
}

const std::vector<CommandInfo>& Commands::all()
{
    using C = Command;
    using M = CommandMenu;
    static const std::vector<CommandInfo> infos = {
        {C::openSite, M::file, QT_TR_NOOP("&Open Site..."),
         QT_TR_NOOP("Work on another server, in a folder"), "Ctrl+Shift+O", "open-site", false},
        {C::makeSample, M::file, QT_TR_NOOP("Make &Sample Server..."),
         QT_TR_NOOP("Make a server to try things on, in a new folder"), "Ctrl+Shift+N", "", false},
        {C::quit, M::file, QT_TR_NOOP("&Quit"), QT_TR_NOOP("Close the tool"), "Ctrl+Q", "", true},

        {C::refresh, M::action, QT_TR_NOOP("&Refresh"), QT_TR_NOOP("Read again what is shown"),
         "F5", "refresh", true},

        {C::copy, M::edit, QT_TR_NOOP("&Copy"), QT_TR_NOOP("Copy the selected rows, one line each"),
         "Ctrl+C", "copy", false},
        {C::copyCsv, M::edit, QT_TR_NOOP("Copy as CS&V"),
         QT_TR_NOOP("Copy the selected rows with their headers, for a spreadsheet"), "Ctrl+Shift+C",
         "", false},
        {C::selectAll, M::edit, QT_TR_NOOP("Select &All"), QT_TR_NOOP("Select every row on show"),
         "Ctrl+A", "", false},
        {C::find, M::edit, QT_TR_NOOP("&Find..."), QT_TR_NOOP("Look for a text in the log"),
         "Ctrl+F", "find", true},
        {C::findNext, M::edit, QT_TR_NOOP("Find &Next"), QT_TR_NOOP("Go to the next hit"), "F3", "",
         false},
        {C::findPrevious, M::edit, QT_TR_NOOP("Find &Previous"), QT_TR_NOOP("Go to the hit before"),
         "Shift+F3", "", false},
        {C::highlight, M::edit, QT_TR_NOOP("&Mark This Text"),
         QT_TR_NOOP("Keep the text that is looked for marked in a colour of its own"), "Ctrl+M", "",
         false},
        {C::goToTime, M::edit, QT_TR_NOOP("&Go to Time..."),
         QT_TR_NOOP("Go to the line of a time of day"), "Ctrl+G", "", true},
        {C::nextError, M::edit, QT_TR_NOOP("Next Err&or"),
         QT_TR_NOOP("Go to the next line of an error"), "F8", "level-error", false},
        {C::previousError, M::edit, QT_TR_NOOP("P&revious Error"),
         QT_TR_NOOP("Go to the line of an error before"), "Shift+F8", "", false},
        {C::nextWarning, M::edit, QT_TR_NOOP("Next &Warning"),
         QT_TR_NOOP("Go to the next line of a warning"), "F9", "level-warning", false},
        {C::previousWarning, M::edit, QT_TR_NOOP("Prev&ious Warning"),
         QT_TR_NOOP("Go to the line of a warning before"), "Shift+F9", "", false},
        {C::toggleBookmark, M::edit, QT_TR_NOOP("&Bookmark"),
         QT_TR_NOOP("Mark the current line, or take its mark away"), "Ctrl+B", "bookmark", true},
        {C::nextBookmark, M::edit, QT_TR_NOOP("Next Boo&kmark"),
         QT_TR_NOOP("Go to the next marked line"), "F2", "", false},
        {C::previousBookmark, M::edit, QT_TR_NOOP("Previo&us Bookmark"),
         QT_TR_NOOP("Go to the marked line before"), "Shift+F2", "", false},
        {C::clearBookmarks, M::edit, QT_TR_NOOP("Cl&ear Bookmarks"),
         QT_TR_NOOP("Take every mark of this log away"), "Ctrl+Shift+B", "", false},

        {C::filter, M::log, QT_TR_NOOP("&Filter..."),
         QT_TR_NOOP("Show or hide lines by what is in their columns"), "Ctrl+L", "filter", false},
        {C::filterColumn, M::log, QT_TR_NOOP("Filter by &Column..."),
         QT_TR_NOOP("Show or hide lines by the values of a further column"), "Ctrl+Alt+F", "",
         false},
        {C::showAll, M::log, QT_TR_NOOP("Show &All Rows"), QT_TR_NOOP("End the filter"),
         "Ctrl+Shift+A", "", false},
        {C::savedFilters, M::log, QT_TR_NOOP("Saved Fil&ters..."),
         QT_TR_NOOP("Take a filter that was saved by a name, here or in the viewer"),
         "Ctrl+Shift+L", "", true},
        {C::saveFilter, M::log, QT_TR_NOOP("&Save Filter..."),
         QT_TR_NOOP("Save the filter by a name, in a file that others can open"), "Ctrl+S", "",
         false},
        {C::openFilter, M::log, QT_TR_NOOP("O&pen Filter File..."),
         QT_TR_NOOP("Take a filter from a file that somebody gave"), "Ctrl+Alt+O", "", false},
        {C::follow, M::log, QT_TR_NOOP("F&ollow"),
         QT_TR_NOOP("Show lines as they come, while the last line is the current one"),
         "Ctrl+Shift+F", "", true},
        {C::openInViewer, M::log, QT_TR_NOOP("Open in &Viewer"),
         QT_TR_NOOP("Open this log in the viewer, which shows logs of any size"), "Ctrl+E",
         "viewer", false},

        {C::details, M::view, QT_TR_NOOP("&Details"),
         QT_TR_NOOP("Show all of the current line below the log"), "Ctrl+D", "", false},
        {C::switchPane, M::view, QT_TR_NOOP("&Other Pane"),
         QT_TR_NOOP("Go from the tree to the view, or back"), "F6", "", false},
        {C::largerText, M::view, QT_TR_NOOP("&Larger Text"),
         QT_TR_NOOP("Show traces in larger letters"), "Ctrl++", "", true},
        {C::smallerText, M::view, QT_TR_NOOP("&Smaller Text"),
         QT_TR_NOOP("Show traces in smaller letters"), "Ctrl+-", "", false},
        {C::normalText, M::view, QT_TR_NOOP("&Normal Text"),
         QT_TR_NOOP("Show traces in letters of the usual size"), "Ctrl+0", "", false},
        {C::systemTheme, M::theme, QT_TR_NOOP("As the &Desktop"),
         QT_TR_NOOP("Light or dark as the desktop is"), "Ctrl+Alt+S", "", false},
        {C::lightTheme, M::theme, QT_TR_NOOP("&Light"),
         QT_TR_NOOP("Dark letters on a light ground"), "Ctrl+Alt+L", "", false},
        {C::darkTheme, M::theme, QT_TR_NOOP("Da&rk"), QT_TR_NOOP("Light letters on a dark ground"),
         "Ctrl+Alt+D", "", false},

        {C::help, M::help, QT_TR_NOOP("&Help Topics"), QT_TR_NOOP("Open the manual"), "F1", "help",
         false},
        {C::keys, M::help, QT_TR_NOOP("&Keys"), QT_TR_NOOP("Show every key of the tool"),
         "Shift+F1", "", false},
        {C::about, M::help, QT_TR_NOOP("&About..."), QT_TR_NOOP("Version and interface language"),
         "Ctrl+F1", "", true},
    };
    return infos;
}

QKeySequence keyOfConsoleItem(const std::string& name)
{
    for (const auto& item : consoleItems)
        if (name == item.name) return QKeySequence::fromString(QString::fromLatin1(item.key));
    return {};
}

bool changesServer(const std::string& name)
{
    // The language's sheet notes the first language as it opens.
    return name == snapinItem::startNewLogFiles || name == snapinItem::changeLanguage;
}

QString iconOfConsoleItem(const std::string& name)
{
    for (const auto& item : consoleItems)
        if (name == item.name) return QString::fromLatin1(item.icon);
    return {};
}

} // namespace desktop
