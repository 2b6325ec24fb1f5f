#include "text/upper_case.h"

#include <clocale>
#include <cwctype>

char32_t upperCaseOf(char32_t letter)
{
    static const locale_t unicode = newlocale(LC_CTYPE_MASK, "C.UTF-8", nullptr);
    if (unicode == nullptr) return letter;
    return static_cast<char32_t>(towupper_l(static_cast<wint_t>(letter), unicode));
}
