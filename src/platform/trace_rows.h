#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

class StoredBytes;

/// A table of a trace database, as it is read.
struct TraceTable {
    std::string name;
    std::vector<std::string> columns; ///< in the table's order
    std::uint64_t rowCount = 0;       ///< as the database tells it; it may be wrong

    /// The place among the columns of a name, without regard to case; `noColumn` for none.
    std::size_t find(std::string_view column) const;

    static constexpr std::size_t noColumn = static_cast<std::size_t>(-1);
};

/// The rows of a table, one after the other, in the order in which they were added.
///
/// A damaged page or row raises once, and reading goes on behind it.
class TraceRows {
public:
    virtual ~TraceRows() = default;

    /// Moves to the next row, at first to the first. False when there are no more. Raises 3343 for
    /// one that is damaged, which the next call passes over; 57.
    virtual bool next() = 0;

    /// Where the current row stands: at most `placeBits` bits, in no order.
    virtual std::uint64_t place() const = 0;
    static constexpr int placeBits = 48;

    /// Moves to the row of a place, behind which `next` goes on as before. False, without a current
    /// row, where none stands there. Raises 3343, 57.
    virtual bool goTo(std::uint64_t place) = 0;

    /// The current row's value in a column, from 0: a text as UTF-8, a number in decimal form, Null
    /// as the empty text. Holds until another row is the current one. Raises 3343, 57.
    virtual std::string_view text(std::size_t column) = 0;

    /// The value of a column of whole numbers; 0 for Null and for other columns. Raises 3343.
    virtual std::int64_t number(std::size_t column) = 0;

    /// How much of the table was read, out of how much, in whatever measure.
    virtual std::uint64_t done() const = 0;
    virtual std::uint64_t total() const = 0;
};

/// An open trace database, to be read.
class TraceTables {
public:
    virtual ~TraceTables() = default;

    /// Its tables, those of the system aside.
    virtual const std::vector<TraceTable>& tables() const = 0;

    /// A table by name, without regard to case; null for none.
    const TraceTable* find(std::string_view table) const;

    /// What of the database was found damaged when it was opened, in sentences; the tables that it
    /// concerns are missing.
    virtual const std::vector<std::string>& damage() const = 0;

    /// The rows of one of the tables, which live no longer than this. Raises 57.
    virtual std::unique_ptr<TraceRows> rows(const TraceTable& table) const = 0;
};

/// Opens trace databases for reading.
class TraceTableReader {
public:
    virtual ~TraceTableReader() = default;

    /// Whether a file that begins with such bytes, its first 64 or more, may be a trace database.
    virtual bool isDatabase(std::string_view head) const = 0;

    /// Opens a database of which as much is in memory as is looked at. Raises 3343 for what is
    /// none, or nothing of which can be read; 57.
    virtual std::unique_ptr<TraceTables> open(std::shared_ptr<const StoredBytes> bytes) const = 0;
};
