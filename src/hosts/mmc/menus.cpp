#include "hosts/mmc/menus.h"

#include "system/windows/windows_calls.h"

#include <algorithm>
#include <string>
#include <vector>

namespace mmc {

namespace {

// Commands are numbered by their places: those of menus in their declaration, tasks in their pad,
// languages in their menu.
constexpr long firstMenuCommand = 1;
constexpr long firstTaskCommand = 1000;
constexpr long languageMenu = 2000;
constexpr long firstLanguageCommand = languageMenu + 1;

std::vector<std::string> declaredItems(const SnapInDefinition& definition)
{
    std::vector<std::string> names;
    for (const auto& menu : definition.menus)
        for (const auto& item : menu.items) names.push_back(item.name);
    return names;
}

struct Command {
    std::string caption;
    std::string statusBarText;
    long number;
    bool enabled = true;
};

std::vector<Command> commandsOf(const ContextMenu& menu, const SnapInDefinition& definition)
{
    const std::vector<std::string> names = declaredItems(definition);
    std::vector<Command> commands;
    for (const MenuItem& item : menu.entries()) {
        const auto place = std::find(names.begin(), names.end(), item.name);
        if (!item.visible || place == names.end()) continue;
        const auto number = firstMenuCommand + static_cast<long>(place - names.begin());
        commands.push_back({item.caption, item.statusBarText, number, item.enabled});
    }
    return commands;
}

/// Newer consoles show no task pads of snap-ins, so that each task is a command as well.
void addTasks(std::vector<Command>& commands, TaskPad* pad)
{
    for (int position = 1; pad && position <= pad->taskCount(); ++position) {
        const Task& task = pad->task(position);
        const bool offered =
            std::any_of(commands.begin(), commands.end(),
                        [&](const Command& command) { return command.caption == task.text; });
        if (!offered) commands.push_back({task.text, task.helpText, firstTaskCommand + position});
    }
}

void add(IContextMenuCallback& menu, const std::vector<Command>& commands, unsigned long place)
{
    for (const Command& command : commands) {
        std::wstring caption = wideOf(command.caption);
        std::wstring help = wideOf(command.statusBarText);
        CONTEXTMENUITEM item{};
        item.strName = caption.data();
        item.strStatusBarText = help.data();
        item.lCommandID = command.number;
        item.lInsertionPointID = static_cast<LONG>(place);
        item.fFlags = command.enabled ? MF_ENABLED : MF_GRAYED;
        menu.AddItem(&item);
    }
}

/// The snap-in's own about box, in which its language is chosen, is nowhere in a console, which has
/// one of its own.
void addLanguages(IContextMenuCallback& menu, const ToolLanguages& languages)
{
    if (languages.names.empty()) return;
    std::wstring caption = wideOf(languages.caption);
    wchar_t noHelp[] = L"";
    CONTEXTMENUITEM submenu{};
    submenu.strName = caption.data();
    submenu.strStatusBarText = noHelp;
    submenu.lCommandID = languageMenu;
    submenu.lInsertionPointID = static_cast<LONG>(CCM_INSERTIONPOINTID_PRIMARY_TOP);
    submenu.fFlags = MF_POPUP;
    submenu.fSpecialFlags = CCM_SPECIAL_SUBMENU;
    if (FAILED(menu.AddItem(&submenu))) return;
    std::vector<Command> commands;
    for (const std::string& name : languages.names) {
        const auto place = static_cast<long>(commands.size());
        commands.push_back({name, "", firstLanguageCommand + place});
    }
    add(menu, commands, languageMenu);
}

/// False for a place that has no language.
bool chooseLanguage(Host& host, ResultPane& pane, std::size_t place)
{
    if (!host.runs() || place >= host.tool().languages().names.size()) return false;
    host.change(pane, [&](Console& model) {
        const Console::Work work(model);
        host.tool().chooseLanguage(place);
    });
    return true;
}

} // namespace

void addMenuItems(Host& host, ResultPane& pane, IContextMenuCallback& menu, long allowed)
{
    if (!host.haveSelection(pane)) return;
    const bool intoTop = (allowed & CCM_INSERTIONALLOWED_TOP) != 0;
    const bool intoTasks = (allowed & CCM_INSERTIONALLOWED_TASK) != 0;
    std::vector<Command> top;
    std::vector<Command> tasks;
    ToolLanguages languages;
    // The snap-in hears of a menu when that one is built.
    host.perform(pane, [&](Console& model) {
        if (intoTop) top = commandsOf(model.topMenu(), model.definition());
        if (intoTop) languages = host.tool().languages();
        if (intoTasks) tasks = commandsOf(model.taskMenu(), model.definition());
    });
    if (intoTasks) addTasks(tasks, pane.taskPad());
    add(menu, top, CCM_INSERTIONPOINTID_PRIMARY_TOP);
    addLanguages(menu, languages);
    add(menu, tasks, CCM_INSERTIONPOINTID_PRIMARY_TASK);
}

bool runCommand(Host& host, ResultPane& pane, long number)
{
    if (number >= firstLanguageCommand)
        return chooseLanguage(host, pane, static_cast<std::size_t>(number - firstLanguageCommand));
    if (number >= firstTaskCommand) return runTask(host, pane, number - firstTaskCommand);
    if (!host.runs() || number < firstMenuCommand) return false;
    const std::vector<std::string> names = declaredItems(host.model().definition());
    const auto place = static_cast<std::size_t>(number - firstMenuCommand);
    if (place >= names.size()) return false;
    host.change(pane, [&](Console& model) { model.clickMenuItem(names[place]); });
    return true;
}

bool runTask(Host& host, ResultPane& pane, int position)
{
    TaskPad* const pad = pane.taskPad();
    if (!pad || position < 1 || position > pad->taskCount()) return false;
    const std::string key = pad->task(position).key;
    host.change(pane, [&](Console& model) { model.clickTask(key); });
    return true;
}

} // namespace mmc
