#pragma once

#include <functional>
#include <string>
#include <windows.h>

/// Makes something of a path that it is given, open to its owner and the system alone. False, with
/// the system's latest error, where it can not.
using TemporaryMaking = std::function<bool(const std::wstring& path, SECURITY_ATTRIBUTES& own)>;

/// Makes something new where the machine has its temporary files, under a name that begins with
/// `start`, and gives its path. Another name is tried for as long as the error is `taken`. Raises
/// 76, 70, 61, 57.
std::string makeTemporary(const std::string& start, DWORD taken, const TemporaryMaking& making);
