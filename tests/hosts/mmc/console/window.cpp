#include "hosts/mmc/console/window.h"

#include "hosts/mmc/console/console.h"
#include "hosts/mmc/console/wide_text.h"

namespace stand_in {

Window::Window(Console& console)
    : console_(console), object_(std::make_unique<ConsoleObject>(console, this)),
      images_(console.contract(), "MMCN_ADD_IMAGES")
{}

Window::~Window() = default;

bool Window::open()
{
    Contract& contract = console_.contract();
    const HRESULT made = contract.call(
        "CreateComponent", [&] { return console_.data()->CreateComponent(component_.place()); });
    if (FAILED(made) || !component_) {
        contract.breach("CreateComponent gives no component");
        return false;
    }
    const HRESULT ready = contract.call("IComponent::Initialize",
                                        [&] { return component_->Initialize(object_.get()); });
    if (FAILED(ready)) contract.breach("IComponent::Initialize failed");
    return SUCCEEDED(ready);
}

void Window::close()
{
    if (!component_) return;
    Contract& contract = console_.contract();
    leave();
    if (FAILED(contract.call("IComponent::Destroy", [&] { return component_->Destroy(0); })))
        contract.breach("IComponent::Destroy failed");
    if (object_->references() != 0 || images_.references() != 0)
        contract.breach("a component keeps its console after IComponent::Destroy");
    if (component_.release() != 0)
        contract.breach("a component is still referenced after the console let it go");
}

HRESULT Window::notify(IDataObject* object, MMC_NOTIFY_TYPE event, LPARAM arg, LPARAM param,
                       const char* name)
{
    if (!component_) return E_UNEXPECTED;
    return console_.contract().call(name,
                                    [&] { return component_->Notify(object, event, arg, param); });
}

HRESULT Window::notifySelected(MMC_NOTIFY_TYPE event, LPARAM arg, LPARAM param, const char* name)
{
    const ScopeNode* node = console_.tree().find(selected_);
    if (!node) return E_UNEXPECTED;
    const auto object = console_.scopeObject(*node);
    return notify(object.get(), event, arg, param, name);
}

bool Window::select(const std::string& path)
{
    const HSCOPEITEM handle = console_.nodeAt(path);
    if (handle == 0) {
        console_.contract().breach("the test selects \"" + path + "\", which is not there");
        return false;
    }
    selectNode(handle);
    return true;
}

void Window::selectNode(HSCOPEITEM handle)
{
    const int selection = ++selections_;
    leave();
    // An item is opened before its result pane is set up, as that may list what lies below it.
    console_.expand(handle);
    const ScopeNode* node = console_.tree().find(handle);
    if (!node || selection != selections_) return;
    selected_ = handle;
    if (!askViewType(node->cookie)) return;
    node = console_.tree().find(handle);
    if (!node || selection != selections_) return;
    const auto object = console_.scopeObject(*node);
    if (!object) return;
    showSelected(object.get());
    if (selection != selections_ || !console_.tree().find(handle)) return;
    enabledVerbs_.clear();
    isSelectTold_ = true;
    notify(object.get(), MMCN_SELECT, MAKELONG(TRUE, TRUE), 0, "MMCN_SELECT");
}

void Window::showSelected(IDataObject* object)
{
    const HSCOPEITEM handle = selected_;
    if (shown_ == Shown::list || shown_ == Shown::virtualList) {
        const long before = images_.references();
        images_.clear();
        notify(object, MMCN_ADD_IMAGES,
               reinterpret_cast<LPARAM>(static_cast<IImageList*>(&images_)), handle,
               "MMCN_ADD_IMAGES");
        if (images_.references() != before)
            console_.contract().breach("the images of MMCN_ADD_IMAGES are kept, or released");
    }
    ++shows_;
    isShown_ = true;
    const HRESULT shown = notify(object, MMCN_SHOW, TRUE, handle, "MMCN_SHOW");
    if (FAILED(shown)) console_.contract().breach("MMCN_SHOW failed");
}

bool Window::askViewType(MMC_COOKIE cookie)
{
    LPOLESTR type = nullptr;
    __LONG32 options = 0;
    const HRESULT result = console_.contract().call("GetResultViewType", [&] {
        return component_->GetResultViewType(cookie, &type, &options);
    });
    acceptViewType(result, type, options);
    return SUCCEEDED(result);
}

void Window::acceptViewType(HRESULT result, LPOLESTR type, __LONG32 options)
{
    Contract& contract = console_.contract();
    const auto text = contract.takeText(type, "the text of GetResultViewType");
    viewType_ = text.value_or("");
    options_ = options;
    if (FAILED(result)) {
        shown_ = Shown::nothing;
        contract.breach("GetResultViewType failed");
        return;
    }
    constexpr __LONG32 known = 0xFF;
    if ((options & ~known) != 0) contract.breach("GetResultViewType gives options that are none");
    if (result == S_FALSE) {
        shown_ = (options & MMC_VIEW_OPTIONS_OWNERDATALIST) ? Shown::virtualList : Shown::list;
        if (text) contract.breach("GetResultViewType gives a text for a list");
        return;
    }
    shown_ = Shown::custom;
    if (viewType_.empty()) contract.breach("GetResultViewType gives no text for what is no list");
    const bool isPage = viewType_.rfind("res://", 0) == 0;
    if (!isPage || viewType_.find(".htm#") == std::string::npos) return;
    shown_ = Shown::taskPad;
    if (!asked<IExtendTaskPad>(component_.get(), iid::extendTaskPad))
        contract.breach("a component shows a task pad and has no IExtendTaskPad");
}

void Window::leave()
{
    const bool wasShown = std::exchange(isShown_, false);
    const bool wasTold = std::exchange(isSelectTold_, false);
    if (wasShown) {
        texts_.readAgain(console_.contract(), "a row");
        if (const ScopeNode* node = console_.tree().find(selected_)) {
            const HSCOPEITEM handle = node->handle;
            const auto object = console_.scopeObject(*node);
            if (wasTold) notify(object.get(), MMCN_SELECT, MAKELONG(TRUE, FALSE), 0, "MMCN_SELECT");
            notify(object.get(), MMCN_SHOW, FALSE, handle, "MMCN_SHOW");
        }
    }
    forgetRows();
    columns_.clear();
    enabledVerbs_.clear();
    selected_ = 0;
    shown_ = Shown::nothing;
}

void Window::forgetRows()
{
    items_.clear();
    order_.clear();
    virtualCount_ = 0;
    texts_.forgetAll();
}

std::string Window::selectedPath()
{
    return console_.pathOf(selected_);
}

} // namespace stand_in
