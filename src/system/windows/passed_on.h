#pragma once

#include <vector>
#include <windows.h>

/// Lets the programs that are started from now on have a handle, until it is closed.
void passOn(HANDLE handle);

/// Whether a handle is one of those.
bool isPassedOn(HANDLE handle);

/// Those that are still open.
std::vector<HANDLE> passedOn();
