#include "hosts/mmc/console/console.h"
#include "hosts/mmc/console/wide_text.h"

#include <exception>
#include <stdexcept>
#include <thread>

namespace stand_in {

namespace {

/// What a data object gives for a format, `bytes` long at most; empty where it has none.
std::vector<char> dataOf(Contract& contract, IDataObject* object, const wchar_t* format,
                         std::size_t bytes)
{
    FORMATETC asked{static_cast<CLIPFORMAT>(RegisterClipboardFormatW(format)), nullptr,
                    DVASPECT_CONTENT, -1, TYMED_HGLOBAL};
    STGMEDIUM medium{};
    medium.tymed = TYMED_HGLOBAL;
    medium.hGlobal = GlobalAlloc(GMEM_MOVEABLE | GMEM_ZEROINIT, bytes);
    std::vector<char> data;
    const HRESULT given =
        contract.call("GetDataHere", [&] { return object->GetDataHere(&asked, &medium); });
    if (SUCCEEDED(given)) {
        const auto* start = static_cast<const char*>(GlobalLock(medium.hGlobal));
        data.assign(start, start + bytes);
        GlobalUnlock(medium.hGlobal);
    }
    GlobalFree(medium.hGlobal);
    return data;
}

std::string textIn(const std::vector<char>& data)
{
    std::wstring text(data.size() / sizeof(wchar_t), L'\0');
    std::copy_n(data.data(), text.size() * sizeof(wchar_t), reinterpret_cast<char*>(text.data()));
    return narrow(text.c_str());
}

GUID guidIn(const std::vector<char>& data)
{
    GUID guid{};
    std::copy_n(data.data(), sizeof guid, reinterpret_cast<char*>(&guid));
    return guid;
}

} // namespace

Held<IDataObject> Console::scopeObject(const ScopeNode& node)
{
    Held<IDataObject> object;
    const HRESULT made = contract_.call("IComponentData::QueryDataObject", [&] {
        return data_->QueryDataObject(node.cookie, CCT_SCOPE, object.place());
    });
    if (FAILED(made) || !object)
        contract_.breach("IComponentData::QueryDataObject gives no object for a node");
    else
        checkObject(object.get(), &node);
    return object;
}

void Console::checkObject(IDataObject* object, const ScopeNode* node)
{
    constexpr std::size_t longText = 2048;
    const auto type = dataOf(contract_, object, CCF_NODETYPE, sizeof(GUID));
    const auto typeText = dataOf(contract_, object, CCF_SZNODETYPE, longText);
    const auto name = dataOf(contract_, object, CCF_DISPLAY_NAME, longText);
    const auto owner = dataOf(contract_, object, CCF_SNAPIN_CLASSID, sizeof(CLSID));
    if (type.empty() || typeText.empty() || name.empty() || owner.empty()) {
        contract_.breach("a data object lacks one of the formats that every one has");
        return;
    }
    if (textIn(typeText) != guidText(guidIn(type)))
        contract_.breach("a data object's node type is not that of its text");
    if (guidIn(owner) != snapIn_) contract_.breach("a data object is of another snap-in");
    if (node && textIn(name).empty()) contract_.breach("a data object's name is empty");
    if (!dataOf(contract_, object, L"StandInUnknownFormat", 16).empty())
        contract_.breach("a data object gives a format that it cannot know");
}

std::vector<MenuItem> Console::menuOf(const std::string& path)
{
    const HSCOPEITEM handle = nodeAt(path);
    if (!handle) return {};
    const auto object = scopeObject(*tree_.find(handle));
    MenuList menu(contract_);
    menu.collect(data(), object.get(),
                 CCM_INSERTIONALLOWED_TOP | CCM_INSERTIONALLOWED_NEW | CCM_INSERTIONALLOWED_TASK);
    return menu.items();
}

int Console::answerBox(UINT style)
{
    if (!answers_.empty()) {
        const int answer = answers_.front();
        answers_.pop_front();
        return answer;
    }
    switch (style & MB_TYPEMASK) {
    case MB_YESNO:
    case MB_YESNOCANCEL:
        return IDYES;
    case MB_RETRYCANCEL:
        return IDRETRY;
    case MB_ABORTRETRYIGNORE:
        return IDABORT;
    default:
        return IDOK;
    }
}

std::string Console::helpFile()
{
    const auto help = asked<ISnapinHelp>(data(), iid::snapinHelp);
    if (!help) return {};
    LPOLESTR file = nullptr;
    if (FAILED(contract_.call("GetHelpTopic", [&] { return help->GetHelpTopic(&file); })))
        return {};
    return contract_.takeText(file, "the text of GetHelpTopic").value_or("");
}

bool Console::helpOnSnapIn()
{
    const auto object = scopeObject(*tree_.find(tree_.root()));
    return contract_.call("MMCN_SNAPINHELP", [&] {
        return data_->Notify(object.get(), MMCN_SNAPINHELP, 0, 0);
    }) == S_OK;
}

void Console::sendWhatIsNotHandled()
{
    const std::pair<MMC_NOTIFY_TYPE, const char*> sent[] = {
        {MMCN_QUERY_PASTE, "MMCN_QUERY_PASTE"},
        {MMCN_PASTE, "MMCN_PASTE"},
        {MMCN_CUTORMOVE, "MMCN_CUTORMOVE"},
        {MMCN_RENAME, "MMCN_RENAME"},
        {MMCN_DELETE, "MMCN_DELETE"},
        {MMCN_PRINT, "MMCN_PRINT"},
        {MMCN_CANPASTE_OUTOFPROC, "MMCN_CANPASTE_OUTOFPROC"},
        {static_cast<MMC_NOTIFY_TYPE>(0x80FF), "a notification that nobody knows"},
    };
    for (const auto& [event, name] : sent)
        if (window().notifySelected(event, 0, 0, name) == S_OK)
            contract_.breach(std::string("the snap-in takes ") + name + ", which it cannot do");
}

bool Console::pumpUntil(const std::function<bool()>& holds, int milliseconds)
{
    const ULONGLONG end = GetTickCount64() + static_cast<ULONGLONG>(milliseconds);
    while (!holds()) {
        if (GetTickCount64() > end) return false;
        handleMessages();
        if (!holds()) MsgWaitForMultipleObjects(0, nullptr, FALSE, 10, QS_ALLINPUT);
    }
    return true;
}

void Console::handleMessages()
{
    MSG message;
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
        if (message.message == WM_QUIT) continue;
        TranslateMessage(&message);
        DispatchMessageW(&message);
    }
}

