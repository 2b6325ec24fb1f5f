#include "console/row_order.h"

#include "console/list_view.h"
#include "console/sort_key.h"

#include <algorithm>

namespace {

SortKey keyOf(ListView& list, std::uint32_t position)
{
    return sortKeyOf(list.shown(static_cast<int>(position)).subItem(list.chosenOrder().column));
}

} // namespace

void arrangeRows(ListView& list, std::vector<std::uint32_t>& positions)
{
    const RowOrder order = list.chosenOrder();
    if (order.column < 1) return;

    // One key a row, made once: making them in each comparison would parse every cell many times.
    std::vector<SortKey> keys(static_cast<std::size_t>(list.itemCount()) + 1);
    for (const auto position : positions) keys[position] = keyOf(list, position);
    std::stable_sort(
        positions.begin(), positions.end(), [&](std::uint32_t left, std::uint32_t right) {
            return order.ascending ? keys[left] < keys[right] : keys[right] < keys[left];
        });
}

bool standsBefore(ListView& list, std::uint32_t left, std::uint32_t right)
{
    const RowOrder order = list.chosenOrder();
    if (order.column < 1) return left < right;
    const SortKey leftKey = keyOf(list, left);
    const SortKey rightKey = keyOf(list, right);
    if (leftKey < rightKey) return order.ascending;
    if (rightKey < leftKey) return !order.ascending;
    return left < right;
}
