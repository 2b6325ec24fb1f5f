#include "hosts/cli/driving/server_facts.h"

#include "core/registry_store.h"
#include "hosts/cli/driving/flag_words.h"
#include "hosts/cli/driving/known_names.h"
#include "hosts/cli/open_tool.h"
#include "platform/database.h"
#include "runtime/run_time_error.h"
#include "server/server_identity.h"
#include "settings/event_log_language.h"

namespace cli {

namespace {

constexpr const char* on = "on";
constexpr const char* off = "off";

/// Times at which the tool told the log manager of a change.
constexpr std::string_view signalsOfSettings = "System.LogMgr.Broadcast.";

void addVersion(OpenTool& tool, ServerFacts& facts)
{
    const ServerVersion version = mdlOrvan::getVersion(tool.context());
    std::string text;
    for (const Integer16& part : {version.major, version.minor, version.release, version.build})
        text += (text.empty() ? "" : ".") + std::to_string(part.value());
    facts[{FactKind::version, "server"}] = text;
    facts[{FactKind::version, "text"}] = version.version;
    facts[{FactKind::version, "log lines"}] =
        tool.context().g_bExtendedLogFields ? "extended" : "basic";
}

void addRegistry(OpenTool& tool, ServerFacts& facts)
{
    const std::pair<const char*, const char*> values[] = {{baseKey, "InstalledFolderPath"},
                                                          {logManagerKey, logFolderValue},
                                                          {viewerKey, viewerValue},
                                                          {toolKey, "Standard Logs"}};
    for (const auto& [key, name] : values)
        if (const auto text = getRegistryText(tool.context(), key, name); !text.empty())
            facts[{FactKind::registry, key == viewerKey ? "viewer" : name}] = text;
    for (const ScopeItem* process : tool.processes().children())
        facts[{FactKind::process, process->name()}] = "there";
}

/// A level that is off and not on by default is the rule, and is not told of.
void addLevels(const FlagWords& word, ServerFacts& facts)
{
    for (int level = 0; level < levelsOfAWord; ++level) {
        const bool is = (static_cast<std::uint32_t>(word.flags) >> level & 1U) != 0;
        const bool shipped = (static_cast<std::uint32_t>(word.defaultFlags) >> level & 1U) != 0;
        if (is || shipped)
            facts[{FactKind::level, word.name + ":" + std::to_string(level)}] = is ? on : off;
    }
}

void addFlags(OpenTool& tool, ServerFacts& facts)
{
    for (const FlagWords& word : readFlagWords(tool.context().g_connection)) {
        facts[{FactKind::flags, word.name}] = hexadecimal(word.flags);
        facts[{FactKind::defaultFlags, word.name}] = hexadecimal(word.defaultFlags);
        addLevels(word, facts);
    }
}

void addMacroTraces(OpenTool& tool, ServerFacts& facts)
{
    if (!tool.context().g_domMacroTraces) return;
    for (const auto& shown : knownNames::shownTraces(*tool.context().g_domMacroTraces))
        facts.try_emplace({FactKind::macroTrace, shown.group + " - " + shown.trace},
                          shown.element->attribute("Enabled") == "1" ? on : off);
}

void addSettings(OpenTool& tool, ServerFacts& facts)
{
    const auto rows = tool.context().g_connection.openRecordset(
        "SELECT FullName, Value FROM vw_ConfigurationValue", CursorKind::forwardOnly,
        LockKind::readOnly);
    for (; !rows->atEnd(); rows->moveNext()) {
        std::string name = valueAsText(rows->field("FullName"));
        if (name.starts_with(signalsOfSettings)) continue;
        const Value value = rows->field("Value");
        facts[{FactKind::setting, std::move(name)}] = isNull(value) ? "" : valueAsText(value);
    }
}

void addLanguages(OpenTool& tool, ServerFacts& facts)
{
    const auto sources = mdlLanguage::getEventLogKeys(tool.context());
    if (!sources.empty())
        facts[{FactKind::language, "events"}] = mdlLanguage::determineCurrentLanguage(
            tool.context(), mdlLanguage::eventMessageFile(tool.context(), sources.front()));
}

} // namespace

std::string_view wordOf(FactKind kind)
{
    constexpr std::string_view words[] = {"version",    "registry", "process",
                                          "level",      "flags",    "defaultFlags",
                                          "macroTrace", "setting",  "language"};
    return words[static_cast<std::size_t>(kind)];
}

ServerFacts factsOf(OpenTool& tool)
{
    ServerFacts facts;
    addVersion(tool, facts);
    addRegistry(tool, facts);
    addFlags(tool, facts);
    addMacroTraces(tool, facts);
    addSettings(tool, facts);
    addLanguages(tool, facts);
    return facts;
}

} // namespace cli
