#include "hosts/mmc/console/console_object.h"

#include "hosts/mmc/console/console.h"
#include "hosts/mmc/console/wide_text.h"

namespace stand_in {

ConsoleObject::ConsoleObject(Console& console, Window* window)
    : Handed(console.contract()), console_(console), window_(window)
{}

ConsoleObject::~ConsoleObject() = default;

void* ConsoleObject::interfaceOf(REFIID id)
{
    if (id == IID_IUnknown || id == iid::console || id == iid::console2)
        return static_cast<IConsole2*>(this);
    if (id == iid::displayHelp) return static_cast<IDisplayHelp*>(this);
    if (id == iid::propertySheetProvider)
        return console_.options().givesSheets ? static_cast<IPropertySheetProvider*>(this)
                                              : nullptr;
    if (id == iid::propertySheetCallback && addsPages_)
        return static_cast<IPropertySheetCallback*>(this);
    const bool isOfScope = id == iid::nameSpace || id == iid::nameSpace2;
    if (isOfScope && !window_) return static_cast<IConsoleNameSpace2*>(this);
    if (void* found = interfaceOfWindow(id)) return found;
    if (isOfScope) contract_.breach("a component asks its console for the name space");
    return nullptr;
}

void* ConsoleObject::interfaceOfWindow(REFIID id)
{
    void* found = nullptr;
    if (id == iid::headerCtrl || id == iid::headerCtrl2) found = static_cast<IHeaderCtrl2*>(this);
    if (id == iid::resultData) found = static_cast<IResultData*>(this);
    if (id == iid::consoleVerb) found = static_cast<IConsoleVerb*>(this);
    if (!found || window_) return found;
    contract_.breach("IComponentData asks its console for what belongs to a window");
    return nullptr;
}

HRESULT ConsoleObject::refused(const std::string& what, HRESULT code)
{
    contract_.breach(what);
    return code;
}

HRESULT WINAPI ConsoleObject::SetHeader(LPHEADERCTRL)
{
    return contract_.onThread("SetHeader") ? S_OK : RPC_E_WRONG_THREAD;
}

HRESULT WINAPI ConsoleObject::SetToolbar(LPTOOLBAR)
{
    return contract_.onThread("SetToolbar") ? S_OK : RPC_E_WRONG_THREAD;
}

HRESULT WINAPI ConsoleObject::QueryResultView(LPUNKNOWN* view)
{
    if (!contract_.onThread("QueryResultView")) return RPC_E_WRONG_THREAD;
    if (!view) return E_POINTER;
    *view = nullptr;
    return E_FAIL;
}

HRESULT WINAPI ConsoleObject::QueryScopeImageList(LPIMAGELIST* images)
{
    if (!contract_.onThread("QueryScopeImageList")) return RPC_E_WRONG_THREAD;
    if (!images) return refused("QueryScopeImageList is given a null pointer", E_POINTER);
    *images = &console_.scopeImages();
    console_.scopeImages().AddRef();
    return S_OK;
}

HRESULT WINAPI ConsoleObject::QueryResultImageList(LPIMAGELIST* images)
{
    if (!contract_.onThread("QueryResultImageList")) return RPC_E_WRONG_THREAD;
    if (!images) return refused("QueryResultImageList is given a null pointer", E_POINTER);
    *images = nullptr;
    if (!window_) return refused("IComponentData asks for the images of a result pane", E_FAIL);
    *images = &window_->images_;
    window_->images_.AddRef();
    return S_OK;
}

HRESULT WINAPI ConsoleObject::UpdateAllViews(LPDATAOBJECT object, LPARAM data, LONG_PTR hint)
{
    if (!contract_.onThread("UpdateAllViews")) return RPC_E_WRONG_THREAD;
    console_.updateAllViews(object, data, hint);
    return S_OK;
}

HRESULT WINAPI ConsoleObject::MessageBoxW(LPCWSTR text, LPCWSTR title, UINT style, int* answer)
{
    if (!contract_.onThread("MessageBox")) return RPC_E_WRONG_THREAD;
    if (!text) return refused("a message box has no text", E_POINTER);
    console_.boxes_.push_back({narrow(title), narrow(text), style});
    const int given = console_.answerBox(style);
    if (answer) *answer = given;
    return S_OK;
}

HRESULT WINAPI ConsoleObject::QueryConsoleVerb(LPCONSOLEVERB* verbs)
{
    if (!contract_.onThread("QueryConsoleVerb")) return RPC_E_WRONG_THREAD;
    if (!verbs) return refused("QueryConsoleVerb is given a null pointer", E_POINTER);
    *verbs = nullptr;
    if (!window_) return refused("IComponentData asks its console for verbs", E_FAIL);
    *verbs = this;
    AddRef();
    return S_OK;
}

HRESULT WINAPI ConsoleObject::SelectScopeItem(HSCOPEITEM handle)
{
    if (!contract_.onThread("SelectScopeItem")) return RPC_E_WRONG_THREAD;
    if (!console_.tree().find(handle))
        return refused("SelectScopeItem is given an item that is not in the tree");
    if (!window_ && console_.windowCount() == 0) return E_FAIL;
    Window& window = window_ ? *window_ : console_.window();
    // The console's tree control sends nothing when what is selected is selected again.
    if (window.selected() != handle) window.selectNode(handle);
    return S_OK;
}

HRESULT WINAPI ConsoleObject::GetMainWindow(HWND* window)
{
    if (!contract_.onThread("GetMainWindow")) return RPC_E_WRONG_THREAD;
    if (!window) return refused("GetMainWindow is given a null pointer", E_POINTER);
    *window = console_.frame();
    return S_OK;
}

HRESULT WINAPI ConsoleObject::NewWindow(HSCOPEITEM handle, unsigned __LONG32)
{
    if (!contract_.onThread("NewWindow")) return RPC_E_WRONG_THREAD;
    if (!console_.tree().find(handle))
        return refused("NewWindow is given an item that is not in the tree");
    console_.openWindow().selectNode(handle);
    return S_OK;
}

HRESULT WINAPI ConsoleObject::Expand(HSCOPEITEM handle, WINBOOL open)
{
    if (!contract_.onThread("IConsole2::Expand")) return RPC_E_WRONG_THREAD;
    if (!console_.tree().find(handle))
        return refused("IConsole2::Expand is given an item that is not in the tree");
    if (open) console_.expand(handle);
    return S_OK;
}

HRESULT WINAPI ConsoleObject::IsTaskpadViewPreferred()
{
    if (!contract_.onThread("IsTaskpadViewPreferred")) return RPC_E_WRONG_THREAD;
    return console_.options().prefersTaskPads ? S_OK : S_FALSE;
}

HRESULT WINAPI ConsoleObject::SetStatusText(LPOLESTR text)
{
    if (!contract_.onThread("SetStatusText")) return RPC_E_WRONG_THREAD;
    if (!text) return refused("SetStatusText is given a null pointer", E_POINTER);
    if (window_)
        window_->statusText_ = narrow(text);
    else if (console_.windowCount() > 0)
        console_.window().statusText_ = narrow(text);
    return S_OK;
}

HRESULT WINAPI ConsoleObject::ShowTopic(LPOLESTR topic)
{
    if (!contract_.onThread("ShowTopic")) return RPC_E_WRONG_THREAD;
    const std::string shown = narrow(topic);
    if (shown.find("::") == std::string::npos)
        return refused("ShowTopic is given \"" + shown + "\", which is not FILE::TOPIC");
    console_.topics_.push_back(shown);
    return S_OK;
}

} // namespace stand_in
