#include "hosts/mmc/obeying_snap_in.h"

#include "hosts/mmc/console/guids.h"
#include "hosts/mmc/console/handed.h"

#include <algorithm>
#include <cwchar>
#include <stdexcept>
#include <string>
#include <thread>

namespace obeying {

const CLSID classId = {
    0x7A3C10D4, 0x52B6, 0x4E1F, {0xA0, 0x4D, 0x6C, 0x19, 0xF2, 0x8E, 0x41, 0x01}};

namespace {

using stand_in::asked;
using stand_in::Held;
namespace iid = stand_in::iid;

constexpr GUID nodeType = {
    0x7A3C10D4, 0x52B6, 0x4E1F, {0xA0, 0x4D, 0x6C, 0x19, 0xF2, 0x8E, 0x41, 0x02}};
constexpr MMC_COOKIE listNode = 101;
constexpr MMC_COOKIE padNode = 102;

LPOLESTR taskText(const std::wstring& text)
{
    auto* made = static_cast<LPOLESTR>(CoTaskMemAlloc((text.size() + 1) * sizeof(wchar_t)));
    std::copy_n(text.c_str(), text.size() + 1, made);
    return made;
}

/// Counting, and an end at the last reference.
template <class... Interfaces>
class Object : public Interfaces... {
public:
    virtual ~Object() = default;
    HRESULT WINAPI QueryInterface(REFIID id, void** result) override
    {
        *result = interfaceOf(id);
        if (!*result) return E_NOINTERFACE;
        AddRef();
        return S_OK;
    }
    ULONG WINAPI AddRef() override { return static_cast<ULONG>(++references_); }
    ULONG WINAPI Release() override
    {
        const long left = --references_;
        if (left == 0) delete this;
        return static_cast<ULONG>(left);
    }

protected:
    virtual void* interfaceOf(REFIID id) = 0;

private:
    std::atomic<long> references_{1};
};

class DataObject final : public Object<IDataObject> {
public:
    DataObject(Fault fault, MMC_COOKIE cookie) : fault_(fault), cookie_(cookie) {}

    MMC_COOKIE cookie() const { return cookie_; }

    HRESULT WINAPI GetDataHere(FORMATETC* format, STGMEDIUM* medium) override
    {
        wchar_t name[64] = {};
        GetClipboardFormatNameW(format->cfFormat, name, 64);
        const std::wstring wanted = name;
        const std::wstring shown = L"Obeying";
        if (wanted == CCF_NODETYPE) return put(medium, &nodeType, sizeof nodeType);
        if (wanted == CCF_SNAPIN_CLASSID && fault_ != Fault::formatMissing)
            return put(medium, &classId, sizeof classId);
        if (wanted == CCF_DISPLAY_NAME)
            return put(medium, shown.c_str(), (shown.size() + 1) * sizeof(wchar_t));
        if (wanted == CCF_SZNODETYPE) {
            wchar_t text[39];
            StringFromGUID2(nodeType, text, 39);
            return put(medium, text, sizeof text);
        }
        if (fault_ == Fault::formatInvented) return S_OK;
        return DV_E_FORMATETC;
    }
    HRESULT WINAPI GetData(FORMATETC*, STGMEDIUM*) override { return E_NOTIMPL; }
    HRESULT WINAPI QueryGetData(FORMATETC*) override { return E_NOTIMPL; }
    HRESULT WINAPI GetCanonicalFormatEtc(FORMATETC*, FORMATETC*) override { return E_NOTIMPL; }
    HRESULT WINAPI SetData(FORMATETC*, STGMEDIUM*, WINBOOL) override { return E_NOTIMPL; }
    HRESULT WINAPI EnumFormatEtc(DWORD, IEnumFORMATETC**) override { return E_NOTIMPL; }
    HRESULT WINAPI DAdvise(FORMATETC*, DWORD, IAdviseSink*, DWORD*) override { return E_NOTIMPL; }
    HRESULT WINAPI DUnadvise(DWORD) override { return E_NOTIMPL; }
    HRESULT WINAPI EnumDAdvise(IEnumSTATDATA**) override { return E_NOTIMPL; }

private:
    void* interfaceOf(REFIID id) override
    {
        return id == IID_IUnknown || id == IID_IDataObject ? static_cast<IDataObject*>(this)
                                                           : nullptr;
    }
    static HRESULT put(STGMEDIUM* medium, const void* data, std::size_t bytes)
    {
        if (GlobalSize(medium->hGlobal) < bytes) return STG_E_MEDIUMFULL;
        auto* place = static_cast<char*>(GlobalLock(medium->hGlobal));
        std::copy_n(static_cast<const char*>(data), bytes, place);
        GlobalUnlock(medium->hGlobal);
        return S_OK;
    }

