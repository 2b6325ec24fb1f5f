#pragma once

#include <QCoreApplication>

#include <vector>

namespace viewer {

/// The window's commands, and what a menu and the tool bar need to know of each.
enum class Command {
    openFiles,
    openFolder,
    exportRows,
    startAfresh,
    stop,
    quit,
    copy,
    copyCsv,
    copyRaw,
    copyValue,
    selectAll,
    toggleBookmark,
    note,
    clearBookmarks,
    find,
    findNext,
    findPrevious,
    keepMark,
    nextError,
    previousError,
    nextWarning,
    previousWarning,
    goToTime,
    nextBookmark,
    previousBookmark,
    markList,
    filter,
    showAll,
    macroTraces,
    saveFilter,
    savedFilters,
    openFilter,
    onlyProcess,
    onlyComponent,
    onlySource,
    onlyLevel,
    onlyCall,
    onlyPort,
    onlyThread,
    hideProcess,
    hideComponent,
    hideSource,
    hideLevel,
    narrowTimes,
    widenTimes,
    allTimes,
    values,
    details,
    calls,
    thisCall,
    otherPane,
    follow,
    clockTimes,
    timesSinceRowBefore,
    timesSinceMark,
    markTime,
    columns,
    largerText,
    smallerText,
    normalText,
    systemTheme,
    lightTheme,
    darkTheme,
    english,
    german,
    spanish,
    french,
    japanese,
    help,
    keys,
    about,
};

enum class CommandMenu { file, edit, go, filter, only, hide, view, times, theme, language, help };

struct MenuInfo {
    CommandMenu menu;
    CommandMenu parent; ///< the menu itself for one of the menu bar
    const char* title;  ///< with its mnemonic; translated where it is shown
};

struct CommandInfo {
    Command command;
    CommandMenu menu;
    const char* text;       ///< like a menu's title
    const char* statusText; ///< for the status bar
    const char* key;        ///< in the portable form, such as "Ctrl+F"
    const char* icon;       ///< empty for none
    bool startsGroup;       ///< a line stands before it in its menu
    bool checkable;
};

class Commands {
    Q_DECLARE_TR_FUNCTIONS(Commands)

public:
    /// In the order of the menu bar, each behind the one that it is a menu of.
    static const std::vector<MenuInfo>& menus();

    /// In the order of the menus.
    static const std::vector<CommandInfo>& all();
};

} // namespace viewer
