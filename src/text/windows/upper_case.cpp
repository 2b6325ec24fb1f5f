#include "text/upper_case.h"

#include <clocale>
#include <cwchar>

char32_t upperCaseOf(char32_t letter)
{
    // Any but the plain one knows the letters of all languages.
    static const _locale_t unicode = _create_locale(LC_CTYPE, "English_United States.1252");
    constexpr char32_t lastOfOneUnit = 0xFFFF;
    if (unicode == nullptr || letter > lastOfOneUnit) return letter;
    return _towupper_l(static_cast<wint_t>(letter), unicode);
}
