#pragma once

#include <string>

/// Whether a file is a library with all of the bytes that its head tells of. The system takes one
/// that is cut off as well, and whoever asks for what lies behind the cut ends with a fault.
bool isWholeLibrary(const std::wstring& path);
