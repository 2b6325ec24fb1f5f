#pragma once

#include "console/console.h"
#include "hosts/mmc/com/data_object.h"
#include "hosts/mmc/console_desktop.h"
#include "hosts/mmc/result_pane.h"
#include "hosts/mmc/scope_nodes.h"
#include "hosts/mmc/sheet_windows.h"
#include "hosts/mmc/snap_in.h"
#include "hosts/mmc/tool_thread.h"

#include <functional>
#include <memory>
#include <vector>

namespace mmc {

/// What a person asks for help on.
enum class Help { onSnapIn, onNode, onRows };

/// A tool in one console: the model on one side, the console's interfaces on the other. What the
/// console asks becomes an event of the model, one at a time; what the model tells is brought to
/// the console.
///
/// Everything but `make` and the going of the last reference is on the thread that made it. Each
/// call and each native sheet holds a reference, as the console may let go of the snap-in in the
/// middle of one.
class Host final : public std::enable_shared_from_this<Host>, private ConsoleObserver {
public:
    /// `snapIn` outlives the host.
    static std::shared_ptr<Host> make(const SnapIn& snapIn);

    const SnapIn& snapIn() const { return snapIn_; }

    /// Opens the tool and loads it. What loading raises is told to the person. Fails, where the
    /// console lacks an interface and, having told the person, where the tool can't be opened.
    /// `pageOwner` is who the console asks for pages; it outlives the call of `stop`.
    HRESULT start(IUnknown* console, IUnknown* pageOwner);

    /// Lets sheets and tool go. What unloading raises is told to the person.
    void stop();

    /// Whether there is a tool: between `start` and `stop`.
    bool runs() const { return tool_ && !stopped_; }

    /// The model, and what its texts are encoded in. For a host that runs alone.
    Console& model() { return tool_->console(); }
    const CodePage& codePage() { return tool_->codePage(); }

    /// The tool. For a host that runs alone.
    Tool& tool() { return *tool_; }

    ScopeNodes& nodes() { return nodes_; }
    SheetWindows& sheets() { return sheets_; }

    /// A window of the console comes, with a view of its own, or goes. A pane that came goes before
    /// its object does.
    void addPane(ResultPane& pane);
    void removePane(ResultPane& pane);

    /// The window that the person is in; null while there is none.
    ResultPane* activePane() const { return active_; }
    void activate(ResultPane& pane);

    /// Does in a window what the person wishes, unless the tool is at work. What it raises is told
    /// to the person.
    void perform(ResultPane& pane, const std::function<void(Console&)>& call);

    /// `perform` for what may change the server: while no other program does.
    void change(ResultPane& pane, const std::function<void(Console&)>& call);

    /// The person gets help while the tool is at work, too; where nothing is selected, on the
    /// snap-in.
    void help(ResultPane& pane, Help asked);

    /// Whether the tool takes no event now.
    bool busy();

    /// The console opened a node, or has let go of what lay below it.
    void expanded(ScopeItem& item, HSCOPEITEM handle);

    /// The console shows a node in a window, or what it showed there no more.
    void shown(ResultPane& pane, ScopeItem& item, HSCOPEITEM handle);
    void hidden(ResultPane& pane);

    /// The person wants a window to show what it shows anew; other windows with the same node
    /// follow by `renew`.
    void refresh(ResultPane& pane, IDataObject* object);
    void renew(ResultPane& pane, ScopeItem& item, LPARAM origin);

    /// Brings a node on show in a window.
    void goTo(ResultPane& pane, ScopeItem& item);

    /// Sees to it that the model has a selection in a window where the console has shown nothing of
    /// the snap-in's yet, so that menus can be built: the root is selected. False where the tool is
    /// at work, or that failed.
    bool haveSelection(ResultPane& pane);

    /// The data object of a node, or of a row of the list on show. Null for a cookie that stands
    /// for nothing.
    ComPointer<IDataObject> dataObject(MMC_COOKIE cookie, int row = -1);

    /// What a data object of this host stands for; null for another.
    std::shared_ptr<ScopeItem> itemOf(IDataObject* object) const;

private:
    explicit Host(const SnapIn& snapIn);
    ~Host() override = default;

    /// Counts the calls that are under way.
    class Depth {
    public:
        explicit Depth(int& depth) : depth_(depth) { ++depth_; }
        ~Depth() { --depth_; }
        Depth(const Depth&) = delete;
        Depth& operator=(const Depth&) = delete;

    private:
        int& depth_;
    };

    /// What the console did in a window while the tool was at work.
    struct Wish {
        ResultPane* pane; ///< null: a node is to be expanded
        std::weak_ptr<ScopeItem> item;
    };

    void scopeItemAdded(ScopeItem& item) override;
    void scopeItemChanged(ScopeItem& item) override;
    void scopeItemRemoved(ScopeItem& item) override;
    void selectionChanged(View&) override {}
    void viewReset(ResultView& resultView) override;
    void viewFilled(ResultView& resultView) override;
    void selected(View& view) override;
    void statusBarChanged(View& view) override;
    void sheetShown(OpenSheet& sheet) override;
    void handlerFailed(const RunTimeError& error) override;

    SheetWindows::Around aroundSheets();
    void runIn(ResultPane& pane, const std::function<void(Console&)>& call);
    void run(const std::function<void()>& call);
    void inTurn(OpenSheet* sheet, const std::function<void()>& change);
    void endTool();

    /// Lets the console go; gives what is to be told of it.
    HRESULT leave(HRESULT result);
    void settle();
    void letToolGo();

    /// A call that talks to the console about nodes, in which the tool stays there even if the
    /// console lets go of it.
    void inHand(const std::function<void()>& call);

    bool grantWish();
    void tell(const RunTimeError& error);
    void bringSelection(ResultPane& pane);
    void complain(ResultPane& pane, const ScopeItem& item);
    ResultPane* paneOf(const View& view) const;
    bool hasPane(const ResultPane* pane) const;
    GUID nodeTypeOf(const ScopeItem& item);

    const SnapIn& snapIn_;
    ToolThread thread_;
    ConsoleDesktop desktop_;
    ComPointer<IConsole2> console_;
    IUnknown* pageOwner_ = nullptr;
    ScopeNodes nodes_;
    SheetWindows sheets_;
    std::unique_ptr<Tool> tool_;
    std::vector<ResultPane*> panes_;
    ResultPane* active_ = nullptr;
    View* spare_ = nullptr; ///< the model's last view, when the last window has gone
    std::vector<Wish> wishes_;
    std::shared_ptr<const void> turn_; ///< to change the server
    int depth_ = 0;
    int following_ = 0;  ///< calls by which the console follows the model
    bool quiet_ = false; ///< the console does not follow
    bool complained_ = false;
    bool stopped_ = false;
};

} // namespace mmc