    Fault fault_;
    MMC_COOKIE cookie_;
};

class OneTask final : public Object<IEnumTASK> {
public:
    explicit OneTask(Fault fault) : fault_(fault) {}

    HRESULT WINAPI Next(ULONG, MMC_TASK* task, ULONG* fetched) override
    {
        *fetched = 0;
        if (std::exchange(given_, true)) return S_FALSE;
        if (fault_ != Fault::taskWithoutText) task->szText = taskText(L"Do it");
        task->szHelpString = taskText(L"Does it");
        task->sDisplayObject.eDisplayType = MMC_TASK_DISPLAY_TYPE_SYMBOL;
        task->sDisplayObject.uSymbol = {taskText(L"font"), taskText(L"file"), taskText(L"M")};
        task->eActionType = MMC_ACTION_ID;
        task->nCommandID = 7;
        *fetched = 1;
        return S_OK;
    }
    HRESULT WINAPI Skip(ULONG) override { return S_FALSE; }
    HRESULT WINAPI Reset() override { return S_OK; }
    HRESULT WINAPI Clone(IEnumTASK**) override { return E_NOTIMPL; }

private:
    void* interfaceOf(REFIID id) override
    {
        return id == IID_IUnknown || id == iid::enumTask ? static_cast<IEnumTASK*>(this) : nullptr;
    }

    Fault fault_;
    bool given_ = false;
};

class Component final : public Object<IComponent, IExtendTaskPad, IResultOwnerData> {
public:
    explicit Component(Fault fault) : fault_(fault) {}

    HRESULT WINAPI Initialize(IConsole* console) override
    {
        console_ = asked<IConsole2>(console, iid::console2);
        header_ = asked<IHeaderCtrl>(console, iid::headerCtrl);
        rows_ = asked<IResultData>(console, iid::resultData);
        if (fault_ == Fault::nameSpaceOfWindow) asked<IUnknown>(console, iid::nameSpace2);
        return S_OK;
    }

    HRESULT WINAPI Notify(IDataObject* object, MMC_NOTIFY_TYPE event, LPARAM arg,
                          LPARAM param) override
    {
        switch (event) {
        case MMCN_ADD_IMAGES:
            return addImages(reinterpret_cast<IImageList*>(arg));
        case MMCN_SHOW:
            return arg ? show(static_cast<DataObject*>(object)->cookie()) : S_OK;
        case MMCN_SELECT:
            return setVerb();
        case MMCN_REFRESH:
            return console_->UpdateAllViews(object, 0, param);
        case MMCN_VIEW_CHANGE:
            return S_OK;
        default:
            return fault_ == Fault::everythingTaken ? S_OK : S_FALSE;
        }
    }

    HRESULT WINAPI Destroy(MMC_COOKIE) override
    {
        header_.release();
        rows_.release();
        if (fault_ != Fault::consoleKept) console_.release();
        if (fault_ == Fault::componentKept) AddRef();
        return S_OK;
    }

    HRESULT WINAPI QueryDataObject(MMC_COOKIE cookie, DATA_OBJECT_TYPES,
                                   IDataObject** object) override
    {
        *object = new DataObject(fault_, cookie);
        return S_OK;
    }

