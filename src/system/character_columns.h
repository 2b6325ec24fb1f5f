#pragma once

#include <cstddef>
#include <string_view>

/// The columns of a terminal that characters take, by what this machine knows of them: two for a
/// wide one, none for a combining mark or a control character.
std::size_t columnsOf(std::u32string_view characters);
