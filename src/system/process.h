#pragma once

#include <string>
#include <string_view>

/// The number by which the system knows this program.
int ownProcess();

/// The file of this program, a path of the machine; empty where the system does not tell.
std::string ownProgramFile();

/// Whether a text is the number of a process that has ended. False for what is no such number.
bool isEndedProcess(std::string_view number);
