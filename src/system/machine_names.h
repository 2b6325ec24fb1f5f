#pragma once

#include <string>

/// The machine's name in its network, without the domain; empty where it has none.
std::string machineName();

/// The name of the user as whom the program runs; empty where nobody knows it.
std::string loginName();
