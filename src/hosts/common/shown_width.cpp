#include "hosts/common/shown_width.h"

#include "text/utf8.h"

#include <algorithm>

#include <clocale>
#include <cwchar>

namespace {

/// The locale whose tables know every character, whatever the person's own is.
locale_t unicodeLocale()
{
    static const locale_t made = ::newlocale(LC_CTYPE_MASK, "C.UTF-8", nullptr);
    return made;
}

/// Uses the tables of a locale in this thread while it lives; without one, those at hand.
class WithTables {
public:
    explicit WithTables(locale_t tables) : before_(::uselocale(tables)) {}
    ~WithTables() { ::uselocale(before_); }
    WithTables(const WithTables&) = delete;
    WithTables& operator=(const WithTables&) = delete;

private:
    locale_t before_;
};

wchar_t characterOf(std::string_view bytes)
{
    constexpr unsigned leadBits[] = {0, 0x7F, 0x1F, 0x0F, 0x07};
    unsigned code = static_cast<unsigned char>(bytes.front()) & leadBits[bytes.size()];
    for (const char byte : bytes.substr(1))
        code = code << 6 | (static_cast<unsigned char>(byte) & 0x3F);
    return static_cast<wchar_t>(code);
}

} // namespace

std::size_t shownWidth(std::string_view text)
{
    const bool plain =
        std::all_of(text.begin(), text.end(), [](char c) { return c >= ' ' && c <= '~'; });
    if (plain) return text.size();
    const WithTables tables(unicodeLocale());
    std::size_t width = 0;
    while (!text.empty()) {
        const std::size_t length = utf8CharacterLength(text);
        width += length == 0 ? 1
                             : static_cast<std::size_t>(
                                   std::max(0, ::wcwidth(characterOf(text.substr(0, length)))));
        text.remove_prefix(std::max<std::size_t>(length, 1));
    }
    return width;
}
