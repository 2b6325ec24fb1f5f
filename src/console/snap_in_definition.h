#pragma once

#include <string>
#include <vector>

/// A column width that is left to the console.
constexpr int automaticWidth = -1;

/// How the texts of a list's rows are encoded.
enum class ListText {
    utf8,
    serverCodePage, ///< bytes as the server's logs hold them, for the host to decode
};

/// What the rows of a list are.
enum class ListRows {
    own,        ///< those that the snap-in puts in
    childNodes, ///< the nodes below the item on show: the list has no others
};

struct ColumnDefinition {
    std::string key; ///< may be empty
    std::string header;
    int width = automaticWidth;
};

struct ListSort {
    bool onLoad = false;
    int column = 1; ///< from 1
    bool ascending = true;
};

/// The console's ways to show a list.
enum class ListDisplay { byDefault, report };

struct ListViewDefinition {
    std::string name; ///< the display string of its result views
    ListDisplay display = ListDisplay::byDefault;
    ListSort sort;
    int filterChangeTimeOut = 1000; ///< milliseconds
    ListText text = ListText::utf8;
    ListRows rows = ListRows::own;
    std::vector<ColumnDefinition> columns;
};

struct TaskDefinition {
    std::string key;
    std::string text;
    std::string fontFamily;
    char symbol = ' '; ///< a character of the symbol font
    std::string helpText;
};

struct TaskPadDefinition {
    std::string name; ///< the display string of its result views
    std::string title;
    std::string description;
    std::string background; ///< a reference that may name nothing
    std::string symbolFontFile;
    std::vector<TaskDefinition> tasks;
};

struct MenuItemDefinition {
    std::string name;
    std::string caption;
    std::string statusBarText;
};

struct MenuDefinition {
    std::string name;
    std::string caption;
    std::vector<MenuItemDefinition> items;
};

struct NodeTypeDefinition {
    std::string typeName;
    std::string displayName;
    std::string defaultView;
    std::string image = {}; ///< what a new node's `ScopeItem::image` is
    bool opens = true;      ///< whether nodes may come below one of this type
};

/// A child that the console makes with the root.
struct AutomaticNodeDefinition {
    std::string typeName;
    std::string kind;
};

/// All that a snap-in declares. The first node type is that of the root.
struct SnapInDefinition {
    std::string displayName;
    std::string description;
    std::string provider;
    std::string version;
    std::vector<NodeTypeDefinition> nodeTypes;
    std::vector<AutomaticNodeDefinition> automaticNodes;
    std::vector<ListViewDefinition> listViews;
    std::vector<TaskPadDefinition> taskPads;
    std::vector<MenuDefinition> menus;
    std::vector<std::string> toolbars; ///< names; they have no buttons
};
