#pragma once

#include "backends/jet/format.h"

#include <cstdint>
#include <string_view>
#include <vector>

namespace jet {

/// A file whose pages come into memory as they are looked at.
class PageSource {
public:
    virtual ~PageSource() = default;

    /// The 4096 bytes of a page of the file. They stay until some fifteen others were looked at.
    virtual const char* look(std::uint32_t page) const = 0;

    /// The same, as the file has it now, where that may be another.
    virtual const char* lookAgain(std::uint32_t page) const { return look(page); }
};

/// The pages of a file, in memory or not. Every look at one checks that it is there.
///
/// What a look gives holds until some fifteen other pages were looked at.
class Pages {
public:
    /// `image` stays alive while the pages are used; a part of a page at its end is not seen.
    explicit Pages(std::string_view image)
        : base_(image.data()), count_(static_cast<std::uint32_t>(image.size() / pageSize))
    {}

    /// The first `count` pages of a source, which stays alive.
    Pages(const PageSource& source, std::uint32_t count) : source_(&source), count_(count) {}

    std::uint32_t count() const { return count_; }

    /// The 4096 bytes of a page. Raises 3343 when the file has no such page.
    const char* at(std::uint32_t page) const;

    /// The same for a page of a type and, for data pages, an owner. Raises 3343 for another.
    const char* at(std::uint32_t page, PageType type) const;
    const char* dataOf(std::uint32_t page, std::uint32_t owner) const;

    /// The bytes of a row. Raises 3343 when the page has no such row.
    std::string_view row(RowPointer at) const;

    /// The bytes of a table's row in a slot of one of its pages. A row that outgrew its page lies
    /// on another, to which the slot leads; a slot without a row of its own gives an empty text:
    /// one that was deleted, or such a row where it lies now. Raises 3343.
    std::string_view tableRow(const char* page, unsigned slot) const;

    /// The pages in a usage map, ascending; those past the end of the file are left out.
    std::vector<std::uint32_t> usageMap(RowPointer at) const;

    /// The data pages of an owner by what they say themselves, ascending: for a damaged usage map.
    /// Every page is looked at; those that can't be read are left out.
    std::vector<std::uint32_t> pagesOfOwner(std::uint32_t owner) const;

private:
    const char* again(std::uint32_t page, const char* before) const
    {
        return source_ != nullptr ? source_->lookAgain(page) : before;
    }

    const PageSource* source_ = nullptr; ///< null for pages that lie in memory
    const char* base_ = nullptr;
    std::uint32_t count_;
};

/// How many rows a data page holds, those of a damaged page that can't be there left out.
unsigned rowsOn(const char* page);

} // namespace jet
