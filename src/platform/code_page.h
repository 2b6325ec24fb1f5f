#pragma once

#include <array>
#include <string>
#include <string_view>

/// A single-byte code page, in which the server writes its logs.
class CodePage {
public:
    /// The character of each byte. ASCII bytes stand for themselves, whatever the table says.
    using Table = std::array<char16_t, 256>;

    explicit CodePage(const Table& characters) : characters_(characters) {}

    /// The character of a byte.
    char16_t character(char byte) const { return characters_[static_cast<unsigned char>(byte)]; }

    /// Appends the characters of `bytes` in UTF-8. Every byte has one.
    void appendUtf8(std::string& target, std::string_view bytes) const;

private:
    Table characters_;
};

/// Western European, the default. Its five unused bytes are the control characters of their number.
CodePage windows1252();
