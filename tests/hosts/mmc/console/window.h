#pragma once

#include "hosts/mmc/console/console_object.h"
#include "hosts/mmc/console/handed_texts.h"
#include "hosts/mmc/console/image_list.h"
#include "hosts/mmc/console/menu_list.h"

#include <map>
#include <memory>
#include <string>
#include <vector>

namespace stand_in {

class Console;

/// What the right pane of a window shows.
enum class Shown { nothing, list, virtualList, taskPad, custom };

/// A row that the snap-in inserted.
struct ResultItem {
    HRESULTITEM id = 0;
    LPARAM cookie = 0;
    std::string text;
    bool textByCall = false;
};

/// A task of the task pad.
struct Task {
    std::string text;
    std::string helpText;
    std::string symbol;
    LONG_PTR command = 0;
};

struct ShownColumn {
    std::string title;
    int width = 0;
};

/// A window of the console, on a component of the snap-in's: what a person sees in it and does.
///
/// Paths are the texts of nodes below the root, with "/" between them; the root is the empty path.
/// A call that cannot be done, as there is no such node, row, task or item, is noted as a breach of
/// the test's own and does nothing.
class Window {
public:
    explicit Window(Console& console);
    ~Window();

    /// Has the snap-in make its component. False when it fails.
    bool open();

    /// Leaves the selection and lets the component go.
    void close();
    bool isOpen() const { return static_cast<bool>(component_); }

    /// What stands behind it, for calls that no person brings about.
    IComponent* component() const { return component_.get(); }
    IUnknown* consoleObject() const { return object_->unknown(); }

    bool select(const std::string& path);
    void selectNode(HSCOPEITEM handle);
    HSCOPEITEM selected() const { return selected_; }
    std::string selectedPath();

    Shown shown() const { return shown_; }
    const std::string& viewType() const { return viewType_; }
    const std::vector<ShownColumn>& columns() const { return columns_; }
    std::vector<std::string> columnTitles() const;

    /// Rows as they stand on the screen, from 0; a cell of each column.
    int rowCount();
    std::vector<std::string> row(int row);
    std::string cell(int row, int column);
    std::vector<std::vector<std::string>> rows();

    /// The first row that has a text in a column; -1 for none.
    int findRow(int column, const std::string& text);

    void selectRow(int row);
    void doubleClick(int row);

    /// A click on a column's header.
    void sort(int column, bool descending);

    bool isVerbEnabled(MMC_CONSOLE_VERB verb) const;

    /// The verb of the menu, where the selection offers it. False when it does not.
    bool refresh();

    /// F1 on the selection: whether the snap-in took it.
    bool help();

    /// The context menu of the selected node.
    std::vector<MenuItem> contextMenu();
    bool choose(const std::string& caption);

    /// The task pad, asked for anew.
    std::string taskPadTitle();
    std::string taskPadText();
    std::vector<Task> tasks();
    bool clickTask(const std::string& text);

    const std::string& statusText() const { return statusText_; }

    /// How often MMCN_SHOW(TRUE) was sent, and MMCN_VIEW_CHANGE.
    int shows() const { return shows_; }
    int viewChanges() const { return viewChanges_; }

    /// Sends a notification about the selection, for what has no command here.
    HRESULT notifySelected(MMC_NOTIFY_TYPE event, LPARAM arg, LPARAM param, const char* name);

private:
    friend class Console;
    friend class ConsoleObject;

    HRESULT notify(IDataObject* object, MMC_NOTIFY_TYPE event, LPARAM arg, LPARAM param,
                   const char* name);
    void leave();
    bool askViewType(MMC_COOKIE cookie);
    void acceptViewType(HRESULT result, LPOLESTR type, __LONG32 options);
    void showSelected(IDataObject* object);
    void forgetRows();

    Held<IDataObject> rowObject(int row, bool& isScopeItem, HSCOPEITEM& node);
    std::vector<HSCOPEITEM> childRows();
    std::string askText(RESULTDATAITEM& asked, LPARAM item, const std::string& whose);
    std::string taskPadText(HRESULT (WINAPI IExtendTaskPad::*which)(LPOLESTR, LPOLESTR*),
                            const char* name);
    Task takeTask(MMC_TASK& task);

    Console& console_;
    std::unique_ptr<ConsoleObject> object_;
    ImageList images_;
    Held<IComponent> component_;

    HSCOPEITEM selected_ = 0;
    bool isShown_ = false;      ///< MMCN_SHOW(TRUE) was sent for it
    bool isSelectTold_ = false; ///< MMCN_SELECT was sent for it
    int selections_ = 0;        ///< counts them, to know of one within another
    Shown shown_ = Shown::nothing;
    std::string viewType_;
    __LONG32 options_ = 0;

    std::vector<ShownColumn> columns_;
    std::vector<ResultItem> items_;
    std::vector<int> order_; ///< of a list that the console itself sorts: rows as inserted
    HRESULTITEM lastItem_ = 0x9000;
    int virtualCount_ = 0;
    HandedTexts texts_{64};
    std::map<int, bool> enabledVerbs_;
    std::string statusText_;
    std::string descriptionText_;
    int shows_ = 0;
    int viewChanges_ = 0;
};

} // namespace stand_in
