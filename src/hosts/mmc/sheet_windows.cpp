#include "hosts/mmc/sheet_windows.h"

#include "hosts/mmc/console_desktop.h"

#include <algorithm>
#include <utility>

namespace mmc {

namespace {

/// What makes sheets: the console, or else what it makes its own with. Null where there is neither.
ComPointer<IPropertySheetProvider> providerOf(IConsole2* console)
{
    auto provider = ComPointer<IPropertySheetProvider>::of(console);
    if (!provider)
        CoCreateInstance(nodeManagerId, nullptr, CLSCTX_INPROC_SERVER, idOf<IPropertySheetProvider>,
                         reinterpret_cast<void**>(provider.out()));
    return provider;
}

} // namespace

void SheetWindows::add(OpenSheet& sheet)
{
    waiting_.push_back(
        NativeSheet::make(thread_, around_.ofSheets(),
                          std::static_pointer_cast<OpenSheet>(sheet.shared_from_this())));
    open_.push_back(waiting_.back());
}

void SheetWindows::showNext(IConsole2* console)
{
    if (waiting_.empty()) return;
    const std::shared_ptr<NativeSheet> shown = std::move(waiting_.front());
    waiting_.erase(waiting_.begin());
    if (shown->sheet().closed()) return;
    const bool wizard = shown->sheet().wizard() != nullptr;
    const auto provider = providerOf(console);
    const bool failed = !provider || FAILED(makeBy(*provider.get(), *shown));
    if (shown->sheet().closed()) return;
    // A wizard's windows have gone when it returns, by the end of the program or by its loop's.
    if (failed || wizard) shown->abandon();
    if (failed) around_.refused(shown->title());
}

HRESULT SheetWindows::makeBy(IPropertySheetProvider& provider, NativeSheet& sheet)
{
    const bool wizard = sheet.sheet().wizard() != nullptr;
    const auto subject = around_.subject();
    DWORD options = wizard ? MMC_PSO_NEWWIZARDTYPE : MMC_PSO_NO_PROPTITLE;
    if (sheet.headerFlags() & PSH_HASHELP) options |= MMC_PSO_HASHELP;
    HRESULT result =
        provider.CreatePropertySheet(sheet.title().c_str(), wizard ? FALSE : TRUE,
                                     reinterpret_cast<MMC_COOKIE>(&sheet), subject.get(), options);
    if (FAILED(result)) return result;
    constexpr LONG_PTR letGo = -1;
    NativeSheet* const before = std::exchange(beingMade_, &sheet);
    constexpr BOOL withHandle = FALSE;
    constexpr BOOL ofScopeNode = TRUE;
    result = provider.AddPrimaryPages(around_.pageOwner(), withHandle, nullptr, ofScopeNode);
    beingMade_ = before;
    if (result != S_OK) {
        // What was begun is not to be shown any more.
        provider.Show(letGo, 0);
        return FAILED(result) ? result : E_FAIL;
    }
    return provider.Show(reinterpret_cast<LONG_PTR>(desktop_.mainWindow()), sheet.firstPage());
}

HRESULT SheetWindows::addPages(IPropertySheetCallback& callback)
{
    if (!beingMade_) return S_FALSE;
    const std::vector<HPROPSHEETPAGE> pages = beingMade_->makePages();
    bool refused = pages.empty();
    for (HPROPSHEETPAGE page : pages) {
        if (!page) {
            refused = true;
        } else if (refused || FAILED(callback.AddPage(page))) {
            refused = true;
            DestroyPropertySheetPage(page);
        }
    }
    return refused ? E_FAIL : S_OK;
}

void SheetWindows::abandonAll()
{
    // Those that wait are held until they are told.
    const auto waiting = std::exchange(waiting_, {});
    std::erase_if(open_, [](const auto& sheet) { return sheet.expired(); });
    for (const auto& sheet : std::vector<std::weak_ptr<NativeSheet>>(open_))
        if (const auto held = sheet.lock(); held && !held->sheet().closed()) held->abandon();
}

bool SheetWindows::any() const
{
    return std::any_of(open_.begin(), open_.end(),
                       [](const auto& sheet) { return !sheet.expired(); });
}

} // namespace mmc
