#include "backends/portable/code_pages.h"

#include <string>

#include <iconv.h>

CodePage codePageOf(int number)
{
    if (number == 1252) return windows1252();
    const std::string name = "CP" + std::to_string(number);
    const iconv_t converter = iconv_open("UTF-16LE", name.c_str());
    if (converter == reinterpret_cast<iconv_t>(-1)) return windows1252();
    CodePage::Table table{};
    for (int byte = 0; byte < 256; ++byte) {
        char in = static_cast<char>(byte);
        unsigned char out[4] = {0xFD, 0xFF, 0, 0};
        char* from = &in;
        char* to = reinterpret_cast<char*>(out);
        std::size_t left = 1;
        std::size_t room = sizeof out;
        iconv(converter, nullptr, nullptr, nullptr, nullptr);
        if (iconv(converter, &from, &left, &to, &room) == static_cast<std::size_t>(-1)) {
            table[static_cast<std::size_t>(byte)] = static_cast<char16_t>(byte);
            continue;
        }
        table[static_cast<std::size_t>(byte)] = static_cast<char16_t>(out[0] | out[1] << 8);
    }
    iconv_close(converter);
    return CodePage(table);
}
