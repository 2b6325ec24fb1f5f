#pragma once

#include "backends/jet/table/row_view.h"
#include "backends/jet/table/table_definition.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace jet {

/// What becomes of damage besides which there is something to be read.
enum class Damage {
    raised,
    passedOver, ///< a table that can't be read is left out; pages without a sound map are searched
};

/// The rows of a table, one after the other, in the order of their pages.
///
///     for (auto rows = reader.rows(table); rows.next();) use(rows.text(0));
class Rows {
public:
    Rows(const Pages& pages, const TableDefinition& table, Damage damage = Damage::raised);
    Rows(const Rows&) = delete;
    Rows& operator=(const Rows&) = delete;

    /// Moves to the next row, at first to the first. False when there are no more. Raises 3343 for
    /// a damaged page or row, which the next call passes over.
    bool next();

    /// Where the current row stands: its page and, in the low 16 bits, its slot there.
    std::uint64_t place() const { return std::uint64_t{page_} << 16 | (nextRow_ - 1); }

    /// Moves to the row of a place, behind which `next` goes on as before. False where none stands
    /// there. Raises 3343.
    bool goTo(std::uint64_t place);

    /// How many of the table's pages were begun, and how many it has.
    std::size_t pagesBegun() const { return nextPage_; }
    std::size_t pageCount() const { return numbers_.size(); }

    /// Columns are counted from 0, in the table's order; the table says how many there are.
    bool isNull(std::size_t column) const;

    /// A value as UTF-8: texts as they are, numbers in decimal form, dates as days since 30
    /// December 1899, booleans as 0 or 1, everything else as hexadecimal digits; Null as the empty
    /// text. Raises 3343.
    std::string text(std::size_t column) const;

    /// The same as a view: of the current row where it holds the text, else of `room`. Raises 3343.
    std::string_view textView(std::size_t column, std::string& room) const;

    /// A value's bytes as they are stored in the row: of a long value, its head. Raises 3343.
    std::string_view cell(std::size_t column) const;

    /// The value of a column of whole numbers; 0 for Null and for other types. Raises 3343.
    std::int64_t number(std::size_t column) const;

private:
    bool take(const char* page, unsigned slot);

    Pages pages_;
    const TableDefinition& table_;
    std::vector<std::uint32_t> numbers_; ///< of the table's pages
    std::size_t nextPage_ = 0;
    std::uint32_t page_ = 0; ///< the page of the current row; 0 for none
    unsigned nextRow_ = 0;
    std::string bytes_; ///< of the current row, as other pages are looked at for its long texts
    RowView row_;
};

/// A Jet 4 file, for looking at what it holds.
///
/// It makes no use of indexes and follows what the file says no further than the file goes: any
/// bytes at all are either read or refused with 3343.
class Reader {
public:
    /// `image` stays alive while the reader is used. Raises 3343.
    explicit Reader(std::string_view image) : Reader(Pages(image)) {}

    /// The pages of a file that lie elsewhere, such as FilePages. Raises 3343 and what they raise.
    explicit Reader(const Pages& pages, Damage damage = Damage::raised);

    /// The tables that people made, in the order of the catalog.
    const std::vector<TableDefinition>& tables() const { return tables_; }

    /// A table by name, without regard to case; null for none.
    const TableDefinition* find(std::string_view name) const;

    /// `table` is one of this reader's. Raises 3343.
    Rows rows(const TableDefinition& table) const { return Rows(pages_, table, damage_); }

    /// What damage was passed over when the tables were looked for.
    const std::vector<std::string>& passedOver() const { return passedOver_; }

    /// What is wrong with the file beyond what reading would notice: pages that two things claim or
    /// that count as free, rows that overlap, counts that differ. Sound files give an empty list.
    std::vector<std::string> problems() const;

private:
    Pages pages_;
    Damage damage_;
    std::vector<std::string> passedOver_;
    std::vector<TableDefinition> tables_;
};

} // namespace jet
