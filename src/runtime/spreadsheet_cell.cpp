#include "runtime/spreadsheet_cell.h"

#include "runtime/text.h"

#include <algorithm>

namespace {

/// The last four as they are typed beside full-width letters.
constexpr std::string_view formulaSigns[] = {
    "=", "+", "-", "@", "\uFF1D", "\uFF0B", "\uFF0D", "\uFF20",
};

bool beginsFormula(std::string_view text)
{
    return std::any_of(std::begin(formulaSigns), std::end(formulaSigns),
                       [&](std::string_view sign) { return beginsWith(text, sign); });
}

bool isNumber(std::string_view cell)
{
    if (!cell.empty() && (cell[0] == '-' || cell[0] == '+')) cell.remove_prefix(1);
    return !cell.empty() && cell.find_first_not_of("0123456789.") == std::string_view::npos;
}

} // namespace

std::string withoutFormulas(std::string_view cell)
{
    if (isNumber(cell)) return std::string(cell);
    constexpr std::string_view separators = ";\t\r\n";
    constexpr std::string_view passedOver = " \"\v\f";
    std::string safe;
    bool atStart = true;
    for (std::size_t position = 0; position < cell.size(); ++position) {
        if (atStart && beginsFormula(cell.substr(position))) safe += '\'';
        atStart = separators.find(cell[position]) != std::string_view::npos ||
                  (atStart && passedOver.find(cell[position]) != std::string_view::npos);
        safe += cell[position];
    }
    return safe;
}
