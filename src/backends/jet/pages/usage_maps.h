#pragma once

#include "backends/jet/pages/page_file.h"

#include <cstdint>
#include <span>

namespace jet {

/// A row of the file that holds a usage map, to be changed in place.
///
/// Its bits lie in the row itself (inline), or on bitmap pages that the row points at.
class MapRow {
public:
    /// Raises 3343 when there is no map.
    MapRow(PageFile& file, RowPointer at);

    bool isInline() const { return row()[0] == 0; }

    std::uint32_t firstPage() const { return load32(row() + 1); }
    std::span<char> bits() { return {row() + usageMap::bits, length_ - usageMap::bits}; }
    bool covers(std::uint32_t page) const;
    void setFirstPage(std::uint32_t page) { store32(row() + 1, page); }
    void setBit(std::uint32_t page, bool value);

    /// The bitmap page for a group of 32,736 pages; 0 for none. Raises 3183 past the last pointer.
    std::uint32_t bitmapOf(std::uint32_t group) const;
    void setBitmapOf(std::uint32_t group, std::uint32_t bitmap);

    /// Turns an inline map into one that points at these bitmap pages, one for a group, in one
    /// step.
    void convert(std::span<const std::uint32_t> bitmaps);

private:
    char* row() const { return file_->page(page_) + offset_; }

    PageFile* file_;
    std::uint32_t page_;
    std::size_t offset_; ///< of the row within its page
    std::size_t length_;
};

/// The map of the pages that nothing uses.
class GlobalMap {
public:
    explicit GlobalMap(PageFile& file);

    /// Marks a page as used. Raises 3026, 3183.
    void markUsed(std::uint32_t page);

    bool isUsed(std::uint32_t page);

private:
    void convert();
    std::uint32_t addBitmap(std::uint32_t group);

    PageFile& file_;
    MapRow map_;
};

/// The map of the pages that a table, or a column of long texts, has or has room on.
class OwnedMap {
public:
    OwnedMap(PageFile& file, GlobalMap& global, RowPointer at);

    /// Adds a page that is written and marked as used. Raises 3026, 3183.
    void add(std::uint32_t page);

    /// Makes a page the only one, for maps of free space. Such a map is a hint to other writers:
    /// one that is not inline stays as it is, so that this never fails.
    void moveTo(std::uint32_t page);

private:
    void convert(std::uint32_t page);
    std::uint32_t newBitmap(std::uint32_t group, std::span<const std::uint32_t> pages);

    PageFile& file_;
    GlobalMap& global_;
    MapRow map_;
    RowPointer at_;
};

} // namespace jet
