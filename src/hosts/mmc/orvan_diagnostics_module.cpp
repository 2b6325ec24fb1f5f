// The snap-in of this project, for the server that the machine is.
#include "backends/windows/language/windows_languages.h"
#include "backends/windows/windows_host_module.h"
#include "hosts/common/gather/gather_sheet.h"
#include "hosts/common/language_menu.h"
#include "hosts/machine/tool_on_machine.h"
#include "hosts/mmc/module.h"
#include "hosts/mmc/resources/snap_in_resources.h"
#include "shell/snapin_definition.h"
#include "shell/snapin_identity.h"
#include "system/windows/windows_calls.h"

namespace mmc {

namespace {

constexpr CLSID snapInId{
    0x5A8DE2A2, 0xAD6B, 0x42BC, {0x80, 0xAE, 0xA9, 0x24, 0x43, 0x58, 0x7D, 0x62}};
constexpr CLSID aboutId{
    0xFD723634, 0x84AC, 0x435B, {0x9D, 0x53, 0xDD, 0x9A, 0x92, 0xDD, 0xE7, 0x83}};
constexpr GUID staticNodeId{
    0xE5308AA3, 0x94DF, 0x4122, {0xB6, 0x8C, 0x0F, 0x68, 0xEE, 0x99, 0xCA, 0x05}};

/// This library, whose folder and version are the tool's.
HINSTANCE thisModule()
{
    HMODULE module = nullptr;
    GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS |
                           GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                       reinterpret_cast<LPCWSTR>(&thisModule), &module);
    return module;
}

MachineFacts machineFacts()
{
    MachineFacts facts;
    facts.module = thisModule();
    return facts;
}

SnapInIdentity identity()
{
    WindowsHostFacts facts;
    facts.module = thisModule();
    const WindowsHostModule module(facts);
    WindowsLanguages languages;
    return snapinIdentity(languages, module);
}

class ToolOfMachine final : public Tool {
public:
    explicit ToolOfMachine(Desktop& desktop)
        : tool_(std::make_unique<ToolOnMachine>(machineFacts(), desktop))
    {}

    Console& console() override { return tool_->console(); }
    const CodePage& codePage() const override { return tool_->codePage(); }
    void load() override { tool_->load(); }
    std::shared_ptr<const void>
    takeTurn(OpenSheet* sheet, const std::function<void(const std::string&)>& notice) override
    {
        return sheet && isGatherSheet(*sheet) ? nullptr : tool_->server().takeTurn(notice);
    }
    void unload() override
    {
        tool_->unload([this] { return tool_->server().takeTurn({}); });
    }
    void cancelWork() override { tool_->cancelWork(); }
    std::string complaint() const override { return tool_->complaint(); }
    ToolLanguages languages() override
    {
        auto [caption, names] = LanguageMenu::of(*tool_);
        return {std::move(caption), std::move(names)};
    }
    void chooseLanguage(std::size_t place) override { ::chooseLanguage(*tool_, place); }

private:
    std::unique_ptr<ToolOnMachine> tool_;
};

SnapIn makeSnapIn()
{
    const SnapInDefinition definition = snapinDefinition();
    SnapIn snapIn{};
    snapIn.classId = snapInId;
    snapIn.aboutId = aboutId;
    snapIn.staticNodeType = staticNodeId;
    snapIn.name = wideOf(definition.displayName);
    snapIn.provider = wideOf(definition.provider);
    snapIn.version = wideOf(definition.version);
    snapIn.identity = identity;
    snapIn.open = [](Desktop& desktop) { return std::make_unique<ToolOfMachine>(desktop); };
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
