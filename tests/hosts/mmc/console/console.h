#pragma once

#include "hosts/mmc/console/contract.h"
#include "hosts/mmc/console/scope_tree.h"
#include "hosts/mmc/console/sheet.h"
#include "hosts/mmc/console/window.h"

#include <deque>
#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace stand_in {

/// A message box that the snap-in asked for.
struct Box {
    std::string title;
    std::string text;
    UINT style;
};

struct ConsoleOptions {
    bool prefersTaskPads = true;
    bool givesSheets = true; ///< whether its objects offer IPropertySheetProvider
};

/// A management console for tests, on the thread that makes it: it does to a snap-in what a person
/// would have the genuine one do, as its documentation tells, and notes what the snap-in does
/// against that documentation.
class Console {
public:
    /// Gives an object of a snap-in, as `CoCreateInstance` does.
    using Maker = std::function<HRESULT(REFIID id, void** object)>;

    Console(Maker maker, const CLSID& snapIn, ConsoleOptions options = {});
    ~Console();
    Console(const Console&) = delete;
    Console& operator=(const Console&) = delete;

    /// Loads the snap-in, opens a window and selects the root in it. False when the snap-in fails.
    bool load();

    /// Takes the windows down and ends the snap-in, whatever the thread is in the middle of, such
    /// as the loop of a wizard. Once; `close` lets go of the rest.
    void end();

    /// Lets all go, as the end of the console does; open sheets with it. Once.
    void close();

    /// What the snap-in did wrong so far, one sentence each.
    std::vector<std::string> breaches() const { return contract_.breaches(); }
    Contract& contract() { return contract_; }
    const ConsoleOptions& options() const { return options_; }

    Window& window(std::size_t number = 0) { return *windows_.at(number); }
    std::size_t windowCount() const { return windows_.size(); }

    /// A further window, without a selection.
    Window& openWindow();
    void closeWindow(std::size_t number);

    ScopeTree& tree() { return tree_; }
    ImageList& scopeImages() { return scopeImages_; }

    /// The text of a node in the tree.
    std::string textOf(HSCOPEITEM handle);

    /// 0 for a path that leads nowhere. Nodes are opened on the way there.
    HSCOPEITEM nodeAt(const std::string& path);
    std::string pathOf(HSCOPEITEM handle);

    /// Opens a node, once.
    void expand(HSCOPEITEM handle);

    /// The texts of a node's children, opened before.
    std::vector<std::string> children(const std::string& path);

    /// The tree as lines, two blanks a level; all nodes are opened.
    std::vector<std::string> outline();

    /// The menu of a node that is not selected.
    std::vector<MenuItem> menuOf(const std::string& path);

    /// Message boxes so far, oldest first, and what the next ones are answered with.
    const std::vector<Box>& boxes() const { return boxes_; }
    void answerNext(int button) { answers_.push_back(button); }

    /// Help topics that the snap-in showed, and the file of its own that it named.
    const std::vector<std::string>& topics() const { return topics_; }
    std::string helpFile();

    /// The menu's "Help on ...": whether the snap-in took it.
    bool helpOnSnapIn();

    /// Sends what a snap-in without clipboard and names must leave alone; what it takes is noted.
    void sendWhatIsNotHandled();

    /// Handles messages until something holds; false when it does not within the bound.
    bool pumpUntil(const std::function<bool()>& holds, int milliseconds = 30000);
    void pumpFor(int milliseconds);

    /// Handles the messages that are there.
    static void handleMessages();

    /// Does something that shows a sheet, then lets a person's actions run on the sheet, on a
    /// thread of their own, and handles messages until both have ended. An action that fails throws
    /// out of here, after the sheet was closed.
    void withSheet(const std::function<void()>& opens, const std::function<void(Sheet&)>& person,
                   int milliseconds = 50000);

    /// Sheets that are on the screen.
    std::vector<HWND> openSheets() { return sheets_.windows(); }
    SheetRegister& sheets() { return sheets_; }

    HWND frame() const { return frame_; }
    IComponentData* data() { return data_.get(); }

    /// A data object of the snap-in for a scope item, its formats tried the first time.
    Held<IDataObject> scopeObject(const ScopeNode& node);

private:
    friend class ConsoleObject;
    friend class Window;

    void checkObject(IDataObject* object, const ScopeNode* node);
    void updateAllViews(IDataObject* object, LPARAM data, LONG_PTR hint);
    void nodeLeaves(HSCOPEITEM handle, bool itself);
    void outlineBelow(HSCOPEITEM handle, int depth, std::vector<std::string>& lines);
    int answerBox(UINT style);
    void releaseSnapIn();

    Contract contract_;
    FaultWatch faults_;
    std::size_t faultsBefore_;
    Maker maker_;
    CLSID snapIn_;
    ConsoleOptions options_;
    HWND frame_;
    ScopeTree tree_;
    HandedTexts scopeTexts_{100000};
    ImageList scopeImages_;
    std::unique_ptr<ConsoleObject> object_;
    Held<IComponentData> data_;
    SheetRegister sheets_;
    std::vector<std::unique_ptr<Window>> windows_;
    std::vector<Box> boxes_;
    std::deque<int> answers_;
    std::vector<std::string> topics_;
    bool initialized_ = false;
    bool ended_ = false;
    bool closed_ = false;
};

} // namespace stand_in
