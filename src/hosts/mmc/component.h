#pragma once

#include "hosts/mmc/extensions.h"

namespace mmc {

/// The snap-in in one window of a console.
class Component final : public Extensions<IComponent, IResultOwnerData, IExtendTaskPad> {
public:
    /// `host` runs.
    explicit Component(std::shared_ptr<Host> host)
        : Extensions(std::move(host)), pane_(this->host().codePage())
    {}
    ~Component() override;

    HRESULT WINAPI Initialize(IConsole* console) override;
    HRESULT WINAPI Notify(IDataObject* object, MMC_NOTIFY_TYPE event, LPARAM first,
                          LPARAM second) override;
    HRESULT WINAPI Destroy(MMC_COOKIE cookie) override;
    HRESULT WINAPI QueryDataObject(MMC_COOKIE cookie, DATA_OBJECT_TYPES type,
                                   IDataObject** object) override;
    HRESULT WINAPI GetResultViewType(MMC_COOKIE cookie, LPOLESTR* type, long* options) override;
    HRESULT WINAPI GetDisplayInfo(RESULTDATAITEM* asked) override;
    HRESULT WINAPI CompareObjects(IDataObject* left, IDataObject* right) override;

    HRESULT WINAPI FindItem(LPRESULTFINDINFO wanted, int* found) override;
    HRESULT WINAPI CacheHint(int first, int last) override;
    HRESULT WINAPI SortItems(int column, DWORD options, LPARAM ours) override;

    HRESULT WINAPI TaskNotify(IDataObject* object, VARIANT* argument, VARIANT* parameter) override;
    HRESULT WINAPI EnumTasks(IDataObject* object, LPOLESTR group, IEnumTASK** tasks) override;
    HRESULT WINAPI GetTitle(LPOLESTR group, LPOLESTR* title) override;
    HRESULT WINAPI GetDescriptiveText(LPOLESTR group, LPOLESTR* text) override;
    HRESULT WINAPI GetBackground(LPOLESTR group, MMC_TASK_DISPLAY_OBJECT* background) override;
    HRESULT WINAPI GetListPadInfo(LPOLESTR group, MMC_LISTPAD_INFO* info) override;

private:
    ResultPane* pane() override { return &pane_; }
    HRESULT told(IDataObject* object, MMC_NOTIFY_TYPE event, LPARAM first, LPARAM second);
    HRESULT toldOf(IDataObject* object, const std::shared_ptr<ScopeItem>& item,
                   MMC_NOTIFY_TYPE event, LPARAM first, LPARAM second);
    HRESULT doubleClicked(IDataObject* object, ScopeItem& item);

    ResultPane pane_;
    bool asksForRows_ = false; ///< whether the console's list has rows that are not nodes
};

} // namespace mmc
