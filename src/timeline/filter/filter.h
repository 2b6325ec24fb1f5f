#pragma once

#include "timeline/filter/text_pattern.h"
#include "timeline/index/index_row.h"
#include "timeline/record.h"

#include <cstdint>
#include <limits>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace timeline {

/// The columns that rows are chosen and counted by.
enum class Column { process, source, component, level, thread, port, callId, traceNumber };

/// The name of a column in options and in JSON: "process", "traceNumber", ...
std::string_view nameOf(Column column);

/// The column of a name, in whatever case; `call` is short for callId, `number` for traceNumber.
std::optional<Column> columnOf(std::string_view name);

/// The text of a record in a column, numbers in decimal form, in UTF-8.
std::string valueOf(const Record& record, Column column);

/// A choice by the values of one column. Values are UTF-8 and match in any case of their ASCII
/// letters; those of numbers may be ranges such as "0-3".
struct ColumnChoice {
    Column column = Column::component;
    std::vector<std::string> values;
    bool excluded = false; ///< rows that have one of the values are left out, instead of chosen
};

/// A component's levels, as a macro trace turns them on.
struct ComponentLevels {
    std::string component;
    std::vector<std::int16_t> levels;
};

/// What a person wants to see. Each part that is given has to hold.
struct Choice {
    std::optional<Moment> since; ///< rows at this moment or later
    std::optional<Moment> until; ///< rows up to this moment, which is one of them
    std::vector<ColumnChoice> columns;
    std::vector<std::shared_ptr<const TextPattern>> patterns; ///< each occurs in the row
    std::vector<std::shared_ptr<const TextPattern>> without;  ///< none occurs in the row
    std::optional<std::vector<ComponentLevels>> macroTrace;   ///< the row is one that this traces
};

/// A choice made ready to be asked of millions of rows.
///
/// A row with the lines that belong to it is let through as one: by the fields of its first line,
/// and by patterns that occur in any of its lines. Lines before the first row with a form are a row
/// of their own without fields.
class Filter {
public:
    /// Lets everything through.
    Filter();
    /// Raises 5 for a range or a number that is none.
    explicit Filter(Choice choice);

    bool letsAllThrough() const { return everything_; }
    /// Whether fields other than the moment are asked for.
    bool asksForFields() const { return !wanted_->empty() || choice_.macroTrace.has_value(); }
    bool hasPatterns() const { return !choice_.patterns.empty() || !choice_.without.empty(); }

    const Choice& choice() const { return choice_; }

    bool takesMoment(Moment moment) const { return moment >= since_ && moment <= until_; }

    /// Whether moment and fields fit, patterns aside.
    bool takesFields(const Record& record) const;

    /// Looks at the lines of one row for its patterns, one line after the other.
    class Search;

private:
    struct Wanted;

    Choice choice_;
    std::shared_ptr<const std::vector<Wanted>> wanted_;
    Moment since_ = noMoment;
    Moment until_ = std::numeric_limits<Moment>::max();
    bool everything_ = true;
};

class Filter::Search {
public:
    /// For lines of a code page or, where that is null, of UTF-8.
    Search(const Filter& filter, const CodePage* codePage);

    /// Begins a row.
    void begin();

    /// Looks at a line of it.
    void look(std::string_view line);

    /// Whether the lines so far have all patterns that they should, and none that they should not.
    bool fits() const { return missing_ == 0 && !spoilt_; }

    /// A place among many lines: rows that end before its line do not fit. `npos` where none fits
    /// that ends among them.
    std::size_t firstPlaceIn(std::string_view lines) const;

private:
    std::vector<std::unique_ptr<PatternSearch>> wanted_;
    std::vector<std::unique_ptr<PatternSearch>> unwanted_;
    std::vector<bool> found_;
    std::size_t missing_ = 0;
    bool spoilt_ = false;
};

} // namespace timeline
