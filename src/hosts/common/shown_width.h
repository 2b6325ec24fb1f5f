#pragma once

#include <cstddef>
#include <string_view>

/// The columns of a terminal that a UTF-8 text takes: two for a wide character, such as a Japanese
/// one, none for a combining mark or a control character, one for a byte that is no UTF-8.
std::size_t shownWidth(std::string_view text);
