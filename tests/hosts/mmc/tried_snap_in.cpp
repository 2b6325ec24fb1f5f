#include "hosts/mmc/tried_snap_in.h"

#include <string>

namespace mmc {

namespace {

SnapInDefinition smallDefinition()
{
    SnapInDefinition made;
    made.displayName = "Tried";
    made.nodeTypes = {{"root", "Tried", "pad"},
                      {"group", "group", "groups"},
                      {"leaf", "leaf", "rows", {}, false}};
    made.listViews.resize(2);
    made.listViews[0].name = "groups";
    made.listViews[0].rows = ListRows::childNodes;
    made.listViews[0].columns = {{"", "Name"}};
    made.listViews[1].name = "rows";
    made.listViews[1].text = ListText::serverCodePage;
    made.listViews[1].columns = {{"", "Number", 50}, {"", "Text", 200}};
    made.taskPads = {
        {"pad",
         "All tasks",
         "What can be done",
         "",
         "res://a/b.eot",
         {{"1", "First", "Font", 'M', "The first"}, {"2", "Second", "Font", '1', "The second"}}}};
    made.menus = {{"top", "", {{"mnuWork", "Work", "Works"}}},
                  {"task", "", {{"mnuFirst", "First", "As the task"}}}};
    return made;
}

class Events final : public SnapInEvents {
public:
    Events(TriedSnapIn& tried, Console& model) : tried_(tried), model_(model) {}

    void SnapIn_Initialize() override { tell("initialize"); }
    void SnapIn_Load() override { tell("load"); }
    void SnapIn_Unload() override
    {
        ++tried_.unloaded;
        tell("unload");
    }
    void SnapIn_Help() override { tell("help"); }
    void ScopeItems_Help(ScopeItem& item) override { tell("help " + item.key()); }
    void ResultViews_Help(ResultView&) override { tell("help rows"); }

    void ScopeItems_Expand(ScopeItem& item) override
    {
        tell("expand " + item.key());
        if (!item.parent()) {
            for (const char* key : {"one", "two"})
                model_.scopeItems().addChild("group", key, item).displayName(key);
        } else if (item.typeName() == "group") {
            const std::string key = item.key() + " leaf";
            model_.scopeItems().addChild("leaf", key, item).displayName(key);
        }
    }
    void ResultViews_Initialize(ResultView& shown) override
    {
        tell("show " + shown.scopePaneItem().key());
        if (shown.displayString() != "rows") return;
        for (const auto& [number, text] :
             {std::pair{"2", "caf\xE9"}, std::pair{"10", "b"}, std::pair{"1", "c"}}) {
            ListItem row = shown.list().addItem(shown.list().itemCount() + 1, number);
            row.addSubItem(1, number);
            row.addSubItem(2, text);
        }
    }
    void ResultViews_ListItemDblClick(ResultView&, ListItem item, bool&) override
    {
        tell("double click " + std::string(item.subItem(1)));
    }
    void ResultViews_TaskClick(ResultView&, Task& task) override { tell("task " + task.key); }

    void Views_AddTaskMenuItems(View&, ScopeItem&, ContextMenu& menu) override
    {
        tell("task menu");
        menu.add(model_.menu("task"));
    }
    void Views_AddTopMenuItems(View&, ScopeItem&, ContextMenu& menu) override
    {
        tell("top menu");
        menu.add(model_.menu("top"));
    }
    void Views_AddViewMenuItems(View&, ScopeItem&, ContextMenu&) override {}
    void MenuItem_Click(const MenuItem& item) override
    {
        tell("click " + item.name);
        if (item.name == "mnuWork") tried_.work(model_);
    }
    void Views_QueryPagesFor(View&, ScopeItem&, bool& answer) override { answer = true; }
    void Views_CreatePropertyPages(View&, ScopeItem&, OpenSheet&) override {}
    void Views_Select(View&, ScopeItem& item, bool selected, ConsoleVerbs& verbs) override
    {
        tell((selected ? "select " : "leave ") + item.key());
        verbs.verb(consoleVerb::refresh).enabled = true;
    }
    void Views_Refresh(View& view, ScopeItem& item) override
    {
        tell("refresh " + item.key());
        const ResultView& shown = view.selectedScopePaneItem().resultView();
        view.display(std::string(shown.displayString()), shown.type());
    }

private:
    void tell(const std::string& what) { tried_.told.push_back(what); }

    TriedSnapIn& tried_;
    Console& model_;
};

class TriedTool final : public Tool {
public:
    explicit TriedTool(TriedSnapIn& tried)
        : tried_(tried), model_(tried.definition), events_(tried, model_)
    {
        ++tried_.toolsAlive;
    }
    ~TriedTool() override { --tried_.toolsAlive; }

    Console& console() override { return model_; }
    const CodePage& codePage() const override { return codePage_; }
    void load() override { model_.load(events_); }
    std::shared_ptr<const void>
    takeTurn(OpenSheet* /*sheet*/,
             const std::function<void(const std::string&)>& /*notice*/) override
    {
        return tried_.takeTurn();
    }
    void unload() override { model_.unload(); }
    void cancelWork() override { ++tried_.cancelled; }
    std::string complaint() const override { return tried_.complaint; }
    ToolLanguages languages() override { return tried_.languages; }
    void chooseLanguage(std::size_t place) override
    {
        tried_.told.push_back("language " + tried_.languages.names.at(place));
    }

private:
    TriedSnapIn& tried_;
    CodePage codePage_ = windows1252();
    Console model_;
    Events events_;
};

} // namespace

TriedSnapIn::TriedSnapIn() : definition(smallDefinition())
{
    snapIn.classId = {0x5E0B7701, 0x2A4C, 0x4B6D, {0x8F, 0x90, 1, 2, 3, 4, 5, 6}};
    snapIn.aboutId = {0x5E0B7702, 0x2A4C, 0x4B6D, {0x8F, 0x90, 1, 2, 3, 4, 5, 6}};
    snapIn.staticNodeType = {0x5E0B7703, 0x2A4C, 0x4B6D, {0x8F, 0x90, 1, 2, 3, 4, 5, 6}};
    snapIn.identity = [] { return SnapInIdentity{"Maker", "What it is", "", " 1.2 Build 3"}; };
    snapIn.open = [this](Desktop& opened) -> std::unique_ptr<Tool> {
        if (openingFails != 0) throw RunTimeError(openingFails);
        desktop = &opened;
        return std::make_unique<TriedTool>(*this);
    };
}

} // namespace mmc