    HRESULT WINAPI GetResultViewType(MMC_COOKIE cookie, LPOLESTR* type, long* options) override
    {
        static wchar_t own[] = L"res://mmc.exe/default.htm#own";
        if (cookie == padNode) {
            *type = fault_ == Fault::viewTypeOfOwnMemory ? own : taskText(own);
            return S_OK;
        }
        if (cookie == 0) *options = MMC_VIEW_OPTIONS_OWNERDATALIST;
        return S_FALSE;
    }

    HRESULT WINAPI GetDisplayInfo(RESULTDATAITEM* item) override
    {
        if (fault_ == Fault::exceptionLeaves) throw std::runtime_error("left");
        if (!(item->mask & RDI_STR)) return S_OK;
        // One text a row and column, the last of all for the fault.
        const int kept = fault_ == Fault::rowTextFreed ? 0 : item->nIndex * 2 + item->nCol;
        std::wstring& text = texts_[kept];
        text = L"row " + std::to_wstring(item->nIndex) + L", column " + std::to_wstring(item->nCol);
        if (item->bScopeItem) text = L"node " + std::to_wstring(item->lParam);
        item->str = text.data();
        if (item->mask & RDI_IMAGE) item->nImage = 0;
        return S_OK;
    }
    HRESULT WINAPI CompareObjects(IDataObject*, IDataObject*) override { return S_FALSE; }

    HRESULT WINAPI TaskNotify(IDataObject*, VARIANT* command, VARIANT*) override
    {
        std::wstring told = L"task " + std::to_wstring(command->lVal);
        return console_->SetStatusText(told.data());
    }
    HRESULT WINAPI EnumTasks(IDataObject*, LPOLESTR, IEnumTASK** tasks) override
    {
        *tasks = new OneTask(fault_);
        return S_OK;
    }
    HRESULT WINAPI GetTitle(LPOLESTR, LPOLESTR* title) override
    {
        *title = taskText(L"Pad title");
        return S_OK;
    }
    HRESULT WINAPI GetDescriptiveText(LPOLESTR, LPOLESTR* text) override
    {
        *text = taskText(L"Pad text");
        return S_OK;
    }
    HRESULT WINAPI GetBackground(LPOLESTR, MMC_TASK_DISPLAY_OBJECT*) override { return E_NOTIMPL; }
    HRESULT WINAPI GetListPadInfo(LPOLESTR, MMC_LISTPAD_INFO*) override { return E_NOTIMPL; }

    HRESULT WINAPI FindItem(LPRESULTFINDINFO, int*) override { return S_FALSE; }
    HRESULT WINAPI CacheHint(int, int) override { return S_OK; }
    HRESULT WINAPI SortItems(int, DWORD, LPARAM) override { return S_OK; }

private:
    void* interfaceOf(REFIID id) override
    {
        if (id == IID_IUnknown || id == iid::component) return static_cast<IComponent*>(this);
        if (id == iid::extendTaskPad) return static_cast<IExtendTaskPad*>(this);
        if (id == iid::resultOwnerData) return static_cast<IResultOwnerData*>(this);
        return nullptr;
    }

    HRESULT addImages(IImageList* images)
    {
        if (fault_ == Fault::imagesKept) images->AddRef();
        images_ = images;
        return images->ImageListSetIcon(
            reinterpret_cast<LONG_PTR*>(LoadIconW(nullptr, IDI_APPLICATION)), 0);
    }

    HRESULT setVerb()
    {
        Held<IConsoleVerb> verbs;
        console_->QueryConsoleVerb(verbs.place());
        return verbs->SetVerbState(MMC_VERB_REFRESH, ENABLED, TRUE);
    }

    HRESULT show(MMC_COOKIE cookie)
    {
        if (fault_ == Fault::imagesInShow && cookie == 0) addImages(images_);
        if (fault_ == Fault::verbInShow) setVerb();
        if (fault_ == Fault::unknownSelected) console_->SelectScopeItem(12);
        if (fault_ == Fault::otherThread) {
            std::thread([this] { console_->UpdateAllViews(nullptr, 0, 0); }).join();
        }
        if (cookie == padNode) return S_OK;
        if (fault_ == Fault::countBeforeColumns) rows_->SetItemCount(3, 0);
        header_->InsertColumn(0, L"First", LVCFMT_LEFT, 100);
        header_->InsertColumn(fault_ == Fault::columnPastLast ? 5 : 1, L"Second", LVCFMT_LEFT, 50);
        if (cookie != 0) return S_OK;
        if (fault_ == Fault::rowInVirtualList) {
            RESULTDATAITEM row{};
            row.mask = RDI_STR | RDI_PARAM;
            row.str = texts_[0].data();
            rows_->InsertItem(&row);
        }
        return rows_->SetItemCount(3, 0);
    }

