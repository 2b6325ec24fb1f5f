#pragma once

#include <string>
#include <string_view>
#include <windows.h>

namespace stand_in {

/// UTF-16 to UTF-8; the empty text for none.
inline std::string narrow(std::wstring_view text)
{
    const auto length = static_cast<int>(text.size());
    const int needed =
        WideCharToMultiByte(CP_UTF8, 0, text.data(), length, nullptr, 0, nullptr, nullptr);
    std::string made(static_cast<std::size_t>(needed), '\0');
    WideCharToMultiByte(CP_UTF8, 0, text.data(), length, made.data(), needed, nullptr, nullptr);
    return made;
}
inline std::string narrow(const wchar_t* text)
{
    return text ? narrow(std::wstring_view(text)) : std::string();
}

inline std::wstring widen(std::string_view text)
{
    const auto length = static_cast<int>(text.size());
    const int needed = MultiByteToWideChar(CP_UTF8, 0, text.data(), length, nullptr, 0);
    std::wstring made(static_cast<std::size_t>(needed), L'\0');
    MultiByteToWideChar(CP_UTF8, 0, text.data(), length, made.data(), needed);
    return made;
}

} // namespace stand_in
