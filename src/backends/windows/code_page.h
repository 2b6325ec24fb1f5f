#pragma once

#include "text/code_page.h"

/// The code page in which programs of this machine write their texts. Where it takes several bytes
/// for a character, the bytes that begin one stand for no character.
CodePage machineCodePage();

/// The same of a number, such as 1252 or 932.
CodePage codePageOfMachine(unsigned number);
