#include "backends/odbc/wide_text.h"

#include "text/utf8.h"

static_assert(sizeof(SQLWCHAR) == sizeof(char16_t), "the wide texts of ODBC are UTF-16");

WideText::WideText(std::string_view text)
{
    appendUtf16(units_, text);
}

std::string utf8OfWide(const SQLWCHAR* text, std::size_t units)
{
    // A copy, as a SQLWCHAR is no char16_t to the language.
    std::u16string copy(units, u'\0');
    for (std::size_t i = 0; i < units; ++i) copy[i] = static_cast<char16_t>(text[i]);
    return utf8OfUtf16(std::u16string_view(copy));
}
