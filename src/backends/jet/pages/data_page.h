#pragma once

#include "backends/jet/format.h"

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace jet {

/// A data page that rows are added to.
///
/// A row is seen by readers from the line that counts it, which is one store: a program that is
/// killed has written all of the row or none.
class DataPage {
public:
    DataPage() = default;
    explicit DataPage(char* page) : page_(page) {}

    /// Makes an empty data page of an empty one, or of a page of zeros.
    static DataPage begin(char* page, std::uint32_t owner)
    {
        page[0] = static_cast<char>(PageType::data);
        page[1] = 1;
        store32(page + dataPage::owner, owner);
        store16(page + dataPage::freeBytes, pageSize - dataPage::slots);
        return DataPage(page);
    }

    unsigned rows() const { return load16(page_ + dataPage::rowCount); }

    bool hasRoom(std::size_t rowBytes) const
    {
        return rows() < dataPage::mostRows && rowBytes + 2 <= room();
    }

    /// Where a row of a size is to be written, before `publish` makes it one of the page.
    char* place(std::size_t rowBytes) const { return page_ + lowest() - rowBytes; }

    /// Counts the row that was written at its place. Returns its number.
    std::uint8_t publish(std::size_t rowBytes)
    {
        const unsigned row = rows();
        const std::size_t start = lowest() - rowBytes;
        const std::size_t slot = dataPage::slots + 2 * std::size_t{row};
        store16(page_ + slot, start);
        store16(page_ + dataPage::freeBytes, start - slot - 2);
        inThisOrder();
        store16(page_ + dataPage::rowCount, row + 1);
        return static_cast<std::uint8_t>(row);
    }

    std::uint8_t add(std::string_view row)
    {
        std::memcpy(place(row.size()), row.data(), row.size());
        return publish(row.size());
    }

private:
    /// The start of the lowest row: rows grow downward.
    std::size_t lowest() const
    {
        const unsigned row = rows();
        if (row == 0) return pageSize;
        return load16(page_ + dataPage::slots + 2 * std::size_t{row - 1}) & dataPage::offsetMask;
    }

    std::size_t room() const { return lowest() - dataPage::slots - 2 * std::size_t{rows()}; }

    char* page_ = nullptr;
};

} // namespace jet
