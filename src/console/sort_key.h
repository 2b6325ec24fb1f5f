#pragma once

#include <string_view>

/// What a cell counts for when a person sorts a column: a number, a date or a text, in this order.
struct SortKey {
    enum class Kind { number, date, text };

    Kind kind = Kind::text;
    double value = 0;           ///< of a number or a date
    std::string_view text = {}; ///< of a text; compared without regard to the case of ASCII letters
};

/// Blanks around the cell do not count.
SortKey sortKeyOf(std::string_view cell);

bool operator<(const SortKey& left, const SortKey& right);