void Console::pumpFor(int milliseconds)
{
    pumpUntil([] { return false; }, milliseconds);
}

void Console::withSheet(const std::function<void()>& opens,
                        const std::function<void(Sheet&)>& person, int milliseconds)
{
    struct Acting {
        std::atomic<bool> done = false;
        std::exception_ptr failure;
    };
    const auto acting = std::make_shared<Acting>();
    std::thread thread([this, acting, person] {
        try {
            const HWND shown = sheets_.take(20000);
            if (!shown) throw std::runtime_error("no sheet comes up");
            Sheet sheet(shown, sheets_.markerOf(shown));
            try {
                sheet.settle();
                person(sheet);
                sheet.waitUntil([&] { return !sheet.isOpen(); }, "the end of the sheet", 10000);
            } catch (...) {
                if (sheet.isOpen()) PostMessageW(shown, PSM_PRESSBUTTON, PSBTN_CANCEL, 0);
                throw;
            }
        } catch (...) {
            acting->failure = std::current_exception();
        }
        acting->done = true;
    });
    opens();
    const bool ended =
        pumpUntil([&] { return acting->done && sheets_.windows().empty(); }, milliseconds);
    // Its sheet may wait for this thread, so that messages are handled for as long as it needs.
    constexpr int longest = 60000;
    if (!acting->done && !pumpUntil([&] { return acting->done.load(); }, longest)) {
        thread.detach();
        throw std::runtime_error("a person's action on a sheet does not come to its end");
    }
    thread.join();
    if (acting->failure) std::rethrow_exception(acting->failure);
    if (!ended) throw std::runtime_error("a sheet is not closed in time");
}

} // namespace stand_in
