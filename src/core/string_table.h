#pragma once

#include "core/text_id.h"

#include <string_view>

/// The ids of the tool's interface texts, first to last; each id between them has a text.
constexpr int firstTextId = 1000;
constexpr int lastTextId = 1149;

/// The tool's own English text of an id, in UTF-8; empty for an id outside the table.
///
/// Serves wherever the chosen language has no library or no text for the id.
std::string_view englishText(TextId id);
