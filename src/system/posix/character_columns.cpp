#include "system/character_columns.h"

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

} // namespace

std::size_t columnsOf(std::u32string_view characters)
{
    const WithTables tables(unicodeLocale());
    std::size_t columns = 0;
    for (const char32_t character : characters)
        columns +=
            static_cast<std::size_t>(std::max(0, ::wcwidth(static_cast<wchar_t>(character))));
    return columns;
}
