#include "backends/site/language/language_catalogue.h"

#include <charconv>
#include <cstddef>
#include <system_error>
#include <utility>

#include "runtime/run_time_error.h"
#include "text/utf8.h"

namespace {

constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";
constexpr int largestId = 65535;

[[noreturn]] void fail(int lineNumber, const std::string& what)
{
    throw RunTimeError(runTimeErrors::invalidFileFormat, "Line " + std::to_string(lineNumber) +
                                                             " of the language catalogue: " + what);
}

std::string_view trimmed(std::string_view text)
{
    const auto first = text.find_first_not_of(" \t");
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(" \t") - first + 1);
}

void checkCharacters(std::string_view line, int lineNumber)
{
    while (!line.empty()) {
        const std::size_t length = utf8CharacterLength(line);
        if (length == 0) fail(lineNumber, "not UTF-8");
        const auto lead = static_cast<unsigned char>(line.front());
        if ((lead < 0x20 && lead != '\t') || lead == 0x7F) fail(lineNumber, "a control character");
        line.remove_prefix(length);
    }
}

int parsedId(std::string_view text, int lineNumber)
{
    int id = 0;
    const char* end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, id);
    if (error != std::errc{} || stop != end || id < 1 || id > largestId) {
        fail(lineNumber, "the id is no number from 1 to " + std::to_string(largestId));
    }
    return id;
}

std::string unescaped(std::string_view text, int lineNumber)
{
    std::string result;
    result.reserve(text.size());
    for (std::size_t position = 0; position < text.size(); ++position) {
        if (text[position] != '\\') {
            result += text[position];
            continue;
        }
        ++position;
        switch (position < text.size() ? text[position] : '\0') {
        case 's':
            result += ' ';
            break;
        case 'n':
            result += '\n';
            break;
        case 'r':
            result += '\r';
            break;
        case 't':
            result += '\t';
            break;
        case '\\':
            result += '\\';
            break;
        default:
            fail(lineNumber, "an unknown escape");
        }
    }
    return result;
}

void parseLine(LanguageCatalogue& catalogue, std::string_view line, int lineNumber)
{
    checkCharacters(line, lineNumber);
    line = trimmed(line);
    if (line.empty() || line.front() == '#') return;

    const auto equals = line.find('=');
    if (equals == std::string_view::npos) fail(lineNumber, "no \"=\"");
    const int id = parsedId(trimmed(line.substr(0, equals)), lineNumber);
    auto text = unescaped(trimmed(line.substr(equals + 1)), lineNumber);
    if (text.empty()) fail(lineNumber, "an empty text");
    if (!catalogue.emplace(id, std::move(text)).second) {
        fail(lineNumber, "a second text for " + std::to_string(id));
    }
}

} // namespace

LanguageCatalogue parseLanguageCatalogue(std::string_view bytes)
{
    LanguageCatalogue catalogue;
    if (bytes.substr(0, byteOrderMark.size()) == byteOrderMark) {
        bytes.remove_prefix(byteOrderMark.size());
    }
    for (int lineNumber = 1; !bytes.empty(); ++lineNumber) {
        auto line = bytes.substr(0, bytes.find('\n'));
        bytes.remove_prefix(line.size() < bytes.size() ? line.size() + 1 : line.size());
        if (!line.empty() && line.back() == '\r') line.remove_suffix(1);
        parseLine(catalogue, line, lineNumber);
    }
    return catalogue;
}
