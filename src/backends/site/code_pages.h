#pragma once

#include "text/code_page.h"

#include <optional>
#include <vector>

/// The single-byte code page of a number, such as 1252, 437 or 28591; nothing for a number that
/// this machine does not know, and for a page that takes several bytes for a character or other
/// ASCII characters than ASCII has.
///
/// Each byte stands for its own character, never for one that it makes with its neighbours: a mark
/// that a letter carries follows the letter. A byte without a character gives the control character
/// of its number up to 0x9F, beyond that U+FFFD.
std::optional<CodePage> codePageOf(int number);

/// The numbers of the code pages that this machine knows among those that are in use, in their
/// order.
std::vector<int> knownCodePages();
