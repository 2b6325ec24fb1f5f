#pragma once

/// The capital of a letter, whatever languages the machine is set to; another character, and a
/// letter whose capital the machine does not know, is itself.
char32_t upperCaseOf(char32_t letter);
