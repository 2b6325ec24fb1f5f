#include "hosts/mmc/console/console.h"
#include "hosts/mmc/console/wide_text.h"
#include "hosts/mmc/console/window.h"

namespace stand_in {

bool Window::isVerbEnabled(MMC_CONSOLE_VERB verb) const
{
    const auto found = enabledVerbs_.find(verb);
    return found != enabledVerbs_.end() && found->second;
}

bool Window::refresh()
{
    if (!isVerbEnabled(MMC_VERB_REFRESH)) return false;
    notifySelected(MMCN_REFRESH, 0, 0, "MMCN_REFRESH");
    return true;
}

bool Window::help()
{
    return notifySelected(MMCN_CONTEXTHELP, 0, 0, "MMCN_CONTEXTHELP") == S_OK;
}

std::vector<MenuItem> Window::contextMenu()
{
    const ScopeNode* node = console_.tree().find(selected_);
    if (!node) return {};
    const auto object = console_.scopeObject(*node);
    MenuList menu(console_.contract());
    menu.collect(console_.data(), object.get(),
                 CCM_INSERTIONALLOWED_TOP | CCM_INSERTIONALLOWED_NEW | CCM_INSERTIONALLOWED_TASK);
    menu.collect(component_.get(), object.get(), CCM_INSERTIONALLOWED_VIEW);
    if (menu.references() != 0)
        console_.contract().breach("a context menu is kept after AddMenuItems");
    return menu.items();
}

bool Window::choose(const std::string& caption)
{
    Contract& contract = console_.contract();
    for (const MenuItem& item : contextMenu()) {
        if (item.caption != caption) continue;
        if (!item.enabled) {
            contract.breach("the test chooses \"" + caption + "\", which is disabled");
            return false;
        }
        const auto menu = asked<IExtendContextMenu>(item.owner, iid::extendContextMenu);
        const auto object = console_.scopeObject(*console_.tree().find(selected_));
        const HRESULT done =
            contract.call("Command", [&] { return menu->Command(item.command, object.get()); });
        if (FAILED(done)) contract.breach("Command failed for \"" + caption + "\"");
        return SUCCEEDED(done);
    }
    contract.breach("the test chooses \"" + caption + "\", which is not there");
    return false;
}

namespace {

std::wstring groupOf(const std::string& viewType)
{
    return widen(viewType.substr(viewType.find('#') + 1));
}

} // namespace

std::string Window::taskPadText(HRESULT (WINAPI IExtendTaskPad::*which)(LPOLESTR, LPOLESTR*),
                                const char* name)
{
    const auto pad = asked<IExtendTaskPad>(component_.get(), iid::extendTaskPad);
    if (!pad || shown_ != Shown::taskPad) return {};
    std::wstring group = groupOf(viewType_);
    LPOLESTR text = nullptr;
    const HRESULT given =
        console_.contract().call(name, [&] { return (pad.get()->*which)(group.data(), &text); });
    if (FAILED(given)) return {};
    return console_.contract().takeText(text, std::string("the text of ") + name).value_or("");
}

std::string Window::taskPadTitle()
{
    return taskPadText(&IExtendTaskPad::GetTitle, "IExtendTaskPad::GetTitle");
}

std::string Window::taskPadText()
{
    return taskPadText(&IExtendTaskPad::GetDescriptiveText, "GetDescriptiveText");
}

Task Window::takeTask(MMC_TASK& given)
{
    Contract& contract = console_.contract();
    Task task;
    task.text = contract.takeText(given.szText, "a task's text").value_or("");
    task.helpText = contract.takeText(given.szHelpString, "a task's help text").value_or("");
    if (task.text.empty()) contract.breach("a task has no text");
    if (given.eActionType == MMC_ACTION_ID)
        task.command = given.nCommandID;
    else
        contract.breach("a task does nothing that the console could tell the snap-in of");
    const MMC_TASK_DISPLAY_OBJECT& image = given.sDisplayObject;
    if (image.eDisplayType == MMC_TASK_DISPLAY_TYPE_SYMBOL) {
        contract.takeText(image.uSymbol.szFontFamilyName, "the font of a task's symbol");
        contract.takeText(image.uSymbol.szURLtoEOT, "the font's file of a task's symbol");
        task.symbol =
            contract.takeText(image.uSymbol.szSymbolString, "a task's symbol").value_or("");
        if (task.symbol.empty()) contract.breach("a task has a symbol without a character");
    } else if (image.eDisplayType == MMC_TASK_DISPLAY_UNINITIALIZED) {
        contract.breach("a task has no image");
    } else {
        contract.takeText(image.uBitmap.szMouseOverBitmap, "a task's picture");
        contract.takeText(image.uBitmap.szMouseOffBitmap, "a task's picture");
    }
    return task;
}

std::vector<Task> Window::tasks()
{
    Contract& contract = console_.contract();
    const auto pad = asked<IExtendTaskPad>(component_.get(), iid::extendTaskPad);
    const ScopeNode* node = console_.tree().find(selected_);
    if (!pad || !node || shown_ != Shown::taskPad) return {};
    const auto object = console_.scopeObject(*node);
    std::wstring group = groupOf(viewType_);
    Held<IEnumTASK> tasks;
    const HRESULT made = contract.call(
        "EnumTasks", [&] { return pad->EnumTasks(object.get(), group.data(), tasks.place()); });
    if (FAILED(made) || !tasks) {
        contract.breach("EnumTasks gives no tasks");
        return {};
    }
    std::vector<Task> found;
    for (;;) {
        MMC_TASK given{};
        ULONG fetched = 0;
        const HRESULT next =
            contract.call("IEnumTASK::Next", [&] { return tasks->Next(1, &given, &fetched); });
        if (next != S_OK) {
            if (next != S_FALSE || fetched != 0) contract.breach("IEnumTASK::Next ends wrongly");
            return found;
        }
        if (fetched != 1) contract.breach("IEnumTASK::Next does not say how many tasks it gives");
        found.push_back(takeTask(given));
        if (found.size() > 1000) {
            contract.breach("IEnumTASK::Next never ends");
            return found;
        }
    }
}

bool Window::clickTask(const std::string& text)
{
    Contract& contract = console_.contract();
    for (const Task& task : tasks()) {
        if (task.text != text) continue;
        const auto pad = asked<IExtendTaskPad>(component_.get(), iid::extendTaskPad);
        const auto object = console_.scopeObject(*console_.tree().find(selected_));
        VARIANT command;
        VARIANT nothing;
        VariantInit(&command);
        VariantInit(&nothing);
        command.vt = VT_I4;
        command.lVal = static_cast<LONG>(task.command);
        const HRESULT done = contract.call(
            "TaskNotify", [&] { return pad->TaskNotify(object.get(), &command, &nothing); });
        if (FAILED(done)) contract.breach("TaskNotify failed for \"" + text + "\"");
        return SUCCEEDED(done);
    }
    contract.breach("the test clicks the task \"" + text + "\", which is not there");
    return false;
}

} // namespace stand_in
