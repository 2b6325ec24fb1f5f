#pragma once

#include <QCoreApplication>
#include <QKeySequence>
#include <QString>

#include <vector>

namespace desktop {

/// The window's own commands, and what a menu, the tool bar and the list of keys need to know of
/// each.
enum class Command {
    openSite,
    makeSample,
    quit,
    refresh,
    copy,
    copyCsv,
    selectAll,
    find,
    findNext,
    findPrevious,
    highlight,
    goToTime,
    nextError,
    previousError,
    nextWarning,
    previousWarning,
    filter,
    filterColumn,
    showAll,
    savedFilters,
    saveFilter,
    openFilter,
    follow,
    openInViewer,
    toggleBookmark,
    nextBookmark,
    previousBookmark,
    clearBookmarks,
    details,
    switchPane,
    largerText,
    smallerText,
    normalText,
    systemTheme,
    lightTheme,
    darkTheme,
    help,
    keys,
    about,
};

enum class CommandMenu { file, action, edit, log, view, theme, help };

struct MenuInfo {
    CommandMenu menu;
    const char* title; ///< with its mnemonic; translated where it is shown
};

struct CommandInfo {
    Command command;
    CommandMenu menu;
    const char* text;       ///< like a menu's title
    const char* statusText; ///< for the status bar
    const char* key;        ///< in the portable form, such as "Ctrl+F"
    const char* icon;       ///< empty for none
    bool startsGroup;       ///< a line stands before it in its menu
};

/// The tables of the menus. `Commands::tr` gives their texts in the interface language.
class Commands {
    Q_DECLARE_TR_FUNCTIONS(Commands)

public:
    /// In the order of the menu bar; the theme's is a menu of the view's.
    static const std::vector<MenuInfo>& menus();

    /// In the order of the menus.
    static const std::vector<CommandInfo>& all();
};

/// The key of a menu item that the tool declares, by its name; empty for one without.
QKeySequence keyOfConsoleItem(const std::string& name);

/// Whether a click on an item of the tool may change the server at once. The other ones open
/// sheets, which may do so later, or only look.
bool changesServer(const std::string& name);

/// The drawing for an item; empty for one without.
QString iconOfConsoleItem(const std::string& name);

} // namespace desktop
