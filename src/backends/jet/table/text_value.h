#pragma once

#include "text/code_page.h"

#include <cstddef>
#include <string>
#include <string_view>

namespace jet {

/// A text on its way into a row: as it was given, and ready to be written in either stored form.
///
/// Buffers are kept from one text to the next. A leading byte order mark is dropped, as it would
/// read as the mark of the compressed form; a character that can't be stored becomes U+FFFD.
class TextValue {
public:
    /// A text in a code page.
    void assign(std::string_view bytes, const CodePage& codePage);

    /// A text in UTF-8.
    void assignUtf8(std::string_view text);

    void clear();

    /// Leaves out what lies behind so many characters, and a pair of which half would be left. What
    /// remains is its own source, in UTF-8: only for a text that was given so.
    void cutTo(std::size_t characters);

    /// As it was given.
    const std::string& source() const { return source_; }

    /// In UTF-16 units, two for a character beyond U+FFFF.
    std::size_t characters() const { return ascii_ ? source_.size() : wide_.size(); }

    /// Whether the compressed form can hold it: every character within U+0001..U+00FF.
    bool compressible() const { return ascii_ || latin_; }

    /// Writes two bytes of mark and one for each character. Only for a compressible text.
    void writeCompressed(char* to) const;

    /// Writes two bytes for each character.
    void writePlain(char* to) const;

private:
    void takeWide();

    std::string source_;
    std::u16string wide_; ///< used unless ascii_
    bool ascii_ = true;   ///< every byte is U+0001..U+007F, so that the source is the text
    bool latin_ = true;
};

/// The size in bytes of a text's compressed and plain form.
constexpr std::size_t compressedSize(std::size_t characters)
{
    return characters + 2;
}
constexpr std::size_t plainSize(std::size_t characters)
{
    return characters * 2;
}

/// The text that stored bytes hold, in either form, as UTF-8.
///
/// An odd byte at the end is left out; half of a surrogate pair gives U+FFFD.
std::string decodeStoredText(std::string_view stored);

/// The same as a view: of the stored bytes where those are the text, else of `room`.
std::string_view storedTextView(std::string_view stored, std::string& room);

/// UTF-16 in stored order of a UTF-8 text: names, in the definitions of tables.
std::string encodeName(std::string_view name);

} // namespace jet
