#include "backends/windows/test_resources.h"

#include <gtest/gtest.h>

#include <windows.h>

void makeResourceLibrary(const std::wstring& model, const std::wstring& path, int id,
                         const std::wstring& text)
{
    ASSERT_TRUE(::CopyFileW(model.c_str(), path.c_str(), FALSE));
    // A block holds sixteen texts, each behind its length.
    constexpr int textsInABlock = 16;
    std::wstring block;
    for (int index = 0; index < textsInABlock; ++index) {
        const bool wanted = index == id % textsInABlock;
        block += wanted ? static_cast<wchar_t>(text.size()) : L'\0';
        if (wanted) block += text;
    }
    const HANDLE update = ::BeginUpdateResourceW(path.c_str(), TRUE);
    ASSERT_NE(nullptr, update);
    ASSERT_TRUE(::UpdateResourceW(update, RT_STRING, MAKEINTRESOURCEW(id / textsInABlock + 1),
                                  MAKELANGID(LANG_NEUTRAL, SUBLANG_NEUTRAL), block.data(),
                                  static_cast<DWORD>(block.size() * sizeof(wchar_t))));
    ASSERT_TRUE(::EndUpdateResourceW(update, FALSE));
}
