#include "backends/jet/pages/pages.h"

#include "backends/jet/errors.h"
#include "runtime/run_time_error.h"

#include <algorithm>

namespace jet {

namespace {

void collectBits(std::string_view bits, std::uint64_t first, std::uint32_t limit,
                 std::vector<std::uint32_t>& pages)
{
    for (std::size_t byte = 0; byte < bits.size(); ++byte) {
        for (unsigned value = static_cast<unsigned char>(bits[byte]); value != 0;
             value &= value - 1) {
            const auto bit = static_cast<unsigned>(std::countr_zero(value));
            const std::uint64_t page = first + byte * 8 + bit;
            if (page < limit) pages.push_back(static_cast<std::uint32_t>(page));
        }
    }
}

/// Where row `row` of a page begins and ends; an empty range for one that is out of order.
std::string_view sliceOf(const char* page, unsigned row)
{
    const char* slot = page + dataPage::slots + 2 * std::size_t{row};
    const std::size_t start = load16(slot) & dataPage::offsetMask;
    const std::size_t end = row == 0 ? pageSize : load16(slot - 2) & dataPage::offsetMask;
    if (start < dataPage::slots || start > end || end > pageSize) return {};
    return {page + start, end - start};
}

} // namespace

const char* Pages::at(std::uint32_t page) const
{
    if (page >= count_) raiseUnknownFormat("page " + std::to_string(page) + " is missing");
    return source_ != nullptr ? source_->look(page) : base_ + std::size_t{page} * pageSize;
}

const char* Pages::at(std::uint32_t page, PageType type) const
{
    const char* found = at(page);
    if (static_cast<PageType>(found[0]) != type) found = again(page, found);
    if (static_cast<PageType>(found[0]) != type)
        raiseUnknownFormat("page " + std::to_string(page) + " has another type");
    return found;
}

const char* Pages::dataOf(std::uint32_t page, std::uint32_t owner) const
{
    const char* found = at(page, PageType::data);
    // A page that is led to may have been filled since it was read.
    if (load32(found + dataPage::owner) != owner) found = again(page, found);
    if (static_cast<PageType>(found[0]) != PageType::data ||
        load32(found + dataPage::owner) != owner)
        raiseUnknownFormat("page " + std::to_string(page) + " belongs elsewhere");
    return found;
}

std::string_view Pages::row(RowPointer pointer) const
{
    const char* page = at(pointer.page, PageType::data);
    if (pointer.row >= rowsOn(page)) page = again(pointer.page, page);
    if (pointer.row >= rowsOn(page))
        raiseUnknownFormat("page " + std::to_string(pointer.page) + " lacks a row");
    return sliceOf(page, pointer.row);
}

std::string_view Pages::tableRow(const char* page, unsigned slot) const
{
    const std::string_view bytes = sliceOf(page, slot);
    const unsigned flags =
        load16(page + dataPage::slots + 2 * std::size_t{slot}) & dataPage::flagMask;
    if (flags == 0) return bytes;
    if (flags != dataPage::movedFlag || bytes.size() < 4) return {};
    return row(RowPointer::load(bytes.data()));
}

std::vector<std::uint32_t> Pages::usageMap(RowPointer pointer) const
{
    const std::string map(row(pointer)); // of its own, as other pages are looked at
    std::vector<std::uint32_t> pages;
    if (map.size() >= usageMap::bits && map[0] == 0) {
        collectBits(std::string_view(map).substr(usageMap::bits), load32(map.data() + 1), count_,
                    pages);
    } else if (!map.empty() && map[0] == 1) {
        std::uint64_t first = 0;
        for (std::size_t at = usageMap::pointers; at + 4 <= map.size() && first < count_; at += 4) {
            if (const std::uint32_t bitmap = load32(map.data() + at); bitmap != 0) {
                const char* page = this->at(bitmap, PageType::usageBitmap);
                collectBits({page + usageMap::bitmapHead, pageSize - usageMap::bitmapHead}, first,
                            count_, pages);
            }
            first += usageMap::pagesPerBitmap;
        }
    } else {
        raiseUnknownFormat("a usage map of page " + std::to_string(pointer.page));
    }
    return pages;
}

std::vector<std::uint32_t> Pages::pagesOfOwner(std::uint32_t owner) const
{
    std::vector<std::uint32_t> pages;
    for (std::uint32_t number = 1; number < count_; ++number) {
        try {
            const char* page = at(number);
            if (static_cast<PageType>(page[0]) == PageType::data &&
                load32(page + dataPage::owner) == owner)
                pages.push_back(number);
        } catch (const RunTimeError&) { // NOLINT(bugprone-empty-catch): what is left can be read
        }
    }
    return pages;
}

unsigned rowsOn(const char* page)
{
    constexpr std::size_t mostSlots = (pageSize - dataPage::slots) / 2;
    return static_cast<unsigned>(
        std::min<std::size_t>(load16(page + dataPage::rowCount), mostSlots));
}

} // namespace jet
