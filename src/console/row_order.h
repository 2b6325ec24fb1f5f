#pragma once

#include <cstdint>
#include <vector>

class ListView;

/// Puts rows of a list, given by their positions on the screen (`ListView::shown`) from the first
/// on, in the order that the person chose for it: by what the cells of a column count for. Rows
/// that count alike stay as the list has them.
void arrangeRows(ListView& list, std::vector<std::uint32_t>& positions);

/// Whether the row of one such position stands before that of another in this order.
bool standsBefore(ListView& list, std::uint32_t left, std::uint32_t right);
