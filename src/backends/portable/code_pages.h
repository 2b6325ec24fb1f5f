#pragma once

#include "platform/code_page.h"

/// The single-byte code page of a number, such as 1252 or 437; Windows-1252 for a number that the
/// machine does not know as a single-byte one.
CodePage codePageOf(int number);
