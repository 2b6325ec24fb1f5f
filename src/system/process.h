#pragma once

#include <string_view>

/// The number by which the system knows this program.
int ownProcess();

/// Whether a text is the number of a process that has ended. False for what is no such number.
bool isEndedProcess(std::string_view number);
