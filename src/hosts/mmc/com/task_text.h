#pragma once

#include <string>
#include <windows.h>

namespace mmc {

/// A copy of a text that whoever is handed it frees with `CoTaskMemFree`. Throws `std::bad_alloc`.
wchar_t* taskText(const std::wstring& text);

/// The same of a text in UTF-8.
wchar_t* taskText(const std::string& text);

} // namespace mmc
