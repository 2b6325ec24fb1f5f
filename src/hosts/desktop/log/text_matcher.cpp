#include "hosts/desktop/log/text_matcher.h"

#include "hosts/common/filters/row_filter.h"

#include <QChar>

#include <algorithm>
#include <cstddef>

namespace desktop {

namespace {

char16_t lowerCase(char16_t character)
{
    return QChar(character).toLower().unicode();
}

} // namespace

TextMatcher::TextMatcher(const CodePage& codePage, std::u16string_view text) : text_(text)
{
    std::transform(text_.begin(), text_.end(), text_.begin(), lowerCase);
    for (std::size_t byte = 0; byte < folded_.size(); ++byte)
        folded_[byte] = lowerCase(codePage.character(static_cast<char>(byte)));
}

TextMatcher::TextMatcher(const CodePage& codePage, const TextCondition& condition)
{
    const std::u16string text = condition.text.toStdU16String();
    if (text.empty()) return;
    if (condition.expression) {
        search_ = condition.pattern()->searchIn(&codePage);
        return;
    }
    *this = TextMatcher(codePage, text);
    if (!condition.matchesCase) return;
    text_ = text;
    for (std::size_t byte = 0; byte < folded_.size(); ++byte)
        folded_[byte] = codePage.character(static_cast<char>(byte));
}

bool TextMatcher::in(std::string_view bytes) const
{
    if (search_) return search_->occursIn(bytes);
    if (text_.empty() || bytes.size() < text_.size()) return false;
    const auto equal = [&](char byte, char16_t character) {
        return folded_[static_cast<unsigned char>(byte)] == character;
    };
    const char* const last = bytes.data() + (bytes.size() - text_.size());
    for (const char* start = bytes.data(); start <= last; ++start) {
        if (!equal(*start, text_.front())) continue;
        if (std::equal(text_.begin(), text_.end(), start,
                       [&](char16_t character, char byte) { return equal(byte, character); }))
            return true;
    }
    return false;
}

} // namespace desktop
