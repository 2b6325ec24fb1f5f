#include "core/localisation.h"

#include "core/error_trap.h"
#include "core/registry_store.h"
#include "core/showing_trap.h"
#include "core/string_table.h"
#include "platform/file_system.h"
#include "platform/host_module.h"
#include "platform/languages.h"
#include "runtime/numbers.h"
#include "runtime/run_time_error.h"
#include "runtime/text.h"

#include <optional>

namespace {

constexpr std::string_view libraryPrefix = "ZMKbrandingres_";
constexpr std::size_t codeLength = 3;

} // namespace

std::string languageLibraryPath(const HostModule& module, std::int32_t language)
{
    return module.folder() + "\\" + std::string(libraryPrefix) + codeFromLanguageId(language) +
           ".dll";
}

std::string myLoadResString(ToolContext& tool, TextId id)
{
    ErrorTrap step{tool, "modLocalize", "myLoadResString"};
    const std::optional<std::string> text = step.value(std::nullopt, [&] {
        return tool.platform.languages.text(tool.language.g_hResourceLibrary, static_cast<int>(id));
    });
    return text && !text->empty() ? *text : std::string(englishText(id));
}

std::vector<std::string> libraryCodes(ToolContext& tool)
{
    std::vector<std::string> codes;
    for (const FileInfo& entry : tool.platform.files.entries(tool.platform.module.folder())) {
        if (entry.folder) continue;
        const std::string_view name = entry.name;
        if (equalIgnoringCase(name.substr(0, libraryPrefix.size()), libraryPrefix))
            codes.emplace_back(name.substr(libraryPrefix.size(), codeLength));
    }
    return codes;
}

void InitalizeLanguages(ToolContext& tool)
{
    ShowingTrap step{tool, "Error in InitalizeLanguages: "};
    LanguageState& language = tool.language;
    Languages& libraries = tool.platform.languages;
    std::vector<std::string> codes;
    bool keyExists = false;

    if (language.g_lngCurrentLanguage == 0)
        step([&] { language.g_lngCurrentLanguage = libraries.userDefaultLanguage(); });
    if (language.g_hResourceLibrary > 0)
        step([&] { libraries.freeLibrary(language.g_hResourceLibrary); });
    language.g_hResourceLibrary = 0;
    step([&] {
        language.g_hResourceLibrary = libraries.loadLibrary(
            languageLibraryPath(tool.platform.module, language.g_lngCurrentLanguage));
    });

    step([&] { keyExists = registryKeyExists(tool, registryRoot::localMachine, toolKey); });
    if (!keyExists) step([&] { createRegistryKey(tool, registryRoot::localMachine, toolKey); });
    step([&] {
        setRegistryValue(tool, registryRoot::localMachine, toolKey, "CurrentLocalizationLanguage",
                         registryType::text,
                         numberText(std::int64_t{language.g_lngCurrentLanguage}));
    });

    step([&] { codes = libraryCodes(tool); });
    // One library found and none found look alike by the bounds of the array.
    if (codes.empty()) codes.emplace_back();
    language.g_astrLanguages = codes;
    for (OpenForm* form : language.openForms)
        step([&] { applyLanguageFontToAll(tool, form->controls()); });
}

void applyLanguageFont(ToolContext& tool, FontTarget& control)
{
    try {
        control.setFont(fontOfLanguage(tool.language.g_lngCurrentLanguage));
    } catch (const RunTimeError&) {
        // Many objects have no font, or not this one.
    }
}

void applyLanguageFontToAll(ToolContext& tool, const std::vector<FontTarget*>& controls)
{
    for (FontTarget* control : controls) applyLanguageFont(tool, *control);
}

std::string languageName(ToolContext& tool, std::int32_t id)
{
    std::string name = tool.platform.languages.languageName(id);
    return name.empty() ? "(error)" : name;
}

std::string languageNameFromCode(ToolContext& tool, std::string_view code)
{
    return languageName(tool, languageIdFromCode(code));
}

std::string userLanguageCode(ToolContext& tool)
{
    return codeFromLanguageId(tool.platform.languages.userDefaultLanguage());
}
