#include "backends/xml/xml_text.h"

#include "runtime/text.h"
#include "system/encoding_converter.h"
#include "text/utf8.h"

#include <algorithm>
#include <array>

namespace {

using namespace std::string_view_literals;

constexpr std::string_view utf8Mark = "\xEF\xBB\xBF";

/// How a document begins that shows its encoding by that.
struct Beginning {
    std::string_view bytes;
    const char* encoding;
    bool isMark; ///< and no part of the text
};

constexpr std::array<Beginning, 8> beginnings = {{
    {"\xFF\xFE\0\0"sv, "UTF-32LE", true}, // before that of UTF-16, which it begins with
    {"\0\0\xFE\xFF"sv, "UTF-32BE", true},
    {"\xFF\xFE"sv, "UTF-16LE", true},
    {"\xFE\xFF"sv, "UTF-16BE", true},
    {"<\0\0\0"sv, "UTF-32LE", false},
    {"\0\0\0<"sv, "UTF-32BE", false},
    {"<\0"sv, "UTF-16LE", false},
    {"\0<"sv, "UTF-16BE", false},
}};

bool isBlank(char c)
{
    return c == ' ' || c == '\t' || c == '\r' || c == '\n';
}

bool isEncodingNameCharacter(char c)
{
    return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9') || c == '.' ||
           c == '_' || c == '-';
}

bool isAscii(std::string_view bytes)
{
    return std::all_of(bytes.begin(), bytes.end(),
                       [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}

void skipBlanks(std::string_view& text)
{
    while (!text.empty() && isBlank(text.front())) text.remove_prefix(1);
}

/// `bytes` in UTF-8; nothing when the encoding is unknown or the bytes do not fit it.
std::optional<std::string> converted(std::string_view bytes, const std::string& encoding)
{
    EncodingConverter converter(encoding, "UTF-8");
    std::string text;
    if (converter.append(text, bytes) != EncodingConverter::Result::whole) return {};
    return text;
}

} // namespace

std::string_view declaredEncoding(std::string_view bytes)
{
    if (bytes.substr(0, utf8Mark.size()) == utf8Mark) bytes.remove_prefix(utf8Mark.size());
    if (!beginsWith(bytes, "<?xml") || bytes.size() < 6 || !isBlank(bytes[5])) return {};
    auto declaration = bytes.substr(0, bytes.find("?>"));
    for (auto at = declaration.find("encoding"); at != std::string_view::npos;
         at = declaration.find("encoding", at + 1)) {
        auto rest = declaration.substr(at + std::string_view("encoding").size());
        skipBlanks(rest);
        if (!isBlank(declaration[at - 1]) || rest.empty() || rest.front() != '=') continue;
        rest.remove_prefix(1);
        skipBlanks(rest);
        if (rest.empty() || (rest.front() != '"' && rest.front() != '\'')) continue;
        const auto name = rest.substr(1, rest.find(rest.front(), 1) - 1);
        if (std::all_of(name.begin(), name.end(), isEncodingNameCharacter)) return name;
    }
    return {};
}

std::optional<std::string> xmlText(std::string_view bytes, const CodePage& codePage)
{
    for (const auto& beginning : beginnings) {
        if (!beginsWith(bytes, beginning.bytes)) continue;
        if (beginning.isMark) bytes.remove_prefix(beginning.bytes.size());
        return converted(bytes, beginning.encoding);
    }
    const bool marked = beginsWith(bytes, utf8Mark);
    const auto unmarked = bytes.substr(marked ? utf8Mark.size() : 0);
    const std::string declared = marked ? "UTF-8" : std::string(declaredEncoding(bytes));
    const bool others = !declared.empty() && !equalIgnoringCase(declared, "UTF-8");
    // Plain ASCII may be the letters of an encoding such as ISO-2022-JP.
    if (isUtf8(unmarked) && !(others && isAscii(unmarked))) return std::string(unmarked);
    if (!declared.empty()) return converted(unmarked, declared);
    std::string text;
    codePage.appendUtf8(text, unmarked);
    return text;
}
