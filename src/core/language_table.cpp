#include "core/language_table.h"

#include "runtime/text.h"

#include <algorithm>
#include <iterator>

namespace {

struct Row {
    std::string_view code;
    std::int32_t id;
};

constexpr Row rows[] = {
    {"ENU", 1033},  {"ENG", 2057}, {"ENA", 3081},  {"ENC", 4105},  {"ENZ", 5129},  {"ENI", 6153},
    {"DEU", 1031},  {"DES", 2055}, {"DEA", 3079},  {"DEL", 4103},  {"DEC", 5127},  {"ESP", 1034},
    {"ESM", 2058},  {"ESN", 3082}, {"ESG", 4106},  {"ESC", 5130},  {"ESA", 6154},  {"ESD", 7178},
    {"ESV", 8202},  {"ESO", 9226}, {"ESR", 10250}, {"ESS", 11274}, {"ESH", 18442}, {"ESI", 19466},
    {"ESU", 20490}, {"FRA", 1036}, {"FRB", 2060},  {"FRC", 3084},  {"FRS", 4108},  {"FRL", 5132},
    {"ITA", 1040},  {"ITS", 2064}, {"JPN", 1041},  {"NLD", 1043},  {"NLB", 2067},  {"NOR", 1044},
    {"NON", 2068},  {"PTB", 1046}, {"PTG", 2070},
};
static_assert(std::size(rows) == 39);

constexpr std::int32_t english = 1033;

} // namespace

std::string codeFromLanguageId(std::int32_t id)
{
    const auto* row = std::find_if(std::begin(rows), std::end(rows),
                                   [&](const Row& candidate) { return candidate.id == id; });
    return row == std::end(rows) ? "ERROR" : std::string(row->code);
}

std::int32_t languageIdFromCode(std::string_view code)
{
    const auto* row = std::find_if(std::begin(rows), std::end(rows), [&](const Row& candidate) {
        return equalIgnoringCase(candidate.code, code);
    });
    return row == std::end(rows) ? english : row->id;
}

LanguageFont fontOfLanguage(std::int32_t id)
{
    switch (id) {
    case 1028:
        return {136, "\u65B0\u7D30\u660E\u9AD4"};
    case 1041:
        return {128, "\uFF2D\uFF33 \uFF30\u30B4\u30B7\u30C3\u30AF"};
    case 1042:
        return {129, "\uAD74\uB9BC"};
    case 2052:
        return {134, "\u5B8B\u4F53"};
    default:
        return {1, ""};
    }
}
