#pragma once

#include "backends/jet/data_page.h"
#include "backends/jet/text_value.h"
#include "backends/jet/usage_maps.h"

#include <cstdint>

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
StoredForm formOfText(const TextValue& text, bool mayCompress);
StoredForm formOfMemo(const TextValue& text, bool mayCompress);

void writeText(char* to, const TextValue& text, bool compressed);

/// Stores the texts of one Memo column that are too long for its rows.
class LongValueWriter {
public:
    LongValueWriter(PageFile& file, GlobalMap& global, RowPointer owned, RowPointer free);

    /// How many pages a text needs beyond those that the column has.
    std::uint32_t pagesFor(const StoredForm& form) const;

    /// Stores a text that is not in its row. Raises 3026, 3183.
    RowPointer store(const TextValue& text, const StoredForm& form);

private:
    RowPointer storeRow(const TextValue& text, const StoredForm& form);
    RowPointer storeChain(const TextValue& text, const StoredForm& form);
    void own(std::uint32_t page);

    PageFile& file_;
    GlobalMap& global_;
    OwnedMap owned_;
    OwnedMap free_;
    std::uint32_t current_ = 0; ///< the page with room; 0 for none
};

/// The page that a free map and an owned map agree on, and that belongs to `owner`; 0 for none.
std::uint32_t pageWithRoom(const PageFile& file, RowPointer owned, RowPointer free,
                           std::uint32_t owner);

} // namespace jet
