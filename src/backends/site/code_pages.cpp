#include "backends/site/code_pages.h"

#include "system/encoding_converter.h"

#include <string>
#include <vector>

namespace {

constexpr char16_t replacement = 0xFFFD;

/// The names that the machine may know a code page by.
std::vector<std::string> namesOf(int number)
{
    if (number == 20127) return {"US-ASCII"};
    if (number == 20866) return {"KOI8-R"};
    if (number == 21866) return {"KOI8-U"};
    if (number > 28590 && number < 28607) return {"ISO-8859-" + std::to_string(number - 28590)};
    const std::string digits = std::to_string(number);
    return {"CP" + digits, "WINDOWS-" + digits, "IBM" + digits};
}

/// What one byte of a code page is when it stands alone.
enum class Meaning { character, nothing, partOfACharacter };

/// Sets `character` where the byte is one.
Meaning decode(EncodingConverter& converter, char byte, char16_t& character)
{
    std::string units;
    const auto result = converter.append(units, {&byte, 1});
    if (result == EncodingConverter::Result::noCharacter) return Meaning::nothing;
    if (result != EncodingConverter::Result::whole || units.size() != 2)
        return Meaning::partOfACharacter;
    character = static_cast<char16_t>(static_cast<unsigned char>(units[0]) |
                                      static_cast<unsigned char>(units[1]) << 8);
    return Meaning::character;
}

std::optional<CodePage> codePageNamed(const std::string& name)
{
    EncodingConverter converter(name, "UTF-16LE");
    if (!converter.isKnown()) return {};
    CodePage::Table table{};
    for (std::size_t byte = 0; byte < table.size(); ++byte) {
        const auto own = static_cast<char16_t>(byte);
        table[byte] = byte < 0xA0 ? own : replacement;
        if (decode(converter, static_cast<char>(byte), table[byte]) == Meaning::partOfACharacter)
            return {};
        if (byte < 0x80 && table[byte] != own) return {};
    }
    return CodePage(table);
}

} // namespace

std::optional<CodePage> codePageOf(int number)
{
    if (number == 1252) return windows1252();
    for (const auto& name : namesOf(number))
        if (const auto codePage = codePageNamed(name)) return codePage;
    return {};
}

std::vector<int> knownCodePages()
{
    std::vector<int> known;
    for (const int number :
         {437,   720,   737,   775,   850,   852,   855,   857,   858,   860,   861,
          862,   863,   865,   866,   869,   874,   1250,  1251,  1252,  1253,  1254,
          1255,  1256,  1257,  1258,  20127, 20866, 21866, 28591, 28592, 28593, 28594,
          28595, 28596, 28597, 28598, 28599, 28600, 28601, 28603, 28604, 28605, 28606})
        if (codePageOf(number)) known.push_back(number);
    return known;
}
