#include "backends/jet/table/long_value_writer.h"

#include <algorithm>
#include <string>
#include <vector>

namespace jet {

namespace {

/// Whether rows may be added to a page: it is what its owner takes it for, and its slots make
/// sense.
bool takesRows(const char* page, std::uint32_t owner)
{
    if (static_cast<PageType>(page[0]) != PageType::data || load32(page + dataPage::owner) != owner)
        return false;
    const std::size_t rows = load16(page + dataPage::rowCount);
    if (rows == 0 || rows > dataPage::mostRows) return false;
    const std::size_t slotsEnd = dataPage::slots + 2 * rows;
    const std::size_t lowest = load16(page + slotsEnd - 2) & dataPage::offsetMask;
    return lowest >= slotsEnd && lowest <= pageSize;
}

std::uint32_t piecesOf(std::size_t bytes)
{
    return static_cast<std::uint32_t>((bytes + longValue::pieceBytes - 1) / longValue::pieceBytes);
}

} // namespace

LongValueWriter::LongValueWriter(PageFile& file, GlobalMap& global, RowPointer owned,
                                 RowPointer free)
    : file_(file), global_(global), owned_(file, global, owned), free_(file, global, free),
      ownedRow_(owned), freeRow_(free)
{
    findRoom();
}

void LongValueWriter::findRoom()
{
    current_ = pageWithRoom(file_, ownedRow_, freeRow_, dataPage::longValueOwner);
}

std::uint32_t LongValueWriter::pagesFor(const StoredForm& form) const
{
    if (form.place == StoredForm::Place::inRow) return 0;
    if (form.place == StoredForm::Place::chain) return piecesOf(form.bytes);
    return current_ != 0 && DataPage(file_.page(current_)).hasRoom(form.bytes) ? 0 : 1;
}

RowPointer LongValueWriter::store(const TextValue& text, const StoredForm& form)
{
    return form.place == StoredForm::Place::chain ? storeChain(text, form) : storeRow(text, form);
}

RowPointer LongValueWriter::storeRow(const TextValue& text, const StoredForm& form)
{
    std::uint32_t number = current_;
    const bool fresh = pagesFor(form) > 0;
    if (fresh) {
        number = file_.take();
        DataPage::begin(file_.page(number), dataPage::longValueOwner);
    }
    DataPage page(file_.page(number));
    writeText(page.place(form.bytes), text, form.compressed);
    const std::uint8_t row = page.publish(form.bytes);
    inThisOrder();
    if (fresh) {
        own(number);
        free_.moveTo(number);
        current_ = number;
    }
    return {number, row};
}

/// A chain has pages of its own, one piece each, every piece leading to the next.
RowPointer LongValueWriter::storeChain(const TextValue& text, const StoredForm& form)
{
    std::string bytes(form.bytes, '\0');
    writeText(bytes.data(), text, form.compressed);
    std::vector<std::uint32_t> pages(piecesOf(form.bytes));
    for (auto& page : pages) page = file_.take();
    for (std::size_t piece = 0; piece < pages.size(); ++piece) {
        const std::size_t at = piece * longValue::pieceBytes;
        const std::size_t size = std::min(longValue::pieceBytes, bytes.size() - at);
        auto page = DataPage::begin(file_.page(pages[piece]), dataPage::longValueOwner);
        char* row = page.place(4 + size);
        const bool last = piece + 1 == pages.size();
        store32(row, last ? 0 : RowPointer{pages[piece + 1], 0}.stored());
        std::memcpy(row + 4, bytes.data() + at, size);
        page.publish(4 + size);
    }
    const RowPointer first = {pages.front(), 0};
    store32(file_.page(first.page) + dataPage::stamp, chainStamp(first));
    inThisOrder();
    for (const std::uint32_t page : pages) own(page);
    return first;
}

void LongValueWriter::own(std::uint32_t page)
{
    global_.markUsed(page);
    inThisOrder();
    owned_.add(page);
    inThisOrder();
}

std::uint32_t pageWithRoom(const PageFile& file, RowPointer owned, RowPointer free,
                           std::uint32_t owner)
{
    const Pages pages = file.pages();
    const auto ownedPages = pages.usageMap(owned);
    for (const std::uint32_t number : pages.usageMap(free)) {
        if (!std::binary_search(ownedPages.begin(), ownedPages.end(), number)) continue;
        if (takesRows(pages.at(number), owner)) return number;
    }
    return 0;
}

} // namespace jet
