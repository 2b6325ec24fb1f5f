#include "backends/jet/pages/usage_maps.h"

#include "backends/jet/errors.h"

#include <algorithm>
#include <array>

namespace jet {

namespace {

// The header names it too, with the same numbers in every file.
constexpr RowPointer globalMapRow = {globalMapPage, 0};

std::uint32_t groupOf(std::uint32_t page)
{
    return page / usageMap::pagesPerBitmap;
}

void assignBit(char* bits, std::uint32_t bit, bool value)
{
    const auto mask = static_cast<unsigned char>(1u << (bit % 8));
    auto& byte = reinterpret_cast<unsigned char&>(bits[bit / 8]);
    byte = static_cast<unsigned char>(value ? byte | mask : byte & ~mask);
}

bool bitOf(const char* bits, std::uint32_t bit)
{
    return (static_cast<unsigned char>(bits[bit / 8]) >> (bit % 8) & 1) != 0;
}

/// The bits of a bitmap page that is being changed. Raises 3343 for a page that is none.
char* bitmapBits(PageFile& file, std::uint32_t page)
{
    file.pages().at(page, PageType::usageBitmap);
    return file.page(page) + usageMap::bitmapHead;
}

void beginBitmap(char* page, char fill)
{
    constexpr std::uint32_t head = static_cast<std::uint32_t>(PageType::usageBitmap) | 1u << 8;
    store32(page, head); // at once: a page has a type at every moment
    std::memset(page + usageMap::bitmapHead, fill, pageSize - usageMap::bitmapHead);
}

} // namespace

MapRow::MapRow(PageFile& file, RowPointer at) : file_(&file), page_(at.page)
{
    const std::string_view row = file.pages().row(at);
    if (row.size() < usageMap::bits || (row[0] != 0 && row[0] != 1))
        raiseUnknownFormat("a usage map of page " + std::to_string(at.page));
    offset_ = static_cast<std::size_t>(row.data() - file.page(page_));
    length_ = row.size();
}

bool MapRow::covers(std::uint32_t page) const
{
    return page >= firstPage() && page - firstPage() < (length_ - usageMap::bits) * 8;
}

void MapRow::setBit(std::uint32_t page, bool value)
{
    assignBit(row() + usageMap::bits, page - firstPage(), value);
}

std::uint32_t MapRow::bitmapOf(std::uint32_t group) const
{
    const std::size_t at = usageMap::pointers + std::size_t{group} * 4;
    if (at + 4 > length_) raiseDatabaseFull();
    return load32(row() + at);
}

void MapRow::setBitmapOf(std::uint32_t group, std::uint32_t bitmap)
{
    store32(row() + usageMap::pointers + std::size_t{group} * 4, bitmap);
}

void MapRow::convert(std::span<const std::uint32_t> bitmaps)
{
    if (usageMap::pointers + bitmaps.size() * 4 > length_) raiseDatabaseFull();
    std::array<char, pageSize> changed;
    std::memcpy(changed.data(), file_->page(page_), pageSize);
    char* row = changed.data() + offset_;
    std::memset(row, 0, length_);
    row[0] = 1;
    for (std::size_t group = 0; group < bitmaps.size(); ++group)
        store32(row + usageMap::pointers + group * 4, bitmaps[group]);
    file_->replace(page_, changed.data());
}

GlobalMap::GlobalMap(PageFile& file) : file_(file), map_(file, globalMapRow) {}

void GlobalMap::markUsed(std::uint32_t page)
{
    if (map_.isInline()) {
        if (map_.covers(page))
            map_.setBit(page, false);
        else
            convert();
        return;
    }
    const std::uint32_t group = groupOf(page);
    std::uint32_t bitmap = map_.bitmapOf(group);
    if (bitmap == 0) bitmap = addBitmap(group);
    assignBit(bitmapBits(file_, bitmap), page % usageMap::pagesPerBitmap, false);
}

bool GlobalMap::isUsed(std::uint32_t page)
{
    if (map_.isInline())
        return map_.covers(page) && !bitOf(map_.bits().data(), page - map_.firstPage());
    const std::uint32_t bitmap = map_.bitmapOf(groupOf(page));
    return bitmap != 0 && !bitOf(bitmapBits(file_, bitmap), page % usageMap::pagesPerBitmap);
}

/// Gives every group that has pages a bitmap page, at the end of the file. Pages that the inline
/// map did not reach exist, and count as used.
void GlobalMap::convert()
{
    std::uint32_t groups = 1;
    while (groupOf(file_.count() + groups - 1) >= groups) ++groups;
    file_.reserve(groups);
    std::vector<std::uint32_t> bitmaps(groups);
    for (auto& bitmap : bitmaps) {
        bitmap = file_.take();
        beginBitmap(file_.page(bitmap), '\xFF');
    }
    for (std::uint32_t page = 0; page < file_.count(); ++page) {
        const bool isFree = map_.covers(page) && bitOf(map_.bits().data(), page - map_.firstPage());
        if (!isFree)
            assignBit(bitmapBits(file_, bitmaps[groupOf(page)]), page % usageMap::pagesPerBitmap,
                      false);
    }
    map_.convert(bitmaps);
}

/// Gives a group a bitmap page, which is marked as used itself before anything leads to it.
std::uint32_t GlobalMap::addBitmap(std::uint32_t group)
{
    const std::uint32_t bitmap = file_.take();
    char* content = file_.page(bitmap);
    beginBitmap(content, '\xFF');
    if (groupOf(bitmap) == group)
        assignBit(content + usageMap::bitmapHead, bitmap % usageMap::pagesPerBitmap, false);
    else
        markUsed(bitmap); // the page that needs the bitmap was the last of its group
    inThisOrder();
    map_.setBitmapOf(group, bitmap);
    return bitmap;
}

OwnedMap::OwnedMap(PageFile& file, GlobalMap& global, RowPointer at)
    : file_(file), global_(global), map_(file, at), at_(at)
{}

void OwnedMap::add(std::uint32_t page)
{
    if (map_.isInline()) {
        const auto bits = map_.bits();
        if (!map_.covers(page) &&
            std::all_of(bits.begin(), bits.end(), [](char b) { return b == 0; })) {
            map_.setFirstPage(page & ~7u);
            inThisOrder();
        }
        if (map_.covers(page))
            map_.setBit(page, true);
        else
            convert(page);
        return;
    }
    const std::uint32_t group = groupOf(page);
    if (const std::uint32_t bitmap = map_.bitmapOf(group); bitmap != 0) {
        assignBit(bitmapBits(file_, bitmap), page % usageMap::pagesPerBitmap, true);
        return;
    }
    const std::uint32_t only[] = {page};
    map_.setBitmapOf(group, newBitmap(group, only));
}

void OwnedMap::moveTo(std::uint32_t page)
{
    if (!map_.isInline()) return;
    std::fill(map_.bits().begin(), map_.bits().end(), '\0');
    inThisOrder();
    add(page);
}

void OwnedMap::convert(std::uint32_t page)
{
    std::vector<std::uint32_t> pages = file_.pages().usageMap(at_);
    pages.push_back(page);
    std::vector<std::uint32_t> bitmaps(groupOf(*std::max_element(pages.begin(), pages.end())) + 1);
    for (const std::uint32_t member : pages) {
        auto& bitmap = bitmaps[groupOf(member)];
        if (bitmap == 0) bitmap = newBitmap(groupOf(member), pages);
    }
    map_.convert(bitmaps);
}

/// A bitmap page with those of the pages that are in a group, marked as used.
std::uint32_t OwnedMap::newBitmap(std::uint32_t group, std::span<const std::uint32_t> pages)
{
    const std::uint32_t bitmap = file_.take();
    char* content = file_.page(bitmap);
    beginBitmap(content, 0);
    for (const std::uint32_t page : pages) {
        if (groupOf(page) == group)
            assignBit(content + usageMap::bitmapHead, page % usageMap::pagesPerBitmap, true);
    }
    inThisOrder();
    global_.markUsed(bitmap);
    inThisOrder();
    return bitmap;
}

} // namespace jet
