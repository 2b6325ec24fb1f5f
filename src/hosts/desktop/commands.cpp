#include "hosts/desktop/commands.h"

namespace {

struct ConsoleItem {
    const char* name;
    const char* key;
    const char* icon;
};

constexpr ConsoleItem consoleItems[] = {
    {"mnuConfigureMacroTrace", "Ctrl+1", "macro-traces"},
    {"mnuConfigureMicroTraces", "Ctrl+2", "micro-traces"},
    {"mnuDisableAllTraces", "Ctrl+3", "reset"},
    {"mnuStartNewLogFiles", "Ctrl+4", "new-logs"},
    {"mnuGatherLogFiles", "Ctrl+5", "gather"},
    {"mnuConfigureLogSettings", "Ctrl+6", "settings"},
    {"mnuOpenLogFile", "Ctrl+O", "open-log"},
    {"mnuChangeLanguage", "Ctrl+7", "language"},
};

} // namespace

const std::vector<CommandInfo>& commandInfos()
{
    using C = Command;
    using M = CommandMenu;
    static const std::vector<CommandInfo> infos = {
        {C::openSite, M::file, "&Open Site...", "Work on another server, in a folder",
         "Ctrl+Shift+O", "open-site", false},
        {C::makeSample, M::file, "Make &Sample Server...",
         "Make a server to try things on, in a new folder", "Ctrl+Shift+N", "", false},
        {C::quit, M::file, "&Quit", "Close the tool", "Ctrl+Q", "", true},

        {C::refresh, M::action, "&Refresh", "Read again what is shown", "F5", "refresh", true},

        {C::copy, M::edit, "&Copy", "Copy the selected rows, one line each", "Ctrl+C", "copy",
         false},
        {C::copyCsv, M::edit, "Copy as CS&V",
         "Copy the selected rows with their headers, for a "
         "spreadsheet",
         "Ctrl+Shift+C", "", false},
        {C::selectAll, M::edit, "Select &All", "Select every row on show", "Ctrl+A", "", false},
        {C::find, M::edit, "&Find...", "Look for a text in the log", "Ctrl+F", "find", true},
        {C::findNext, M::edit, "Find &Next", "Go to the next hit", "F3", "", false},
        {C::findPrevious, M::edit, "Find &Previous", "Go to the hit before", "Shift+F3", "", false},
        {C::goToTime, M::edit, "&Go to Time...", "Go to the line of a time of day", "Ctrl+G", "",
         false},
        {C::filter, M::edit, "F&ilter...", "Show or hide lines by component, source, level or text",
         "Ctrl+L", "filter", true},
        {C::showAll, M::edit, "Show A&ll Rows", "End the filter", "Ctrl+Shift+A", "", false},
        {C::toggleBookmark, M::edit, "&Bookmark", "Mark the current line, or take its mark away",
         "Ctrl+B", "bookmark", true},
        {C::nextBookmark, M::edit, "Next Boo&kmark", "Go to the next marked line", "F2", "", false},
        {C::previousBookmark, M::edit, "Previo&us Bookmark", "Go to the marked line before",
         "Shift+F2", "", false},
        {C::clearBookmarks, M::edit, "Cl&ear Bookmarks", "Take every mark of this log away",
         "Ctrl+Shift+B", "", false},

        {C::details, M::view, "&Details", "Show all of the current line below the log", "Ctrl+D",
         "", false},
        {C::switchPane, M::view, "&Other Pane", "Go from the tree to the view, or back", "F6", "",
         false},
        {C::largerText, M::view, "&Larger Text", "Show traces in larger letters", "Ctrl++", "",
         true},
        {C::smallerText, M::view, "&Smaller Text", "Show traces in smaller letters", "Ctrl+-", "",
         false},
        {C::normalText, M::view, "&Normal Text", "Show traces in letters of the usual size",
         "Ctrl+0", "", false},
        {C::systemTheme, M::theme, "As the &Desktop", "Light or dark as the desktop is",
         "Ctrl+Alt+S", "", false},
        {C::lightTheme, M::theme, "&Light", "Dark letters on a light ground", "Ctrl+Alt+L", "",
         false},
        {C::darkTheme, M::theme, "Da&rk", "Light letters on a dark ground", "Ctrl+Alt+D", "",
         false},

        {C::help, M::help, "&Help Topics", "Open the manual", "F1", "help", false},
        {C::keys, M::help, "&Keys", "Show every key of the tool", "Shift+F1", "", false},
        {C::about, M::help, "&About...", "Version and interface language", "Ctrl+F1", "", true},
    };
    return infos;
}

QKeySequence keyOfConsoleItem(const std::string& name)
{
    for (const auto& item : consoleItems)
        if (name == item.name) return QKeySequence::fromString(QString::fromLatin1(item.key));
    return {};
}

QString iconOfConsoleItem(const std::string& name)
{
    for (const auto& item : consoleItems)
        if (name == item.name) return QString::fromLatin1(item.icon);
    return {};
}
