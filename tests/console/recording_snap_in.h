#pragma once

#include "console/console.h"

#include <functional>
#include <string>
#include <vector>

/// A snap-in that writes down what the console tells it, and a console observer that does the same.
struct RecordingSnapIn : SnapInEvents, ConsoleObserver {
    std::vector<std::string> heard;
    std::function<void(ScopeItem&)> onExpand = [](ScopeItem&) {};
    std::function<void(ResultView&)> onInitialize = [](ResultView&) {};
    std::function<void()> onUnload = [] {};
    std::function<void(OpenSheet&)> onCreatePages = [](OpenSheet&) {};

    /// What was heard since the last call.
    std::vector<std::string> taken()
    {
        std::vector<std::string> all;
        all.swap(heard);
        return all;
    }

    void SnapIn_Initialize() override { heard.push_back("initialize"); }
    void SnapIn_Load() override { heard.push_back("load"); }
    void SnapIn_Unload() override
    {
        heard.push_back("unload");
        onUnload();
    }
    void ScopeItems_Expand(ScopeItem& item) override
    {
        heard.push_back("expand " + item.key());
        onExpand(item);
    }
    void SnapIn_Help() override { heard.push_back("help"); }
    void ScopeItems_Help(ScopeItem& item) override { heard.push_back("help on " + item.key()); }
    void ResultViews_Help(ResultView& view) override
    {
        heard.push_back("help on " + view.displayString());
    }
    void ResultViews_Initialize(ResultView& view) override
    {
        heard.push_back("fill " + view.displayString() + " of " + view.scopePaneItem().key());
        onInitialize(view);
    }
    void ResultViews_ListItemDblClick(ResultView&, ListItem item, bool&) override
    {
        heard.push_back("double click " + std::string(item.text()));
    }
    void ResultViews_TaskClick(ResultView&, Task& task) override
    {
        heard.push_back("task " + task.key);
    }
    void Views_AddTaskMenuItems(View& view, ScopeItem& selection, ContextMenu& menu) override;
    void Views_AddTopMenuItems(View&, ScopeItem&, ContextMenu&) override {}
    void Views_AddViewMenuItems(View&, ScopeItem&, ContextMenu&) override {}
    void MenuItem_Click(const MenuItem& item) override { heard.push_back("menu " + item.name); }
    void Views_QueryPagesFor(View&, ScopeItem&, bool& answer) override { answer = true; }
    void Views_CreatePropertyPages(View&, ScopeItem& selection, OpenSheet& sheet) override
    {
        heard.push_back("pages for " + selection.key());
        onCreatePages(sheet);
    }
    void Views_Select(View&, ScopeItem& selection, bool selected, ConsoleVerbs& verbs) override
    {
        heard.push_back((selected ? "select " : "deselect ") + selection.key());
        verbs.verb(consoleVerb::refresh).enabled = offersRefresh;
    }
    void Views_Refresh(View&, ScopeItem& selection) override
    {
        heard.push_back("refresh " + selection.key());
    }

    void scopeItemAdded(ScopeItem& item) override { heard.push_back("+ " + item.key()); }
    void scopeItemChanged(ScopeItem& item) override { heard.push_back("* " + item.key()); }
    void scopeItemRemoved(ScopeItem& item) override { heard.push_back("- " + item.key()); }
    void selectionChanged(View& view) override
    {
        heard.push_back("> " + view.selectedScopePaneItem().key());
    }
    void viewReset(ResultView& view) override { heard.push_back("reset " + view.displayString()); }
    void viewFilled(ResultView& view) override
    {
        heard.push_back("filled " + view.displayString());
    }
    void selected(View& view) override
    {
        heard.push_back("selected " + view.selectedScopePaneItem().key());
    }
    void statusBarChanged(View& view) override
    {
        heard.push_back("status " + view.statusBarText());
    }
    void sheetShown(OpenSheet& sheet) override { heard.push_back("sheet " + sheet.title()); }
    void handlerFailed(const RunTimeError& error) override
    {
        heard.push_back("failed " + std::to_string(error.number()));
    }

    Console* console = nullptr;
    bool offersRefresh = true;
};

inline void RecordingSnapIn::Views_AddTaskMenuItems(View&, ScopeItem& selection, ContextMenu& menu)
{
    heard.push_back("task menu for " + selection.key());
    menu.add(console->menu("mnuTask"));
}
