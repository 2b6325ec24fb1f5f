#include "hosts/mmc/host.h"

#include "hosts/mmc/images.h"
#include "runtime/run_time_error.h"
#include "system/windows/windows_calls.h"

#include <algorithm>
#include <utility>

namespace mmc {

/// The tool, and windows that belong to a thread, go on their own thread, whichever lets go of the
/// last reference. Where its loop has ended, so has the program.
std::shared_ptr<Host> Host::make(const SnapIn& snapIn)
{
    return std::shared_ptr<Host>(new Host(snapIn), [](Host* host) {
        if (host->thread_.isCurrent())
            delete host;
        else
            host->thread_.post([host] { delete host; });
    });
}

Host::Host(const SnapIn& snapIn)
    : snapIn_(snapIn), nodes_(snapIn), sheets_(thread_, desktop_, aroundSheets())
{
    desktop_.onQuit = [this] {
        if (tool_) tool_->cancelWork();
    };
    // What is written before is whole; nobody knows how long the person takes.
    desktop_.onBox = [this] { turn_.reset(); };
}

/// What a sheet is given keeps the host alive. The host holds sheets that wait no longer than until
/// they are shown.
SheetWindows::Around Host::aroundSheets()
{
    SheetWindows::Around around;
    around.ofSheets = [this] {
        return NativeSheet::Around{
            [host = shared_from_this()](const std::function<void()>& action) {
                if (host->runs()) host->run(action);
            },
            [host = shared_from_this()] { return !host->runs() || host->busy(); },
            [host = shared_from_this()](OpenSheet& sheet, const std::function<void()>& action) {
                if (host->runs()) host->run([&] { host->inTurn(&sheet, action); });
            }};
    };
    around.refused = [this](const std::wstring& title) {
        desktop_.messageBox("The console can't show \"" + utf8Of(title) + "\".",
                            runs() ? model().displayName() : std::string(), MessageIcon::critical);
    };
    around.pageOwner = [this] { return pageOwner_; };
    around.subject = [this] { return dataObject(0); };
    return around;
}

HRESULT Host::start(IUnknown* console, IUnknown* pageOwner)
{
    if (tool_ || stopped_) return E_UNEXPECTED;
    console_ = ComPointer<IConsole2>::of(console);
    auto names = ComPointer<IConsoleNameSpace2>::of(console);
    if (!console_ || !names) return leave(E_NOINTERFACE);
    pageOwner_ = pageOwner;
    desktop_.connect(console_);
    ComPointer<IImageList> images;
    if (SUCCEEDED(console_->QueryScopeImageList(images.out()))) addImages(*images.get(), snapIn_);
    try {
        tool_ = snapIn_.open(desktop_);
    } catch (const RunTimeError& error) {
        tell(error);
        return leave(E_FAIL);
    }
    nodes_.connect(std::move(names), model().root());
    model().addObserver(*this);
    run([this] { tool_->load(); });
    return S_OK;
}

void Host::stop()
{
    if (!runs()) return;
    const auto held = shared_from_this();
    endTool();
    settle();
}

void Host::endTool()
{
    const Depth depth{depth_};
    tool_->cancelWork();
    sheets_.abandonAll();
    // The console may have come back for the same meanwhile.
    if (std::exchange(stopped_, true)) return;
    // From here on nothing is shown: the console is taking its windows down.
    model().removeObserver(*this);
    // Unloading has one of its own; a change that is under way goes on without.
    turn_.reset();
    try {
        tool_->unload();
    } catch (const RunTimeError& error) {
        tell(error);
    }
    for (ResultPane* pane : std::exchange(panes_, {})) pane->disconnect();
    active_ = nullptr;
    wishes_.clear();
    nodes_.disconnect();
    leave(S_OK);
}

HRESULT Host::leave(HRESULT result)
{
    desktop_.connect({});
    console_.reset();
    pageOwner_ = nullptr;
    return result;
}

void Host::addPane(ResultPane& pane)
{
    View* const free = std::exchange(spare_, nullptr);
    const bool first = panes_.empty() && !free;
    pane.view(first ? model().views().front() : free ? free : &model().addView());
    panes_.push_back(&pane);
    if (!active_) active_ = &pane;
}

void Host::removePane(ResultPane& pane)
{
    if (!hasPane(&pane)) return;
    View* const view = pane.view();
    panes_.erase(std::find(panes_.begin(), panes_.end(), &pane));
    std::erase_if(wishes_, [&](const Wish& wish) { return wish.pane == &pane; });
    if (active_ == &pane) active_ = panes_.empty() ? nullptr : panes_.front();
    pane.disconnect();
    if (panes_.empty())
        spare_ = view;
    else
        run([&] { model().closeView(*view); });
}

void Host::activate(ResultPane& pane)
{
    if (!runs() || !hasPane(&pane)) return;
    active_ = &pane;
    if (!busy()) model().activate(*pane.view());
}

bool Host::busy()
{
    return model().busy() != Busy::no;
}

void Host::perform(ResultPane& pane, const std::function<void(Console&)>& call)
{
    if (runs() && !busy()) runIn(pane, call);
}

void Host::change(ResultPane& pane, const std::function<void(Console&)>& call)
{
    perform(pane, [&](Console& model) { inTurn(nullptr, [&] { call(model); }); });
}

/// The turn ends with the change, or with the first box that it shows.
void Host::inTurn(OpenSheet* sheet, const std::function<void()>& change)
{
    if (turn_) return change();
    turn_ = tool_->takeTurn(sheet, [this](const std::string& notice) {
        if (active_) active_->showStatus(notice);
    });
    struct AtEnd {
        std::shared_ptr<const void>& turn;
        ~AtEnd() { turn.reset(); }
    } const atEnd{turn_};
    change();
}

void Host::help(ResultPane& pane, Help asked)
{
    runIn(pane, [&](Console& model) {
        if (asked == Help::onSnapIn || !pane.selectedItem())
            model.helpOnSnapIn();
        else if (asked == Help::onNode)
            model.helpOnScopeItem();
        else
            model.helpOnResultView();
    });
}

void Host::runIn(ResultPane& pane, const std::function<void(Console&)>& call)
{
    if (!runs() || !hasPane(&pane)) return;
    activate(pane);
    run([&] { call(model()); });
}

/// What the call raises is told when the console shows what came of it.
void Host::run(const std::function<void()>& call)
{
    const auto held = shared_from_this();
    std::unique_ptr<RunTimeError> failure;
    {
        const Depth depth{depth_};
        try {
            call();
        } catch (const RunTimeError& error) {
            failure = std::make_unique<RunTimeError>(error);
        }
    }
    settle();
    if (failure && runs()) tell(*failure);
}

/// Catches up with what the console did while the tool was at work: it can't be kept from showing
/// another node, and it asks for what lies below one once. The tool goes when the console has let
/// go of it and nothing has it in its hands any more, be it on the stack or on the thread of a
/// sheet.
void Host::settle()
{
    while (depth_ == 0 && runs() && !busy())
        if (!grantWish()) break;
    letToolGo();
}

void Host::letToolGo()
{
    if (stopped_ && depth_ == 0 && !sheets_.any()) tool_.reset();
}

void Host::inHand(const std::function<void()>& call)
{
    const auto held = shared_from_this();
    {
        const Depth depth{depth_};
        call();
    }
    letToolGo();
}

bool Host::grantWish()
{
    if (!wishes_.empty()) {
        const Wish wish = wishes_.front();
        wishes_.erase(wishes_.begin());
        const auto item = wish.item.lock();
        if (!item || !item->inTree()) return true;
        const Depth depth{depth_};
        try {
            if (!wish.pane)
                model().expand(*item);
            else if (wish.pane->shownItem() == item)
                wish.pane->view()->select(*item);
        } catch (const RunTimeError& error) {
            tell(error);
        }
        nodes_.renewChildren(*item);
        return true;
    }
    for (ResultPane* pane : std::vector<ResultPane*>(panes_)) {
        // The console may have closed it when another one followed.
        if (!hasPane(pane)) continue;
        const auto shown = pane->shownItem();
        ScopeItem* selected = pane->selectedItem();
        if (shown && selected && shown.get() != selected) bringSelection(*pane);
    }
    return false;
}

void Host::tell(const RunTimeError& error)
{
    desktop_.messageBox(error.description(), tool_ ? model().displayName() : std::string(),
                        MessageIcon::critical);
}

bool Host::hasPane(const ResultPane* pane) const
{
    return std::find(panes_.begin(), panes_.end(), pane) != panes_.end();
}

ResultPane* Host::paneOf(const View& view) const
{
    const auto found = std::find_if(panes_.begin(), panes_.end(),
                                    [&](const ResultPane* pane) { return pane->view() == &view; });
    return found == panes_.end() ? nullptr : *found;
}

ComPointer<IDataObject> Host::dataObject(MMC_COOKIE cookie, int row)
{
    const auto item = nodes_.itemOf(cookie);
    if (!item) return {};
    NodeFacts facts{snapIn_.classId, nodeTypeOf(*item), wideOf(item->displayName())};
    const auto made = makeObject<DataObject>(Subject{this, cookie, row}, std::move(facts));
    return ComPointer<IDataObject>::of(static_cast<IDataObject*>(made.get()));
}

std::shared_ptr<ScopeItem> Host::itemOf(IDataObject* object) const
{
    const Subject subject = subjectOf(object, this);
    return subject.host ? nodes_.itemOf(subject.cookie) : nullptr;
}

/// Of the root the registered one; of the others, in the order of their declaration, those that
/// count on from it.
GUID Host::nodeTypeOf(const ScopeItem& item)
{
    GUID id = snapIn_.staticNodeType;
    const auto& types = model().definition().nodeTypes;
    const auto found = std::find_if(types.begin(), types.end(), [&](const auto& declared) {
        return declared.typeName == item.typeName();
    });
    id.Data1 += static_cast<unsigned long>(found - types.begin());
    return id;
}

} // namespace mmc
