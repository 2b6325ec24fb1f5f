#pragma once

#include "hosts/mmc/console/guids.h"
#include "hosts/mmc/console/handed.h"

#include <memory>
#include <string>
#include <vector>

namespace stand_in {

class Console;
class SheetFrame;
class Window;

/// The object that the snap-in knows its console by: one for `IComponentData`, with the scope tree,
/// and one for each component, with what its window shows.
class ConsoleObject final
    : public Handed<IConsole2, IConsoleNameSpace2, IHeaderCtrl2, IResultData, IConsoleVerb,
                    IPropertySheetProvider, IPropertySheetCallback, IDisplayHelp> {
public:
    /// Without a window it is the one for `IComponentData`.
    ConsoleObject(Console& console, Window* window);
    ~ConsoleObject() override;

    IUnknown* unknown() { return static_cast<IConsole2*>(this); }

    // IConsole2
    HRESULT WINAPI SetHeader(LPHEADERCTRL header) override;
    HRESULT WINAPI SetToolbar(LPTOOLBAR toolbar) override;
    HRESULT WINAPI QueryResultView(LPUNKNOWN* view) override;
    HRESULT WINAPI QueryScopeImageList(LPIMAGELIST* images) override;
    HRESULT WINAPI QueryResultImageList(LPIMAGELIST* images) override;
    HRESULT WINAPI UpdateAllViews(LPDATAOBJECT object, LPARAM data, LONG_PTR hint) override;
    HRESULT WINAPI MessageBoxW(LPCWSTR text, LPCWSTR title, UINT style, int* answer) override;
    HRESULT WINAPI QueryConsoleVerb(LPCONSOLEVERB* verbs) override;
    HRESULT WINAPI SelectScopeItem(HSCOPEITEM handle) override;
    HRESULT WINAPI GetMainWindow(HWND* window) override;
    HRESULT WINAPI NewWindow(HSCOPEITEM handle, unsigned __LONG32 options) override;
    HRESULT WINAPI Expand(HSCOPEITEM handle, WINBOOL open) override;
    HRESULT WINAPI IsTaskpadViewPreferred() override;
    HRESULT WINAPI SetStatusText(LPOLESTR text) override;

    // IConsoleNameSpace2
    HRESULT WINAPI InsertItem(LPSCOPEDATAITEM item) override;
    HRESULT WINAPI DeleteItem(HSCOPEITEM handle, __LONG32 itself) override;
    HRESULT WINAPI SetItem(LPSCOPEDATAITEM item) override;
    HRESULT WINAPI GetItem(LPSCOPEDATAITEM item) override;
    HRESULT WINAPI GetChildItem(HSCOPEITEM handle, HSCOPEITEM* child, MMC_COOKIE* cookie) override;
    HRESULT WINAPI GetNextItem(HSCOPEITEM handle, HSCOPEITEM* next, MMC_COOKIE* cookie) override;
    HRESULT WINAPI GetParentItem(HSCOPEITEM handle, HSCOPEITEM* parent,
                                 MMC_COOKIE* cookie) override;
    HRESULT WINAPI Expand(HSCOPEITEM handle) override;
    HRESULT WINAPI AddExtension(HSCOPEITEM handle, LPCLSID extension) override;

    // IHeaderCtrl2
    HRESULT WINAPI InsertColumn(int column, LPCWSTR title, int format, int width) override;
    HRESULT WINAPI DeleteColumn(int column) override;
    HRESULT WINAPI SetColumnText(int column, LPCWSTR title) override;
    HRESULT WINAPI GetColumnText(int column, LPOLESTR* title) override;
    HRESULT WINAPI SetColumnWidth(int column, int width) override;
    HRESULT WINAPI GetColumnWidth(int column, int* width) override;
    HRESULT WINAPI SetChangeTimeOut(unsigned __LONG32 milliseconds) override;
    HRESULT WINAPI SetColumnFilter(UINT column, DWORD type, MMC_FILTERDATA* filter) override;
    HRESULT WINAPI GetColumnFilter(UINT column, LPDWORD type, MMC_FILTERDATA* filter) override;

    // IResultData
    HRESULT WINAPI InsertItem(LPRESULTDATAITEM item) override;
    HRESULT WINAPI DeleteItem(HRESULTITEM item, int column) override;
    HRESULT WINAPI FindItemByLParam(LPARAM cookie, HRESULTITEM* item) override;
    HRESULT WINAPI DeleteAllRsltItems() override;
    HRESULT WINAPI SetItem(LPRESULTDATAITEM item) override;
    HRESULT WINAPI GetItem(LPRESULTDATAITEM item) override;
    HRESULT WINAPI GetNextItem(LPRESULTDATAITEM item) override;
    HRESULT WINAPI ModifyItemState(int index, HRESULTITEM item, UINT add, UINT remove) override;
    HRESULT WINAPI ModifyViewStyle(MMC_RESULT_VIEW_STYLE add,
                                   MMC_RESULT_VIEW_STYLE remove) override;
    HRESULT WINAPI SetViewMode(__LONG32 mode) override;
    HRESULT WINAPI GetViewMode(__LONG32* mode) override;
    HRESULT WINAPI UpdateItem(HRESULTITEM item) override;
    HRESULT WINAPI Sort(int column, DWORD options, LPARAM data) override;
    HRESULT WINAPI SetDescBarText(LPOLESTR text) override;
    HRESULT WINAPI SetItemCount(int count, DWORD options) override;

    // IConsoleVerb
    HRESULT WINAPI GetVerbState(MMC_CONSOLE_VERB verb, MMC_BUTTON_STATE state,
                                WINBOOL* on) override;
    HRESULT WINAPI SetVerbState(MMC_CONSOLE_VERB verb, MMC_BUTTON_STATE state, WINBOOL on) override;
    HRESULT WINAPI SetDefaultVerb(MMC_CONSOLE_VERB verb) override;
    HRESULT WINAPI GetDefaultVerb(MMC_CONSOLE_VERB* verb) override;

    // IPropertySheetProvider, IPropertySheetCallback
    HRESULT WINAPI CreatePropertySheet(LPCWSTR title, boolean plain, MMC_COOKIE cookie,
                                       LPDATAOBJECT object, DWORD options) override;
    HRESULT WINAPI FindPropertySheet(MMC_COOKIE cookie, LPCOMPONENT component,
                                     LPDATAOBJECT object) override;
    HRESULT WINAPI AddPrimaryPages(LPUNKNOWN extension, WINBOOL handle, HWND told,
                                   WINBOOL scopePane) override;
    HRESULT WINAPI AddExtensionPages() override;
    HRESULT WINAPI Show(LONG_PTR window, int page) override;
    HRESULT WINAPI AddPage(HPROPSHEETPAGE page) override;
    HRESULT WINAPI RemovePage(HPROPSHEETPAGE page) override;

    // IDisplayHelp
    HRESULT WINAPI ShowTopic(LPOLESTR topic) override;

private:
    void* interfaceOf(REFIID id) override;
    void* interfaceOfWindow(REFIID id);

    /// Notes what is wrong, and gives what the method returns for it.
    HRESULT refused(const std::string& what, HRESULT code = E_INVALIDARG);
    bool hasList(const char* method);
    bool isColumn(int column) const;
    bool checkMask(const SCOPEDATAITEM& item, const char* method);

    Console& console_;
    Window* window_;
    std::unique_ptr<SheetFrame> frame_; ///< made, and not shown yet
    bool addsPages_ = false;
};

} // namespace stand_in
