#include "backends/site/site_settings.h"

#include "backends/site/code_pages.h"
#include "backends/site/time/posix_time_zone.h"
#include "runtime/run_time_error.h"
#include "system/whole_file.h"
#include "text/utf8.h"

#include <charconv>
#include <set>

namespace {

constexpr std::size_t largestSettingsFile = 1U << 20;
constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";

std::string_view trimmed(std::string_view text)
{
    const auto first = text.find_first_not_of(" \t\r");
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(" \t\r") - first + 1);
}

bool sameName(std::string_view left, std::string_view right)
{
    return foldCase(left) == foldCase(right);
}

bool isControl(char c)
{
    const auto byte = static_cast<unsigned char>(c);
    return (byte < 0x20 && c != '\t') || byte == 0x7F;
}

/// Whether a UTF-8 text has a character that a person does not see, but that ends a line or turns
/// the way it is read.
bool hasHiddenCharacter(std::string_view text)
{
    for (const std::string_view start : {"\xC2\x80", "\xC2\x90", "\xE2\x80\xA8", "\xE2\x81\xA6"}) {
        // Blocks of 16 or 8 characters that differ in the last byte alone.
        const unsigned first = static_cast<unsigned char>(start.back());
        const unsigned last = start.size() == 2 ? first + 15 : first + (first == 0xA8 ? 6 : 3);
        const auto head = start.substr(0, start.size() - 1);
        for (auto at = text.find(head); at != std::string_view::npos;
             at = text.find(head, at + 1)) {
            if (at + head.size() >= text.size()) break;
            const auto byte = static_cast<unsigned char>(text[at + head.size()]);
            if (byte >= first && byte <= last) return true;
        }
    }
    return text.find('\t') != std::string_view::npos;
}

enum class Section { none, site, database, other };

/// Reads the lines one by one and knows where it stands, for its messages.
class Parser {
public:
    SiteSettings parse(std::string_view text)
    {
        if (text.substr(0, byteOrderMark.size()) == byteOrderMark)
            text.remove_prefix(byteOrderMark.size());
        while (!text.empty()) {
            const auto line = text.substr(0, text.find('\n'));
            text.remove_prefix(std::min(line.size() + 1, text.size()));
            ++lineNumber_;
            parseLine(trimmed(line));
        }
        return std::move(settings_);
    }

private:
    [[noreturn]] void fail(const std::string& what) const
    {
        throw RunTimeError(runTimeErrors::invalidFileFormat,
                           "site.ini line " + std::to_string(lineNumber_) + ": " + what);
    }

    void parseLine(std::string_view line)
    {
        if (!isUtf8(line)) fail("not UTF-8");
        for (const char c : line)
            if (isControl(c)) fail("a control character");
        if (line.empty() || line.front() == ';' || line.front() == '#') return;
        if (line.front() == '[') {
            if (line.back() != ']') fail("a section without \"]\"");
            section_ = sectionOf(trimmed(line.substr(1, line.size() - 2)));
            return;
        }
        if (section_ == Section::other) return;
        const auto equals = line.find('=');
        if (equals == std::string_view::npos) fail("neither a section nor \"key = value\"");
        if (section_ == Section::none) fail("a key before the section [site]");
        const auto key = trimmed(line.substr(0, equals));
        if (!seen_.insert(foldCase(key)).second) fail("a second \"" + std::string(key) + "\"");
        const std::string value = unquoted(trimmed(line.substr(equals + 1)));
        if (section_ == Section::database)
            assignOfDatabase(key, value);
        else
            assign(key, value);
    }

    static Section sectionOf(std::string_view name)
    {
        if (sameName(name, "site")) return Section::site;
        return sameName(name, "database") ? Section::database : Section::other;
    }

    void assignOfDatabase(std::string_view key, const std::string& value)
    {
        if (!sameName(key, "odbc")) fail("unknown key \"" + std::string(key) + "\"");
        if (hasHiddenCharacter(value)) fail("odbc has a character that can't be seen");
        if (!value.empty()) settings_.odbc = value;
    }

    static std::string unquoted(std::string_view value)
    {
        if (value.size() >= 2 && value.front() == '"' && value.back() == '"')
            value = value.substr(1, value.size() - 2);
        return std::string(value);
    }

