#include "settings/event_log_language.h"

#include "core/error_trap.h"
#include "core/registry_store.h"
#include "core/utility.h"
#include "platform/file_system.h"
#include "runtime/text.h"
#include "text/utf8.h"

namespace {

constexpr const char* moduleName = "mdlLanguage";
constexpr const char* sourcesKey = "System\\CurrentControlSet\\Services\\EventLog\\Application";
constexpr std::string_view messagingMark = "Localize\\Messaging";
constexpr std::size_t codeLength = 3;

std::string sourceKey(const std::string& source)
{
    return std::string(sourcesKey) + "\\" + source;
}

/// Bytes of a path up to its language. A text that is not there counts as found at position 0,
/// which still leaves all of its length but one.
std::size_t sizeBeforeLanguage(std::string_view path)
{
    const std::size_t found = path.find(mdlLanguage::messagingFolder);
    if (found != std::string_view::npos) return found + mdlLanguage::messagingFolder.size();
    return firstCharacters(path, mdlLanguage::messagingFolder.size() - 1).size();
}

std::string readText(ToolContext& tool, const std::string& source, const char* name)
{
    return getRegistryText(tool, sourceKey(source), name);
}

/// Writes a text where it differs from what is stored. Most changes of a language put back what
/// stands there, and writing that anew would make a plain text of one that is to be expanded.
void writeText(ToolContext& tool, const std::string& source, const char* name,
               const std::string& text)
{
    if (readText(tool, source, name) == text) return;
    setRegistryValue(tool, registryRoot::localMachine, sourceKey(source), name, registryType::text,
                     text);
}

} // namespace

std::vector<std::string> mdlLanguage::getEventLogKeys(ToolContext& tool)
{
    ErrorTrap step{tool, moduleName, "getEventLogKeys"};
    std::vector<std::string> keys;
    int first = 0;
    int last = -1;

    step.enterProc();
    const KeyNames sources = step.value(
        {}, [&] { return enumRegistryKeys(tool, registryRoot::localMachine, sourcesKey); });
    step([&] {
        first = sources.lowerBound();
        last = sources.upperBound();
    });
    for (int index = first; index <= last; ++index) {
        const std::string messageFile =
            step.value("", [&] { return eventMessageFile(tool, sources.at(index)); });
        if (positionOf(messageFile, messagingMark) == 0) continue;
        step([&] { keys.push_back(sources.at(index)); });
    }
    step.exitProc();
    return keys;
}

std::string mdlLanguage::determineCurrentLanguage(ToolContext& tool, const std::string& messageFile)
{
    ErrorTrap step{tool, moduleName, "determineCurrentLanguage"};

    step.enterProc();
    const std::string_view rest =
        std::string_view(messageFile).substr(sizeBeforeLanguage(messageFile));
    const std::string language(firstCharacters(rest, codeLength));
    step.exitProc();
    return language;
}

std::string mdlLanguage::replaceLanguage(ToolContext& tool, const std::string& path,
                                         const std::string& language)
{
    ErrorTrap step{tool, moduleName, "replaceLanguage"};

    step.enterProc();
    const std::size_t kept = sizeBeforeLanguage(path);
    const std::string_view rest = std::string_view(path).substr(kept);
    std::string replaced = path.substr(0, kept) + language;
    replaced += rest.substr(firstCharacters(rest, codeLength).size());
    step.exitProc();
    return replaced;
}

void mdlLanguage::changeEventLogLanguage(ToolContext& tool, const std::string& language,
                                         const std::vector<std::string>& keys)
{
    ErrorTrap step{tool, moduleName, "changeEventLogLanguage"};
    std::string eventFile;
    std::string categoryFile;

    step.enterProc();
    if (!language.empty()) {
        for (const std::string& source : keys) {
            step([&] { eventFile = eventMessageFile(tool, source); });
            step([&] { categoryFile = readText(tool, source, "CategoryMessageFile"); });
            step([&] { eventFile = replaceLanguage(tool, eventFile, language); });
            step([&] { categoryFile = replaceLanguage(tool, categoryFile, language); });
            step([&] { writeText(tool, source, "EventMessageFile", eventFile); });
            step([&] { writeText(tool, source, "CategoryMessageFile", categoryFile); });
        }
    }
    step.exitProc();
}

void mdlLanguage::recordOriginalLanguage(ToolContext& tool, const std::string& language)
{
    ErrorTrap step{tool, moduleName, "recordOriginalLanguage"};

    step.enterProc();
    const bool keyExists = step.value(
        false, [&] { return registryKeyExists(tool, registryRoot::localMachine, toolKey); });
    if (!keyExists) step([&] { createRegistryKey(tool, registryRoot::localMachine, toolKey); });
    step([&] {
        setRegistryValue(tool, registryRoot::localMachine, toolKey, "OriginalEventLogLanguage",
                         registryType::text, language);
    });
    step.exitProc();
}

std::string mdlLanguage::originalLanguage(ToolContext& tool)
{
    return getRegistryText(tool, toolKey, "OriginalEventLogLanguage");
}

std::string mdlLanguage::eventMessageFile(ToolContext& tool, const std::string& source)
{
    return readText(tool, source, "EventMessageFile");
}

std::vector<std::string> mdlLanguage::installedLanguages(ToolContext& tool)
{
    const std::string folder = getInstalledFolderPath(tool) + std::string(messagingFolder);
    std::vector<std::string> languages;
    for (const FileInfo& entry : tool.platform.files.entries(folder))
        if (entry.folder) languages.push_back(entry.name);
    return languages;
}
