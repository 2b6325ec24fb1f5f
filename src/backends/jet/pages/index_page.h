#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace jet {

struct RowPointer;

/// The keys of an index's entries, made part by part: columns, then the row they lead to.
std::string indexKey(std::uint32_t number);

/// A text of letters, digits, blanks and `_`. Raises 5 for any other character.
std::string indexKey(std::string_view text);
std::string indexKey(RowPointer row);

/// Writes an index of one page onto a page of zeros, its entries in any order.
/// Raises 5 when they don't fit.
void writeIndexLeaf(char* page, std::uint32_t table, std::vector<std::string> entries);

} // namespace jet
