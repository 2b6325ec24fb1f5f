#pragma once

#include <QKeySequence>
#include <QString>

#include <vector>

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
    goToTime,
    filter,
    showAll,
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

enum class CommandMenu { file, action, edit, view, theme, help };

struct CommandInfo {
    Command command;
    CommandMenu menu;
    const char* text;       ///< with its mnemonic; translated where it is shown
    const char* statusText; ///< for the status bar
    const char* key;        ///< in the portable form, such as "Ctrl+F"
    const char* icon;       ///< empty for none
    bool startsGroup;       ///< a line stands before it in its menu
};

/// In the order of the menus.
const std::vector<CommandInfo>& commandInfos();

/// The key of a menu item that the tool declares, by its name; empty for one without.
QKeySequence keyOfConsoleItem(const std::string& name);

/// The drawing for such an item; empty for one without.
QString iconOfConsoleItem(const std::string& name);