    Fault fault_;
    Held<IConsole2> console_;
    Held<IHeaderCtrl> header_;
    Held<IResultData> rows_;
    IImageList* images_ = nullptr;
    std::wstring texts_[8];
};

class ComponentData final
    : public Object<IComponentData, IExtendContextMenu, IExtendPropertySheet> {
public:
    explicit ComponentData(Fault fault) : fault_(fault) {}

    HRESULT WINAPI Initialize(IUnknown* console) override
    {
        console_ = asked<IConsole2>(console, iid::console2);
        nodes_ = asked<IConsoleNameSpace2>(console, iid::nameSpace2);
        Held<IImageList> images;
        console_->QueryScopeImageList(images.place());
        return images->ImageListSetIcon(
            reinterpret_cast<LONG_PTR*>(LoadIconW(nullptr, IDI_APPLICATION)), 0);
    }
    HRESULT WINAPI CreateComponent(IComponent** component) override
    {
        *component = new Component(fault_);
        return S_OK;
    }
    HRESULT WINAPI Notify(IDataObject* object, MMC_NOTIFY_TYPE event, LPARAM arg,
                          LPARAM param) override
    {
        if (event != MMCN_EXPAND || !arg) return S_FALSE;
        if (static_cast<DataObject*>(object)->cookie() != 0) return S_OK;
        if (fault_ == Fault::accessViolation)
            RaiseException(EXCEPTION_ACCESS_VIOLATION, 0, 0, nullptr);
        fill(param);
        return S_OK;
    }
    HRESULT WINAPI Destroy() override
    {
        console_.release();
        nodes_.release();
        return S_OK;
    }
    HRESULT WINAPI QueryDataObject(MMC_COOKIE cookie, DATA_OBJECT_TYPES,
                                   IDataObject** object) override
    {
        *object = new DataObject(fault_, cookie);
        return S_OK;
    }
    HRESULT WINAPI GetDisplayInfo(SCOPEDATAITEM* item) override
    {
        std::wstring& text = texts_[fault_ == Fault::nodeTextFreed ? 0
                                    : item->lParam == 0            ? 1
                                                                   : item->lParam - 99];
        text = item->lParam == 0 ? L"Root" : item->lParam == listNode ? L"List" : L"Pad";
        item->displayname = text.data();
        return S_OK;
    }
    HRESULT WINAPI CompareObjects(IDataObject*, IDataObject*) override { return S_FALSE; }

    HRESULT WINAPI AddMenuItems(IDataObject*, IContextMenuCallback* menu, long* allowed) override
    {
        if (!(*allowed & CCM_INSERTIONALLOWED_TOP)) return S_OK;
        if (fault_ == Fault::menuKept) menu->AddRef();
        wchar_t text[] = L"Show a sheet";
        const auto point =
            static_cast<LONG>(fault_ == Fault::menuNotAllowed ? CCM_INSERTIONPOINTID_PRIMARY_VIEW
                                                              : CCM_INSERTIONPOINTID_PRIMARY_TOP);
        CONTEXTMENUITEM item{text, text, 1, point, 0, 0};
        if (fault_ == Fault::menuReservedNumber) item.lCommandID = 0x10001;
        menu->AddItem(&item);
        if (fault_ != Fault::menuSameNumber) item.lCommandID = 2;
        wchar_t other[] = L"Another";
        item.strName = other;
        item.fFlags = MF_GRAYED;
        return menu->AddItem(&item), S_OK;
    }
    HRESULT WINAPI Command(long, IDataObject* object) override
    {
        const auto sheets =
            asked<IPropertySheetProvider>(console_.get(), iid::propertySheetProvider);
        HWND window = nullptr;
        console_->GetMainWindow(&window);
        sheets->CreatePropertySheet(L"Sheet", TRUE, 0, object, 0);
        if (fault_ != Fault::sheetWithoutPages)
            sheets->AddPrimaryPages(static_cast<IComponentData*>(this), FALSE, nullptr, TRUE);
        sheets->Show(reinterpret_cast<LONG_PTR>(window), 0);
        return S_OK;
    }
    HRESULT WINAPI CreatePropertyPages(IPropertySheetCallback* sheet, LONG_PTR,
                                       IDataObject*) override
    {
        struct Template {
            DLGTEMPLATE dialog;
            WORD menu, windowClass, title;
        };
        static Template page{{WS_CHILD | WS_CAPTION, 0, 0, 0, 0, 100, 60}, 0, 0, 0};
        PROPSHEETPAGEW made{};
        made.dwSize = sizeof made;
        made.dwFlags = PSP_DLGINDIRECT | PSP_USETITLE;
        made.pResource = &page.dialog;
        made.pszTitle = L"Page";
        made.pfnDlgProc = [](HWND dialog, UINT message, WPARAM, LPARAM) -> INT_PTR {
            if (message == WM_INITDIALOG) {
                CreateWindowExW(0, L"Edit", L"typed", WS_CHILD | WS_VISIBLE, 5, 5, 80, 14, dialog,
                                nullptr, nullptr, nullptr);
                CreateWindowExW(0, L"Button", L"&Tick", WS_CHILD | WS_VISIBLE | BS_AUTOCHECKBOX, 5,
                                30, 80, 14, dialog, nullptr, nullptr, nullptr);
            }
            return FALSE;
        };
        sheet->AddPage(CreatePropertySheetPageW(&made));
        return S_OK;
    }
    HRESULT WINAPI QueryPagesFor(IDataObject*) override { return S_OK; }

private:
    void* interfaceOf(REFIID id) override
    {
        if (id == IID_IUnknown || id == iid::componentData)
            return static_cast<IComponentData*>(this);
        if (id == iid::extendContextMenu) return static_cast<IExtendContextMenu*>(this);
        if (id == iid::extendPropertySheet) return static_cast<IExtendPropertySheet*>(this);
        return nullptr;
    }

    HSCOPEITEM insert(HSCOPEITEM parent, MMC_COOKIE cookie)
    {
        SCOPEDATAITEM item{};
        item.mask = SDI_STR | SDI_PARAM | SDI_IMAGE;
        if (fault_ == Fault::nodeWithoutCookie) item.mask = SDI_STR;
        item.displayname = reinterpret_cast<LPOLESTR>(-1);
        item.nImage = fault_ == Fault::unknownNodeImage ? 9 : 0;
        item.lParam = cookie;
        item.relativeID = parent;
        nodes_->InsertItem(&item);
        return item.ID;
    }
    void fill(HSCOPEITEM root)
    {
        const HSCOPEITEM list = insert(fault_ == Fault::unknownParent ? 77 : root, listNode);
        insert(root, fault_ == Fault::sameCookie ? listNode : padNode);
        if (fault_ == Fault::unopenedParent) insert(list, 103);
        if (fault_ == Fault::staticNodeDeleted) nodes_->DeleteItem(root, TRUE);
        if (fault_ == Fault::pageOutside) {
            const auto sheet =
                asked<IPropertySheetProvider>(console_.get(), iid::propertySheetProvider);
            sheet->AddPrimaryPages(static_cast<IComponentData*>(this), FALSE, nullptr, TRUE);
        }
    }

    Fault fault_;
    Held<IConsole2> console_;
    Held<IConsoleNameSpace2> nodes_;
    std::wstring texts_[5];
};

} // namespace

HRESULT make(Fault fault, REFIID id, void** object)
{
    auto* made = new ComponentData(fault);
    const HRESULT result = made->QueryInterface(id, object);
    made->Release();
    return result;
}

} // namespace obeying
