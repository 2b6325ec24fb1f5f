#pragma once

#include <string_view>

namespace cli {

/// A line for the person on standard error, beside the results; the text may hold anything.
void printMessage(std::string_view text);

} // namespace cli
