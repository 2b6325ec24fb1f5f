// The snap-in on a site: what the console's tests load. The folder of the site is named by
// ORVAN_TEST_SITE when a console opens the tool.
#include "gather/cancel.h"
#include "hosts/common/gather/gather_sheet.h"
#include "hosts/common/language_menu.h"
#include "hosts/common/places.h"
#include "hosts/common/tool_on_site.h"
#include "hosts/mmc/module.h"
#include "hosts/mmc/resources/snap_in_resources.h"
#include "shell/snapin_definition.h"

#include <cstdlib>

namespace mmc {

namespace {

class ToolOfSite final : public Tool, private ToolOnSite {
public:
    ToolOfSite(const std::string& folder, Desktop& desktop)
        : ToolOnSite(folder, places::installedData(), HostFacts{}, SiteUse::change, desktop)
    {}

    ::Console& console() override { return ToolOnSite::console(); }
    const CodePage& codePage() const override { return ToolOnSite::codePage(); }
    void load() override { ToolOnSite::load(); }
    std::shared_ptr<const void>
    takeTurn(OpenSheet* sheet, const std::function<void(const std::string&)>& notice) override
    {
        return sheet && isGatherSheet(*sheet) ? nullptr : server().takeTurn(notice);
    }
    void unload() override
    {
        if (loaded()) ToolOnSite::unload([this] { return server().takeTurn({}); });
    }
    void cancelWork() override
    {
        if (console().busy() != Busy::no) mdlLogs::cancelCurrentProcess(context(), true);
    }
    std::string complaint() const override { return databaseFailure(); }
    ToolLanguages languages() override
    {
        auto [caption, names] = LanguageMenu::of(*this);
        return {std::move(caption), std::move(names)};
    }
    void chooseLanguage(std::size_t place) override { ::chooseLanguage(*this, place); }
};

HINSTANCE thisModule()
{
    HMODULE module = nullptr;
    GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS |
                           GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                       reinterpret_cast<LPCWSTR>(&thisModule), &module);
    return module;
}

SnapIn makeSnapIn()
{
    SnapIn snapIn{};
    snapIn.classId = {0x1F0B3C52, 0x6E1D, 0x4B7A, {0x9C, 0x41, 0x2D, 0x75, 0x0A, 0xE8, 0x33, 0x10}};
    snapIn.aboutId = {0x1F0B3C52, 0x6E1D, 0x4B7A, {0x9C, 0x41, 0x2D, 0x75, 0x0A, 0xE8, 0x33, 0x11}};
    snapIn.staticNodeType = {
        0x1F0B3C52, 0x6E1D, 0x4B7A, {0x9C, 0x41, 0x2D, 0x75, 0x0A, 0xE8, 0x33, 0x12}};
    snapIn.name = L"Diagnostics of a site";
    snapIn.provider = L"Tests";
    snapIn.version = L"4.3";
    snapIn.identity = [] {
        return SnapInIdentity{"Tests", "The snap-in on a site", "site.chm", " 4.3 Build 10"};
    };
    snapIn.open = [](Desktop& desktop) -> std::unique_ptr<Tool> {
        // Of the machine's environment: the C library has a copy of its own in each module.
        wchar_t folder[512] = {};
        GetEnvironmentVariableW(L"ORVAN_TEST_SITE", folder, 512);
        std::string path;
        for (const wchar_t* letter = folder; *letter; ++letter) path += static_cast<char>(*letter);
        return std::make_unique<ToolOfSite>(path, desktop);
    };
    snapIn.resources = snapInResources(thisModule());
    snapIn.imageNames = scopeImageNames();
    return snapIn;
}

} // namespace

const SnapIn& snapInOfModule()
{
    static const SnapIn snapIn = makeSnapIn();
    return snapIn;
}

} // namespace mmc
