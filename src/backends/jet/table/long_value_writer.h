#pragma once

#include "backends/jet/pages/data_page.h"
#include "backends/jet/pages/usage_maps.h"
#include "backends/jet/table/stored_form.h"

#include <cstdint>

namespace jet {

/// Stores the texts of one Memo column that are too long for its rows.
class LongValueWriter {
public:
    LongValueWriter(PageFile& file, GlobalMap& global, RowPointer owned, RowPointer free);

    /// How many pages a text needs beyond those that the column has.
    std::uint32_t pagesFor(const StoredForm& form) const;

    /// Stores a text that is not in its row. Raises 3026, 3183.
    RowPointer store(const TextValue& text, const StoredForm& form);

    /// Finds the page with room in the file, after stores have not reached it.
    void findRoom();

private:
    RowPointer storeRow(const TextValue& text, const StoredForm& form);
    RowPointer storeChain(const TextValue& text, const StoredForm& form);
    void own(std::uint32_t page);

    PageFile& file_;
    GlobalMap& global_;
    OwnedMap owned_;
    OwnedMap free_;
    RowPointer ownedRow_;
    RowPointer freeRow_;
    std::uint32_t current_ = 0; ///< the page with room; 0 for none
};

/// The mark that a chain's head in the row and its first page share, so that a head that leads to
/// another text shows. A page is never used for a second chain, which makes its number such a mark.
inline std::uint32_t chainStamp(RowPointer first)
{
    return first.page;
}

/// The page that a free map and an owned map agree on, and that belongs to `owner`; 0 for none.
std::uint32_t pageWithRoom(const PageFile& file, RowPointer owned, RowPointer free,
                           std::uint32_t owner);

} // namespace jet
