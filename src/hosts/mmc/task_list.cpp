#include "hosts/mmc/task_list.h"

#include "hosts/mmc/com/call_guard.h"
#include "hosts/mmc/com/task_text.h"

#include <algorithm>

namespace mmc {

namespace {

/// Lets go of texts that the console does not get.
void release(const MMC_TASK& task)
{
    CoTaskMemFree(task.sDisplayObject.uSymbol.szFontFamilyName);
    CoTaskMemFree(task.sDisplayObject.uSymbol.szURLtoEOT);
    CoTaskMemFree(task.sDisplayObject.uSymbol.szSymbolString);
    CoTaskMemFree(task.szText);
    CoTaskMemFree(task.szHelpString);
}

MMC_TASK nativeTask(const Task& task, const std::string& fontFile, std::size_t position)
{
    MMC_TASK native{};
    try {
        native.sDisplayObject.eDisplayType = MMC_TASK_DISPLAY_TYPE_SYMBOL;
        MMC_TASK_DISPLAY_SYMBOL& symbol = native.sDisplayObject.uSymbol;
        symbol.szFontFamilyName = taskText(task.fontFamily);
        symbol.szURLtoEOT = taskText(fontFile);
        symbol.szSymbolString = taskText(std::string(1, task.symbol));
        native.szText = taskText(task.text);
        native.szHelpString = taskText(task.helpText);
    } catch (...) {
        release(native);
        throw;
    }
    native.eActionType = MMC_ACTION_ID;
    native.nCommandID = static_cast<LONG_PTR>(position);
    return native;
}

} // namespace

TaskList::TaskList(TaskPad& pad) : fontFile_(pad.symbolFontFile)
{
    for (int position = 1; position <= pad.taskCount(); ++position)
        tasks_.push_back(pad.task(position));
}

HRESULT WINAPI TaskList::Next(ULONG count, MMC_TASK* tasks, ULONG* fetched)
{
    ULONG given = 0;
    const HRESULT result = guarded([&]() -> HRESULT {
        if (!tasks) return E_POINTER;
        for (; given < count && next_ < tasks_.size(); ++given, ++next_)
            tasks[given] = nativeTask(tasks_[next_], fontFile_, next_ + 1);
        return given == count ? S_OK : S_FALSE;
    });
    if (fetched) *fetched = given;
    return result;
}

HRESULT WINAPI TaskList::Skip(ULONG count)
{
    const std::size_t left = tasks_.size() - next_;
    next_ += std::min<std::size_t>(count, left);
    return count <= left ? S_OK : S_FALSE;
}

HRESULT WINAPI TaskList::Reset()
{
    next_ = 0;
    return S_OK;
}

HRESULT WINAPI TaskList::Clone(IEnumTASK**)
{
    return E_NOTIMPL;
}

} // namespace mmc
