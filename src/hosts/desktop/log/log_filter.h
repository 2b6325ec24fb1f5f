#pragma once

#include "hosts/desktop/log/log_columns.h"
#include "hosts/desktop/log/text_matcher.h"
#include "timeline/filter/filter.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

class ListView;

namespace desktop {

/// What to show, or to hide, by the values of one column.
struct ColumnCondition {
    int column = 0;                  ///< from 1
    std::vector<std::string> values; ///< bytes as the list holds them; none lets every row pass
    bool exclude = false;            ///< hide rows with one of the values, instead of showing them
};

/// A text that rows have in any column but the number, or in the note, or that they have not. An
/// empty one lets every row pass.
struct TextRule {
    TextMatcher text;
    bool exclude = false;
};

/// Which rows of a log are on show: each condition must hold, and the texts too.
struct LogFilter {
    std::vector<ColumnCondition> columns;
    std::vector<TextRule> furtherTexts;

    /// The components and levels of a macro trace: rows of others are hidden.
    std::optional<std::vector<timeline::ComponentLevels>> macroTrace;
    TextMatcher text; ///< in any column but the number, or in the note; an empty one lets every row
                      ///< pass
    bool excludeText = false;

    /// Whether every row passes.
    bool passesAll() const;

    /// The positions, from 1, of the rows that pass, in the list's order on the screen.
    std::vector<std::uint32_t> positions(ListView& list) const;
};

/// Whether `matcher` is found in a row at a position, in any column but the first or in the row's
/// note.
bool rowHolds(ListView& list, std::uint32_t position, const TextMatcher& matcher);

/// A value of a column and the number of rows that have it.
struct ColumnValue {
    std::string text;
    int rows = 0;
};

/// The values of a column, those of most rows first.
std::vector<ColumnValue> valuesOf(ListView& list, int column);

} // namespace desktop
