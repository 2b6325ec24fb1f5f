#include "hosts/mmc/console/console.h"

#include "hosts/mmc/console/wide_text.h"

#include <exception>
#include <stdexcept>

namespace stand_in {

Console::Console(Maker maker, const CLSID& snapIn, ConsoleOptions options)
    : faultsBefore_(FaultWatch::faults().size()), maker_(std::move(maker)), snapIn_(snapIn),
      options_(options),
      frame_(CreateWindowExW(0, L"STATIC", L"Stand-in console", WS_OVERLAPPEDWINDOW, 0, 0, 800, 600,
                             nullptr, nullptr, GetModuleHandleW(nullptr), nullptr)),
      scopeImages_(contract_, "IComponentData::Initialize"),
      object_(std::make_unique<ConsoleObject>(*this, nullptr))
{}

Console::~Console()
{
    close();
    DestroyWindow(frame_);
}

bool Console::load()
{
    void* made = nullptr;
    const HRESULT created =
        contract_.call("CreateInstance", [&] { return maker_(iid::componentData, &made); });
    if (FAILED(created) || !made) {
        contract_.breach("the snap-in gives no IComponentData");
        return false;
    }
    data_ = Held<IComponentData>(static_cast<IComponentData*>(made));
    initialized_ = SUCCEEDED(contract_.call("IComponentData::Initialize",
                                            [&] { return data_->Initialize(object_->unknown()); }));
    if (!initialized_) {
        contract_.breach("IComponentData::Initialize failed");
        return false;
    }
    Window& first = openWindow();
    if (!first.isOpen()) return false;
    first.selectNode(tree_.root());
    return true;
}

Window& Console::openWindow()
{
    windows_.push_back(std::make_unique<Window>(*this));
    windows_.back()->open();
    return *windows_.back();
}

void Console::closeWindow(std::size_t number)
{
    windows_.at(number)->close();
    windows_.erase(windows_.begin() + static_cast<std::ptrdiff_t>(number));
}

void Console::end()
{
    if (std::exchange(ended_, true)) return;
    scopeTexts_.readAgain(contract_, "a node");
    for (const auto& window : windows_) window->close();
    windows_.clear();
    if (initialized_ &&
        FAILED(contract_.call("IComponentData::Destroy", [&] { return data_->Destroy(); })))
        contract_.breach("IComponentData::Destroy failed");
}

void Console::close()
{
    if (std::exchange(closed_, true)) return;
    end();
    releaseSnapIn();
    if (!pumpUntil([&] { return !sheets_.anyRunning() && sheets_.windows().empty(); }, 3000))
        contract_.breach("a sheet is open after the end of its console");
    // The program goes on, and with it what the threads of sheets left for this one to do.
    handleMessages();
    object_.reset();
    const auto faults = FaultWatch::faults();
    for (std::size_t fault = faultsBefore_; fault < faults.size(); ++fault)
        contract_.breach("a fault " + faults[fault] + " happened");
}

void Console::releaseSnapIn()
{
    if (!data_) return;
    if (object_->references() != 0 || scopeImages_.references() != 0)
        contract_.breach("IComponentData keeps its console after its Destroy");
    if (data_.release() != 0)
        contract_.breach("IComponentData is still referenced after the console let it go");
}

std::string Console::textOf(HSCOPEITEM handle)
{
    const ScopeNode* node = tree_.find(handle);
    if (!node) return {};
    if (!node->textByCall) return node->text;
    SCOPEDATAITEM asked{};
    asked.mask = SDI_STR;
    asked.lParam = node->cookie;
    asked.ID = handle;
    const HRESULT given = contract_.call("IComponentData::GetDisplayInfo",
                                         [&] { return data_->GetDisplayInfo(&asked); });
    if (FAILED(given) || !asked.displayname) {
        contract_.breach("IComponentData::GetDisplayInfo gives no text");
        return {};
    }
    scopeTexts_.remember(handle, 0, asked.displayname);
    scopeTexts_.readAgain(contract_, "a node");
    return narrow(asked.displayname);
}

void Console::expand(HSCOPEITEM handle)
{
    ScopeNode* node = tree_.find(handle);
    if (!node || node->expandedOnce) return;
    node->expandedOnce = true;
    const auto object = scopeObject(*node);
    const HRESULT opened = contract_.call(
        "MMCN_EXPAND", [&] { return data_->Notify(object.get(), MMCN_EXPAND, TRUE, handle); });
    if (FAILED(opened)) contract_.breach("MMCN_EXPAND failed");
}

HSCOPEITEM Console::nodeAt(const std::string& path)
{
    HSCOPEITEM handle = tree_.root();
    expand(handle);
    std::size_t start = 0;
    while (handle && start < path.size()) {
        expand(handle);
        HSCOPEITEM found = 0;
        std::size_t longest = 0;
        // A text may have a "/" in it: the longest that stands next leads on.
        const std::vector<HSCOPEITEM> children = tree_.find(handle)->children;
        for (const HSCOPEITEM child : children) {
            const std::string text = textOf(child);
            const std::size_t end = start + text.size();
            if (text.empty() || path.compare(start, text.size(), text) != 0) continue;
            if (end != path.size() && path[end] != '/') continue;
            if (text.size() < longest) continue;
            longest = text.size();
            found = child;
        }
        handle = found;
        start += longest + 1;
    }
    return handle;
}

std::string Console::pathOf(HSCOPEITEM handle)
{
    std::string path;
    for (const ScopeNode* node = tree_.find(handle); node && node->parent;
         node = tree_.find(node->parent))
        path = path.empty() ? textOf(node->handle) : textOf(node->handle) + "/" + path;
    return path;
}

std::vector<std::string> Console::children(const std::string& path)
{
    std::vector<std::string> texts;
    const HSCOPEITEM handle = nodeAt(path);
    if (!handle) return texts;
    expand(handle);
    const std::vector<HSCOPEITEM> children = tree_.find(handle)->children;
    for (const HSCOPEITEM child : children) texts.push_back(textOf(child));
    return texts;
}

std::vector<std::string> Console::outline()
{
    std::vector<std::string> lines;
    outlineBelow(tree_.root(), 0, lines);
    return lines;
}

void Console::outlineBelow(HSCOPEITEM handle, int depth, std::vector<std::string>& lines)
{
    expand(handle);
    const ScopeNode* node = tree_.find(handle);
    if (!node) return;
    lines.push_back(std::string(static_cast<std::size_t>(depth) * 2, ' ') + textOf(handle));
    const std::vector<HSCOPEITEM> children = node->children;
    for (const HSCOPEITEM child : children) outlineBelow(child, depth + 1, lines);
}

void Console::nodeLeaves(HSCOPEITEM handle, bool itself)
{
    // The console brings the selection of its windows to what stays, and tells the snap-in of what
    // it leaves: the item is still there for it.
    for (std::size_t number = 0; number < windows_.size(); ++number) {
        Window& window = *windows_[number];
        if (!tree_.isWithin(window.selected(), handle)) continue;
        if (!itself && window.selected() == handle) continue;
        const HSCOPEITEM parent = itself ? tree_.find(handle)->parent : handle;
        window.selectNode(parent);
        if (!tree_.find(handle)) {
            contract_.breach("an item goes while the console leaves it");
            return;
        }
    }
    std::vector<HSCOPEITEM> going = tree_.find(handle)->children;
    if (itself) going = {handle};
    for (const HSCOPEITEM each : going) {
        scopeTexts_.forgetItem(each);
        tree_.remove(each);
    }
}

void Console::updateAllViews(IDataObject* object, LPARAM data, LONG_PTR hint)
{
    for (std::size_t number = 0; number < windows_.size(); ++number) {
        ++windows_[number]->viewChanges_;
        windows_[number]->notify(object, MMCN_VIEW_CHANGE, data, hint, "MMCN_VIEW_CHANGE");
    }
}

} // namespace stand_in
