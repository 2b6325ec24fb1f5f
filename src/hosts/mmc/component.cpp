#include "hosts/mmc/component.h"

#include "hosts/mmc/com/task_text.h"
#include "hosts/mmc/images.h"
#include "hosts/mmc/task_list.h"
#include "system/windows/windows_calls.h"

#include <array>

namespace mmc {

namespace {

/// The page of the console's own program that shows tasks, for the pad that is named behind it.
std::wstring taskPadPage(const std::string& pad)
{
    std::wstring program(MAX_PATH, L'\0');
    for (;;) {
        const DWORD length =
            GetModuleFileNameW(nullptr, program.data(), static_cast<DWORD>(program.size()));
        if (length < program.size()) {
            program.resize(length);
            break;
        }
        program.resize(2 * program.size());
    }
    return L"res://" + program + L"/default.htm#" + wideOf(pad);
}

} // namespace

/// A console that lets go without a word closes its window all the same.
Component::~Component()
{
    guarded([&]() -> HRESULT { return Destroy(0); });
}

HRESULT WINAPI Component::Initialize(IConsole* console)
{
    return guarded([&]() -> HRESULT {
        if (!console) return E_POINTER;
        if (!host().runs() || pane_.console()) return E_UNEXPECTED;
        const bool isWhole = pane_.connect(console);
        // The console may have let go of the tool in one of these calls.
        if (isWhole && host().runs()) {
            host().addPane(pane_);
            return S_OK;
        }
        pane_.disconnect();
        return isWhole ? E_UNEXPECTED : E_NOINTERFACE;
    });
}

HRESULT WINAPI Component::Destroy(MMC_COOKIE)
{
    return guarded([&]() -> HRESULT {
        if (host().runs())
            host().removePane(pane_);
        else
            pane_.disconnect();
        return S_OK;
    });
}

HRESULT WINAPI Component::Notify(IDataObject* object, MMC_NOTIFY_TYPE event, LPARAM first,
                                 LPARAM second)
{
    return guarded([&]() -> HRESULT {
        // The console may let go of this object in the middle of the call.
        const auto held = ComPointer<IComponent>::of(static_cast<IComponent*>(this));
        return host().runs() ? told(object, event, first, second) : S_FALSE;
    });
}

HRESULT Component::told(IDataObject* object, MMC_NOTIFY_TYPE event, LPARAM first, LPARAM second)
{
    const auto item = host().itemOf(object);
    switch (event) {
    case MMCN_ACTIVATE:
        if (first) host().activate(pane_);
        return S_OK;
    case MMCN_ADD_IMAGES:
        if (first) addImages(*reinterpret_cast<IImageList*>(first), host().snapIn());
        return S_OK;
    case MMCN_SHOW:
        if (!first) {
            host().hidden(pane_);
            return S_OK;
        }
        break;
    case MMCN_SNAPINHELP:
        host().help(pane_, Help::onSnapIn);
        return S_OK;
    case MMCN_CONTEXTHELP:
    case MMCN_HELP:
        host().help(pane_, subjectOf(object, host_.get()).row < 0 ? Help::onNode : Help::onRows);
        return S_OK;
    default:
        break;
    }
    return item ? toldOf(object, item, event, first, second) : S_FALSE;
}

HRESULT Component::toldOf(IDataObject* object, const std::shared_ptr<ScopeItem>& item,
                          MMC_NOTIFY_TYPE event, LPARAM first, LPARAM second)
{
    switch (event) {
    case MMCN_SHOW:
        host().shown(pane_, *item, second);
        return S_OK;
    case MMCN_SELECT:
        if (HIWORD(first)) pane_.showVerbs();
        return S_OK;
    case MMCN_DBLCLICK:
        return doubleClicked(object, *item);
    case MMCN_REFRESH:
        host().refresh(pane_, object);
        return S_OK;
    case MMCN_VIEW_CHANGE:
        host().renew(pane_, *item, first);
        return S_OK;
    default:
        return S_FALSE;
    }
}

/// A row is the model's. Another node in the list is gone to; what is on show is the console's to
/// open.
HRESULT Component::doubleClicked(IDataObject* object, ScopeItem& item)
{
    const int row = subjectOf(object, host_.get()).row;
    if (row < 0) {
        if (pane_.shownItem().get() == &item) return S_FALSE;
        host().goTo(pane_, item);
        return S_OK;
    }
    const int position = pane_.positionOf(row);
    if (position == 0) return S_OK;
    if (pane_.taskPad())
        runTask(host(), pane_, position);
    else
        host().perform(pane_, [&](Console& model) { model.doubleClickRow(position); });
    return S_OK;
}

/// In a list with rows of its own, a row's cookie is its place.
HRESULT WINAPI Component::QueryDataObject(MMC_COOKIE cookie, DATA_OBJECT_TYPES type,
                                          IDataObject** object)
{
    return guarded([&]() -> HRESULT {
        if (!object) return E_POINTER;
        *object = nullptr;
        if (!host().runs()) return E_UNEXPECTED;
        const auto shown = pane_.shownItem();
        const bool ofRow = type == CCT_RESULT && asksForRows_;
        const bool ofAll = IS_SPECIAL_COOKIE(cookie);
        if (!ofRow && !ofAll)
            *object = host().dataObject(cookie).release();
        else if (shown)
            *object = host()
                          .dataObject(host().nodes().cookieOf(*shown),
                                      ofAll ? -1 : static_cast<int>(cookie))
                          .release();
        return *object ? S_OK : E_INVALIDARG;
    });
}

HRESULT WINAPI Component::CompareObjects(IDataObject* left, IDataObject* right)
{
    return guarded([&]() -> HRESULT {
        return subjectOf(left, host_.get()) == subjectOf(right, host_.get()) ? S_OK : S_FALSE;
    });
}

HRESULT WINAPI Component::GetResultViewType(MMC_COOKIE cookie, LPOLESTR* type, long* options)
{
    return guarded([&]() -> HRESULT {
        if (!type || !options) return E_POINTER;
        *type = nullptr;
        *options = MMC_VIEW_OPTIONS_NONE;
        pane_.askForTaskPads();
        if (!host().runs()) return E_UNEXPECTED;
        const auto item = host().nodes().itemOf(cookie);
        if (!item) return E_INVALIDARG;
        asksForRows_ = false;
        const ViewChoice choice = host().model().defaultView(*item);
        const bool isPad = choice.type == ResultViewType::taskPad;
        if (isPad && pane_.showsTaskPads()) {
            *type = taskText(taskPadPage(choice.displayString));
            return S_OK;
        }
        asksForRows_ = isPad || choice.rows == ListRows::own;
        if (asksForRows_)
            *options =
                MMC_VIEW_OPTIONS_OWNERDATALIST | MMC_VIEW_OPTIONS_EXCLUDE_SCOPE_ITEMS_FROM_LIST;
        return S_FALSE;
    });
}

HRESULT WINAPI Component::GetDisplayInfo(RESULTDATAITEM* asked)
{
    return guarded([&]() -> HRESULT {
        if (!asked) return E_POINTER;
        // A row has the image of the node that it belongs to.
        const auto item =
            asked->bScopeItem ? host().nodes().itemOf(asked->lParam) : pane_.shownItem();
        if (asked->bScopeItem && !item) return E_INVALIDARG;
        const int image = item ? host().nodes().imageOf(*item) : -1;
        if (asked->mask & RDI_IMAGE && image >= 0) asked->nImage = image;
        if (!(asked->mask & RDI_STR)) return S_OK;
        if (!asked->bScopeItem)
            asked->str = pane_.cell(asked->nIndex, asked->nCol);
        else
            asked->str = pane_.keep(asked->nCol == 0 ? wideOf(item->displayName()) : L"");
        return S_OK;
    });
}

HRESULT WINAPI Component::FindItem(LPRESULTFINDINFO, int*)
{
    return S_FALSE;
}

HRESULT WINAPI Component::CacheHint(int, int)
{
    return S_OK;
}

HRESULT WINAPI Component::SortItems(int column, DWORD options, LPARAM)
{
    return guarded([&]() -> HRESULT {
        if (!host().runs() || host().busy()) return S_FALSE;
        return pane_.sort(column, !(options & RSI_DESCENDING)) ? S_OK : S_FALSE;
    });
}

HRESULT WINAPI Component::TaskNotify(IDataObject*, VARIANT* argument, VARIANT*)
{
    return guarded([&]() -> HRESULT {
        if (!argument) return E_POINTER;
        if (argument->vt != VT_I4) return E_INVALIDARG;
        return runTask(host(), pane_, argument->lVal) ? S_OK : S_FALSE;
    });
}

HRESULT WINAPI Component::EnumTasks(IDataObject*, LPOLESTR, IEnumTASK** tasks)
{
    return guarded([&]() -> HRESULT {
        if (!tasks) return E_POINTER;
        *tasks = nullptr;
        TaskPad* const pad = pane_.taskPad();
        if (!pad) return S_FALSE;
        *tasks = makeObject<TaskList>(*pad).release();
        return S_OK;
    });
}

HRESULT WINAPI Component::GetTitle(LPOLESTR, LPOLESTR* title)
{
    return guarded([&]() -> HRESULT {
        if (!title) return E_POINTER;
        const TaskPad* const pad = pane_.taskPad();
        *title = taskText(pad ? pad->title : std::string());
        return S_OK;
    });
}

HRESULT WINAPI Component::GetDescriptiveText(LPOLESTR, LPOLESTR* text)
{
    return guarded([&]() -> HRESULT {
        if (!text) return E_POINTER;
        const TaskPad* const pad = pane_.taskPad();
        *text = taskText(pad ? pad->description : std::string());
        return S_OK;
    });
}

/// None: what a definition names for it need not be there.
HRESULT WINAPI Component::GetBackground(LPOLESTR, MMC_TASK_DISPLAY_OBJECT* background)
{
    if (!background) return E_POINTER;
    *background = {};
    return S_FALSE;
}

HRESULT WINAPI Component::GetListPadInfo(LPOLESTR, MMC_LISTPAD_INFO* info)
{
    if (!info) return E_POINTER;
    *info = {};
    return S_FALSE;
}

} // namespace mmc
