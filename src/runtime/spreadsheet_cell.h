#pragma once

#include <string>
#include <string_view>

/// A cell of comma-separated text that no spreadsheet takes for a formula: an apostrophe stands
/// before what begins one. A part of the cell counts as its own where a spreadsheet that separates
/// by semicolons, tabs or lines would begin a cell with it. A number stays a number.
std::string withoutFormulas(std::string_view cell);