    void assign(std::string_view key, const std::string& value)
    {
        const bool given = !value.empty();
        if (sameName(key, "computer")) {
            if (given) settings_.computer = checkedName(key, value);
        } else if (sameName(key, "user")) {
            if (given) settings_.user = userName(key, value);
        } else if (sameName(key, "timeZone")) {
            if (given) settings_.timeZone = timeZone(value);
        } else if (sameName(key, "codePage")) {
            if (given) settings_.codePage = codePage(key, value);
        } else if (sameName(key, "language")) {
            if (given) settings_.language = number(key, value);
        } else if (sameName(key, "toolFolder")) {
            if (given) settings_.toolFolder = toolFolder(value);
        } else if (sameName(key, "logFields")) {
            if (given) settings_.logFields = logFields(value);
        } else {
            fail("unknown key \"" + std::string(key) + "\"");
        }
    }

    /// A name that becomes part of file names, lines and commands.
    std::string checkedName(std::string_view key, const std::string& value) const
    {
        if (value.find_first_of("\\/:*?\"'`;%<>|") != std::string::npos ||
            value.find("..") != std::string::npos || hasHiddenCharacter(value))
            fail(std::string(key) + " is no name: " + value);
        return value;
    }

    /// May stand behind its domain, as in "OFFICE\maria".
    std::string userName(std::string_view key, const std::string& value) const
    {
        const auto domain = value.find('\\');
        if (domain == std::string::npos) return checkedName(key, value);
        if (domain == 0 || domain + 1 == value.size()) fail("user is no name: " + value);
        checkedName(key, value.substr(0, domain));
        checkedName(key, value.substr(domain + 1));
        return value;
    }

    int number(std::string_view key, const std::string& value) const
    {
        int result = 0;
        const char* end = value.data() + value.size();
        const auto [stop, error] = std::from_chars(value.data(), end, result);
        if (error != std::errc{} || stop != end || result < 1 || result > 65535)
            fail(std::string(key) + " is no number from 1 to 65535: " + value);
        return result;
    }

    int codePage(std::string_view key, const std::string& value) const
    {
        const int page = number(key, value);
        if (!codePageOf(page))
            fail("codePage is no single-byte code page that this machine knows, such as 1252: " +
                 value);
        return page;
    }

    std::string timeZone(const std::string& value) const
    {
        try {
            parsePosixTimeZone(value);
        } catch (const RunTimeError&) {
            fail("timeZone is no POSIX TZ text, such as PST8PDT,M3.2.0,M11.1.0: " + value);
        }
        return value;
    }

    std::string toolFolder(std::string value) const
    {
        const auto isSeparator = [](char c) { return c == '\\' || c == '/'; };
        const bool drive = value.size() > 3 && value[1] == ':' && isSeparator(value[2]);
        while (value.size() > 1 && isSeparator(value.back())) value.pop_back();
        if (!drive || value.size() < 4)
            fail("toolFolder is no folder of a drive, such as C:\\OrvanDiagnostics: " + value);
        if (value.find_first_of("*?\"'`;%<>|") != std::string::npos ||
            value.find(':', 2) != std::string::npos || value.find("..") != std::string::npos ||
            hasHiddenCharacter(value))
            fail("toolFolder is no name of a folder: " + value);
        return value;
    }

    LogFields logFields(const std::string& value) const
    {
        if (sameName(value, "basic")) return LogFields::basic;
        if (sameName(value, "extended")) return LogFields::extended;
        fail("logFields is neither basic nor extended: " + value);
    }

    SiteSettings settings_;
    std::set<std::string> seen_;
    int lineNumber_ = 0;
    Section section_ = Section::none;
};

} // namespace

SiteSettings parseSiteSettings(std::string_view text)
{
    return Parser().parse(text);
}

SiteSettings readSiteSettings(const RootFolder& site)
{
    std::string text;
    try {
        text = readWholeFile(site, "site.ini", runTimeErrors::fileNotFound, largestSettingsFile);
    } catch (const RunTimeError& error) {
        if (error.number() == runTimeErrors::fileNotFound) return {};
        throw RunTimeError(error.number(), "site.ini: " + error.description());
    }
    return parseSiteSettings(text);
}
