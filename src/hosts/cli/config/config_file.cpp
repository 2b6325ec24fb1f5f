#include "hosts/cli/config/config_file.h"

#include "runtime/run_time_error.h"
#include "system/environment.h"
#include "system/file_facts.h"
#include "system/machine_path.h"
#include "system/whole_file.h"

// The parser asserts, just before it checks it, that a table's name begins with a letter of a name.
#define TOML_ASSERT(condition) static_cast<void>(0)
#include <toml++/toml.h>

#include <algorithm>
#include <map>

namespace cli {

namespace {

constexpr std::size_t largestFile = 1U << 20;

std::string place(const std::string& path, std::size_t line)
{
    return shownPathOf(path) + ":" + std::to_string(line);
}

[[noreturn]] void refuse(const std::string& path, std::size_t line, const std::string& why)
{
    throw RunTimeError(runTimeErrors::invalidFileFormat, place(path, line) + ": " + why);
}

std::string listOfNames()
{
    std::string list;
    for (const std::string& name : configNames()) list += (list.empty() ? "" : ", ") + name;
    return list;
}

/// The parser tells some things in several lines.
std::string inOneLine(std::string text)
{
    std::replace(text.begin(), text.end(), '\n', ' ');
    return text;
}

void take(ConfigFile& file, const toml::key& key, const toml::node& node, std::size_t line)
{
    const std::string name(key.str());
    const auto& names = configNames();
    if (std::find(names.begin(), names.end(), name) == names.end()) {
        file.warnings.push_back(place(file.path, line) + ": there is no setting \"" + name +
                                "\"; there are " + listOfNames());
        return;
    }
    const auto* value = node.as_string();
    if (value == nullptr) refuse(file.path, line, name + " takes a text in quotation marks");
    if (value->get().empty())
        refuse(file.path, line, name + " is empty; leave the line out to set nothing");
    file.entries.push_back({name, value->get(), line});
}

} // namespace

const ConfigEntry* ConfigFile::find(std::string_view name) const
{
    const auto found = std::find_if(entries.begin(), entries.end(),
                                    [&](const ConfigEntry& entry) { return entry.name == name; });
    return found == entries.end() ? nullptr : &*found;
}

std::string ConfigFile::placeOf(const ConfigEntry& entry) const
{
    return place(path, entry.line);
}

const std::vector<std::string>& configNames()
{
    static const std::vector<std::string> names = {"site", "tool-folder", "language", "color",
                                                   "pager"};
    return names;
}

std::string configFilePath()
{
    const std::string folder = userSettingsFolder();
    if (folder.empty()) return {};
    return machineTextOf(filePathOf(folder) / "orvandiag" / "config.toml");
}

ConfigFile readConfigFile(const std::string& path)
{
    ConfigFile none;
    none.path = path;
    if (path.empty()) return none;
    std::string text;
    try {
        text = readMachineFile(path, runTimeErrors::fileNotFound, largestFile);
    } catch (const RunTimeError& error) {
        if (error.number() == runTimeErrors::fileNotFound) return none;
        // Another user's folder, which HOME may name still, is none of the person's.
        if (!factsOf(path)) return none;
        throw RunTimeError(error.number(),
                           shownPathOf(path) + " can't be read: " + error.description());
    }
    return parseConfig(path, text);
}

ConfigFile parseConfig(const std::string& path, std::string_view text)
{
    ConfigFile file;
    file.path = path;
    file.there = true;
    try {
        const toml::table table = toml::parse(text);
        // The parser has them by their names.
        std::map<std::size_t, std::vector<const toml::key*>> byLine;
        for (const auto& [key, node] : table) byLine[key.source().begin.line].push_back(&key);
        for (const auto& [line, keys] : byLine)
            for (const toml::key* key : keys) take(file, *key, *table.get(*key), line);
    } catch (const toml::parse_error& error) {
        refuse(path, error.source().begin.line,
               "this is no TOML: " + inOneLine(std::string(error.description())));
    }
    return file;
}

} // namespace cli
