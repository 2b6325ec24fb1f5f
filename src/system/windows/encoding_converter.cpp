#include "system/encoding_converter.h"

#include "system/windows/windows_calls.h"
#include "text/utf8.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <cstdint>
#include <memory>
#include <optional>

namespace {

using Result = EncodingConverter::Result;

/// Wide units that the system has no code page for that it would convert.
constexpr UINT utf16Little = 1200;
constexpr UINT utf16Big = 1201;
constexpr UINT utf32Little = 12000;
constexpr UINT utf32Big = 12001;

struct NamedPage {
    std::string_view name;
    UINT page;
};

constexpr std::array<NamedPage, 27> namedPages = {{
    {"UTF-8", CP_UTF8},     {"UTF8", CP_UTF8},      {"UTF-16LE", utf16Little},
    {"UTF-16BE", utf16Big}, {"UTF-16", utf16Big},   {"UTF-32LE", utf32Little},
    {"UTF-32BE", utf32Big}, {"UTF-32", utf32Big},   {"US-ASCII", 20127},
    {"ASCII", 20127},       {"LATIN1", 28591},      {"KOI8-R", 20866},
    {"KOI8-U", 21866},      {"SHIFT_JIS", 932},     {"SHIFT-JIS", 932},
    {"SJIS", 932},          {"WINDOWS-31J", 932},   {"EUC-JP", 20932},
    {"EUC-KR", 949},        {"EUC-CN", 936},        {"GB2312", 936},
    {"GBK", 936},           {"GB18030", 54936},     {"BIG5", 950},
    {"TIS-620", 874},       {"ISO-2022-JP", 50220}, {"ISO-2022-KR", 50225},
}};

/// The number behind a beginning such as "CP"; nothing for another name.
std::optional<UINT> numberBehind(std::string_view name, std::string_view beginning)
{
    constexpr std::size_t mostDigits = 5;
    if (!name.starts_with(beginning)) return {};
    name.remove_prefix(beginning.size());
    if (name.empty() || name.size() > mostDigits ||
        name.find_first_not_of("0123456789") != std::string_view::npos)
        return {};
    return static_cast<UINT>(std::stoul(std::string(name)));
}

bool isWide(UINT page)
{
    return page == utf16Little || page == utf16Big || page == utf32Little || page == utf32Big;
}

/// The system's number of an encoding; nothing where it has no table of it.
std::optional<UINT> pageOf(std::string name)
{
    std::transform(name.begin(), name.end(), name.begin(),
                   [](unsigned char c) { return static_cast<char>(std::toupper(c)); });
    for (const NamedPage& each : namedPages)
        if (each.name == name)
            return isWide(each.page) || ::IsValidCodePage(each.page) != 0 ? std::optional(each.page)
                                                                          : std::nullopt;
    constexpr UINT beforeLatin1 = 28590;
    std::optional<UINT> page = numberBehind(name, "ISO-8859-");
    if (page)
        page = beforeLatin1 + *page;
    else
        for (const char* beginning : {"CP", "WINDOWS-", "IBM"})
            if (!page) page = numberBehind(name, beginning);
    return page && ::IsValidCodePage(*page) != 0 ? page : std::nullopt;
}

/// Some code pages of the system refuse to tell of what they don't know.
bool tellsOfErrors(UINT page)
{
    return page != 42 && page < 50000;
}

DWORD decodingFlags(UINT page)
{
    return tellsOfErrors(page) || page == 54936 ? MB_ERR_INVALID_CHARS : 0;
}

/// Whether bytes that stand for nothing in a Windows code page became control characters.
bool hasInventedControl(UINT page, std::string_view bytes, std::wstring_view units)
{
    if (page < 1250 || page > 1258 || bytes.size() != units.size()) return false;
    return std::any_of(units.begin(), units.end(),
                       [](wchar_t unit) { return unit >= 0x80 && unit < 0xA0; });
}

/// Nothing where the bytes are not whole characters of a code page, every one.
std::optional<std::wstring> decoded(UINT page, std::string_view bytes)
{
    if (bytes.empty()) return std::wstring();
    const int size = static_cast<int>(bytes.size());
    const int needed =
        ::MultiByteToWideChar(page, decodingFlags(page), bytes.data(), size, nullptr, 0);
    if (needed <= 0) return {};
    std::wstring units(static_cast<std::size_t>(needed), L'\0');
    ::MultiByteToWideChar(page, decodingFlags(page), bytes.data(), size, units.data(), needed);
    if (hasInventedControl(page, bytes, units)) return {};
    return units;
}

/// Whether bytes may be the beginning of a character of UTF-8.
bool beginsUtf8(std::string_view bytes)
{
    const auto lead = static_cast<unsigned char>(bytes.front());
    const std::size_t length = lead >= 0xF0 ? 4 : lead >= 0xE0 ? 3 : 2;
    if (lead < 0xC2 || lead > 0xF4 || bytes.size() >= length) return false;
    return std::all_of(bytes.begin() + 1, bytes.end(),
                       [](char c) { return (static_cast<unsigned char>(c) & 0xC0U) == 0x80; });
}

Result decodeUtf8(std::string_view bytes, std::u32string& text)
{
    while (!bytes.empty()) {
        const std::size_t length = utf8CharacterLength(bytes);
        if (length == 0) return beginsUtf8(bytes) ? Result::cutShort : Result::noCharacter;
        text += utf8CodePoint(bytes.substr(0, length));
        bytes.remove_prefix(length);
    }
    return Result::whole;
}

bool isSurrogate(char32_t unit)
{
    return unit >= 0xD800 && unit < 0xE000;
}

/// Takes a unit of `size` bytes off the front.
char32_t takeUnit(std::string_view& bytes, std::size_t size, bool bigEndian)
{
    char32_t unit = 0;
    for (std::size_t index = 0; index < size; ++index)
        unit = unit << 8 | static_cast<unsigned char>(bytes[bigEndian ? index : size - 1 - index]);
    bytes.remove_prefix(size);
    return unit;
}

Result decodeWide(UINT page, std::string_view bytes, std::u32string& text)
{
    const bool bigEndian = page == utf16Big || page == utf32Big;
    const std::size_t size = page == utf16Little || page == utf16Big ? 2 : 4;
    while (bytes.size() >= size) {
        char32_t unit = takeUnit(bytes, size, bigEndian);
        if (size == 2 && unit >= 0xD800 && unit < 0xDC00) {
            if (bytes.size() < size) return Result::cutShort;
            const char32_t second = takeUnit(bytes, size, bigEndian);
            if (second < 0xDC00 || second >= 0xE000) return Result::noCharacter;
            unit = 0x10000 + ((unit - 0xD800) << 10) + (second - 0xDC00);
        }
        if (isSurrogate(unit) || unit > 0x10FFFF) return Result::noCharacter;
        text += unit;
    }
    return bytes.empty() ? Result::whole : Result::cutShort;
}

void appendUnits(std::u32string& text, std::wstring_view units)
{
    const std::string bytes = utf8Of(units);
    decodeUtf8(bytes, text);
}

/// Decodes a character at a time, up to what is none, where the whole is not in order.
Result decodePage(UINT page, std::string_view bytes, std::u32string& text)
{
    if (const auto units = decoded(page, bytes)) {
        appendUnits(text, *units);
        return Result::whole;
    }
    constexpr std::size_t longestCharacter = 4;
    while (!bytes.empty()) {
        const std::size_t longest = std::min(longestCharacter, bytes.size());
        std::optional<std::wstring> character;
        std::size_t length = 0;
        while (!character && length < longest) character = decoded(page, bytes.substr(0, ++length));
        if (!character) {
            const bool begins = bytes.size() == 1 &&
                                ::IsDBCSLeadByteEx(page, static_cast<BYTE>(bytes.front())) != 0;
            return begins ? Result::cutShort : Result::noCharacter;
        }
        appendUnits(text, *character);
        bytes.remove_prefix(length);
    }
    return Result::whole;
}

void appendUnit(std::string& target, char32_t unit, std::size_t size, bool bigEndian)
{
    for (std::size_t index = 0; index < size; ++index) {
        const std::size_t shift = 8 * (bigEndian ? size - 1 - index : index);
        target += static_cast<char>(unit >> shift & 0xFFU);
    }
}

void encodeWide(UINT page, char32_t character, std::string& target)
{
    const bool bigEndian = page == utf16Big || page == utf32Big;
    if (page == utf32Little || page == utf32Big) {
        appendUnit(target, character, 4, bigEndian);
    } else if (character < 0x10000) {
        appendUnit(target, character, 2, bigEndian);
    } else {
        appendUnit(target, 0xD800 + ((character - 0x10000) >> 10), 2, bigEndian);
        appendUnit(target, 0xDC00 + (character & 0x3FFU), 2, bigEndian);
    }
}

/// False for a character that the code page has not.
bool encodePage(UINT page, char32_t character, std::string& target)
{
    std::string utf8;
    appendUtf8(utf8, character);
    const std::wstring units = wideOf(utf8);
    const bool tells = tellsOfErrors(page);
    std::array<char, 16> bytes{};
    BOOL replaced = FALSE;
    const int size = ::WideCharToMultiByte(
        page, tells ? WC_NO_BEST_FIT_CHARS : 0, units.data(), static_cast<int>(units.size()),
        bytes.data(), static_cast<int>(bytes.size()), nullptr, tells ? &replaced : nullptr);
    if (size <= 0 || replaced != FALSE) return false;
    target.append(bytes.data(), static_cast<std::size_t>(size));
    return true;
}

struct Conversion {
    UINT from = 0;
    UINT to = 0;
};

} // namespace

EncodingConverter::EncodingConverter(const std::string& from, const std::string& to)
    : converter_(nullptr)
{
    const auto fromPage = pageOf(from);
    const auto toPage = pageOf(to);
    if (fromPage && toPage) converter_ = new Conversion{*fromPage, *toPage};
}

EncodingConverter::~EncodingConverter()
{
    delete static_cast<Conversion*>(converter_);
}

bool EncodingConverter::isKnown() const
{
    return converter_ != nullptr;
}

Result EncodingConverter::append(std::string& target, std::string_view bytes)
{
    if (!isKnown()) return Result::cutShort;
    const Conversion conversion = *static_cast<Conversion*>(converter_);
    std::u32string text;
    const Result result = conversion.from == CP_UTF8 ? decodeUtf8(bytes, text)
                          : isWide(conversion.from)  ? decodeWide(conversion.from, bytes, text)
                                                     : decodePage(conversion.from, bytes, text);
    for (const char32_t character : text) {
        if (conversion.to == CP_UTF8)
            appendUtf8(target, character);
        else if (isWide(conversion.to))
            encodeWide(conversion.to, character, target);
        else if (!encodePage(conversion.to, character, target))
            return Result::noCharacter;
    }
    return result;
}
