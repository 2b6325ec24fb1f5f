#include "backends/windows/code_page.h"

#include <windows.h>

CodePage codePageOfMachine(unsigned number)
{
    constexpr char16_t noCharacter = 0xFFFD;
    constexpr int firstControl = 0x80;
    constexpr int lastControl = 0x9F;
    CodePage::Table table{};
    for (int byte = 0; byte < static_cast<int>(table.size()); ++byte) {
        const char encoded = static_cast<char>(byte);
        wchar_t character = 0;
        const bool has =
            !::IsDBCSLeadByteEx(number, static_cast<BYTE>(byte)) &&
            ::MultiByteToWideChar(number, MB_ERR_INVALID_CHARS, &encoded, 1, &character, 1) == 1;
        const bool isControl = byte >= firstControl && byte <= lastControl;
        auto& entry = table[static_cast<std::size_t>(byte)];
        if (has)
            entry = static_cast<char16_t>(character);
        else
            entry = isControl ? static_cast<char16_t>(byte) : noCharacter;
    }
    return CodePage(table);
}

CodePage machineCodePage()
{
    return codePageOfMachine(::GetACP());
}
