#include "hosts/cli/config/config_file.h"

#include "runtime/run_time_error.h"
#include "system/environment.h"
#include "system/file_facts.h"
#include "system/machine_path.h"
#include "system/whole_file.h"
#include "text/utf8.h"

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

constexpr std::string_view hexDigits = "0123456789ABCDEF";

/// The parser is not sound with letters beyond ASCII outside of texts and remarks, so it is given
/// none: each byte of them, and each "%", is "%" with two digits to it.
std::string inAscii(std::string_view text)
{
    std::string ascii;
    ascii.reserve(text.size());
    for (const char letter : text) {
        const auto byte = static_cast<unsigned char>(letter);
        if (byte < 0x80 && letter != '%')
            ascii += letter;
        else
            ascii.append({'%', hexDigits[byte >> 4U], hexDigits[byte & 15U]});
    }
    return ascii;
}

/// A "%" that no digits follow, as one that was written as an escape, stays.
std::string outOfAscii(std::string_view ascii)
{
    std::string text;
    text.reserve(ascii.size());
    for (std::size_t at = 0; at < ascii.size(); ++at) {
        const auto digit = [&](std::size_t place) {
            return place < ascii.size() ? hexDigits.find(ascii[place]) : std::string_view::npos;
        };
        const std::size_t high = digit(at + 1);
        const std::size_t low = digit(at + 2);
        if (ascii[at] != '%' || high == std::string_view::npos || low == std::string_view::npos) {
            text += ascii[at];
        } else {
            text += static_cast<char>(high << 4U | low);
            at += 2;
        }
    }
    return text;
}

/// Raises for a line that is not in UTF-8.
void requireUtf8(const std::string& path, std::string_view text)
{
    std::size_t line = 1;
    while (!text.empty()) {
        const std::string_view row = text.substr(0, text.find('\n'));
        if (!isUtf8(row)) refuse(path, line, "this is no TOML: it is not in UTF-8");
        text.remove_prefix(std::min(row.size() + 1, text.size()));
        ++line;
    }
}

std::string listOfNames()
{
    std::string list;
    for (const std::string& name : configNames()) list += (list.empty() ? "" : ", ") + name;
    return list;
}

/// The parser tells some things in several lines.
std::string inOneLine(std::string_view told)
{
    std::string text = outOfAscii(told);
    std::replace(text.begin(), text.end(), '\n', ' ');
    return text;
}

void take(ConfigFile& file, const toml::key& key, const toml::node& node, std::size_t line)
{
    const std::string name = outOfAscii(key.str());
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
    file.entries.push_back({name, outOfAscii(value->get()), line});
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
    constexpr std::string_view byteOrderMark = "\xef\xbb\xbf";
    if (text.starts_with(byteOrderMark)) text.remove_prefix(byteOrderMark.size());
    requireUtf8(path, text);
    try {
        const toml::table table = toml::parse(inAscii(text));
        // The parser has them by their names.
        std::map<std::size_t, std::vector<const toml::key*>> byLine;
        for (const auto& [key, node] : table) byLine[key.source().begin.line].push_back(&key);
        for (const auto& [line, keys] : byLine)
            for (const toml::key* key : keys) take(file, *key, *table.get(*key), line);
    } catch (const toml::parse_error& error) {
        refuse(path, error.source().begin.line,
               "this is no TOML: " + inOneLine(error.description()));
    }
    return file;
}

} // namespace cli
