#pragma once

#include <array>
#include <string>
#include <string_view>

/// A single-byte code page, in which the server writes its logs.
class CodePage {
public:
    /// The character of each byte; U+FFFD for a byte that has none. ASCII bytes stand for
    /// themselves, whatever the table says.
    using Table = std::array<char16_t, 256>;

    explicit CodePage(const Table& characters) : characters_(characters) {}

    /// The character of a byte.
    char16_t character(char encoded) const
    {
        return characters_[static_cast<unsigned char>(encoded)];
    }

    /// Appends the characters of `bytes` in UTF-8.
    void appendUtf8(std::string& target, std::string_view bytes) const;

    /// The bytes of a text in UTF-8, with "?" for each character that the code page lacks and for
    /// each byte that is no UTF-8.
    std::string bytesOf(std::string_view utf8) const;

private:
    /// The byte of a character; "?" when the code page lacks it.
    char byteOf(char32_t character) const;

    Table characters_;
};

/// Western European, the default. Its five unused bytes are the control characters of their number.
CodePage windows1252();
