#include "hosts/common/sentence.h"

#include "runtime/text.h"
#include "system/machine_path.h"

std::string Sentence::text() const
{
    return withInserts(pattern, inserts);
}

std::string withInserts(std::string_view pattern, const std::vector<std::string>& inserts)
{
    std::string text;
    for (std::size_t i = 0; i < pattern.size(); ++i) {
        const bool mark = pattern[i] == '%' && i + 1 < pattern.size() && pattern[i + 1] >= '1' &&
                          pattern[i + 1] <= '9';
        const std::size_t number = mark ? static_cast<std::size_t>(pattern[i + 1] - '1') : 0;
        if (mark && number < inserts.size()) {
            text += shownPathOf(inserts[number]);
            ++i;
        } else {
            text += pattern[i];
        }
    }
    return text;
}

std::string asClause(const Sentence& sentence)
{
    std::string pattern(sentence.pattern);
    if (!pattern.empty() && pattern.back() == '.') pattern.pop_back();
    if (!pattern.empty()) pattern[0] = lowerCase(pattern.substr(0, 1))[0];
    return withInserts(pattern, sentence.inserts);
}
