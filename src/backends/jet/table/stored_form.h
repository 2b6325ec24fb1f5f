#pragma once

#include "backends/jet/format.h"
#include "backends/jet/table/text_value.h"

#include <cstddef>

namespace jet {

/// How a text is stored in its column: which form, how many bytes of it, and where they lie.
struct StoredForm {
    enum class Place : unsigned char { inRow, oneRow, chain };

    Place place = Place::inRow;
    bool compressed = false;
    std::size_t bytes = 0; ///< of the text

    /// The bytes of a Memo's cell in the row.
    std::size_t memoCellBytes() const
    {
        return longValue::head + (place == Place::inRow ? bytes : 0);
    }
};

/// The form that the engine gives a text. `mayCompress` is the column's own word on it.
inline StoredForm formOfText(const TextValue& text, bool mayCompress)
{
    constexpr std::size_t shortestCompressed = 3;
    const std::size_t characters = text.characters();
    StoredForm form;
    form.compressed = mayCompress && characters >= shortestCompressed && text.compressible();
    form.bytes = form.compressed ? compressedSize(characters) : plainSize(characters);
    return form;
}

/// The same for a Memo, whose place goes by the plain size in either form.
inline StoredForm formOfMemo(const TextValue& text, bool mayCompress)
{
    const std::size_t characters = text.characters();
    const std::size_t plain = plainSize(characters);
    const bool worthIt = compressedSize(characters) <= longValue::longestCompressed;
    StoredForm form = formOfText(text, mayCompress && worthIt);
    if (plain > longValue::longestInline)
        form.place =
            plain <= longValue::longestRow ? StoredForm::Place::oneRow : StoredForm::Place::chain;
    return form;
}

inline void writeText(char* to, const TextValue& text, bool compressed)
{
    if (compressed)
        text.writeCompressed(to);
    else
        text.writePlain(to);
}

} // namespace jet
