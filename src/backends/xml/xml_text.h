#pragma once

#include "text/code_page.h"

#include <optional>
#include <string>
#include <string_view>

/// The encoding that an XML document of ASCII kind declares; empty for none.
std::string_view declaredEncoding(std::string_view bytes);

/// The text of an XML document in UTF-8, without a byte order mark.
///
/// UTF-16 and UTF-32 show by their first bytes. What holds letters beyond ASCII and is valid UTF-8
/// is that, whatever it declares. For the rest the declared encoding holds, and `codePage` where
/// none is declared. Nothing for a declared encoding that this machine does not know, or that the
/// bytes do not fit.
std::optional<std::string> xmlText(std::string_view bytes, const CodePage& codePage);
