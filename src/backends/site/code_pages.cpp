#include "backends/site/code_pages.h"

#include <cerrno>
#include <string>
#include <vector>

#include <iconv.h>

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

/// Decodes the bytes of a code page one by one.
class ByteDecoder {
public:
    explicit ByteDecoder(const std::string& name) : converter_(iconv_open("UTF-16LE", name.c_str()))
    {}
    ~ByteDecoder()
    {
        if (isKnown()) iconv_close(converter_);
    }
    ByteDecoder(const ByteDecoder&) = delete;
    ByteDecoder& operator=(const ByteDecoder&) = delete;

    bool isKnown() const { return converter_ != reinterpret_cast<iconv_t>(-1); }

    /// Sets `character` where the byte is one.
    Meaning decode(char byte, char16_t& character)
    {
        unsigned char units[8] = {};
        char* to = reinterpret_cast<char*>(units);
        std::size_t room = sizeof units;
        char* from = &byte;
        std::size_t left = 1;
        iconv(converter_, nullptr, nullptr, nullptr, nullptr);
        if (iconv(converter_, &from, &left, &to, &room) == failure)
            return errno == EILSEQ ? Meaning::nothing : Meaning::partOfACharacter;
        // A letter waits inside the converter for a mark that it may carry, until it is asked for.
        iconv(converter_, nullptr, nullptr, &to, &room);
        if (room != sizeof units - 2) return Meaning::partOfACharacter;
        character = static_cast<char16_t>(units[0] | units[1] << 8);
        return Meaning::character;
    }

private:
    static constexpr auto failure = static_cast<std::size_t>(-1);

    iconv_t converter_;
};

std::optional<CodePage> codePageNamed(const std::string& name)
{
    ByteDecoder decoder(name);
    if (!decoder.isKnown()) return {};
    CodePage::Table table{};
    for (std::size_t byte = 0; byte < table.size(); ++byte) {
        const auto own = static_cast<char16_t>(byte);
        table[byte] = byte < 0xA0 ? own : replacement;
        if (decoder.decode(static_cast<char>(byte), table[byte]) == Meaning::partOfACharacter)
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
