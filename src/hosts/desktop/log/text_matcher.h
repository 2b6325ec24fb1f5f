#pragma once

#include "text/code_page.h"

#include <array>
#include <memory>
#include <string>
#include <string_view>

struct TextCondition;
namespace timeline {
class PatternSearch;
}

namespace desktop {

/// Finds a text, or a regular expression, in the bytes of a log.
class TextMatcher {
public:
    /// Matches nothing.
    TextMatcher() = default;

    /// A plain text, whose letters match in either case. An empty one matches nothing.
    TextMatcher(const CodePage& codePage, std::u16string_view text);

    /// What a person asks for, its exclusion aside. An empty text matches nothing. Raises 5, with a
    /// sentence, for an expression that is none.
    TextMatcher(const CodePage& codePage, const TextCondition& condition);

    bool empty() const { return text_.empty() && !search_; }

    bool in(std::string_view bytes) const;

private:
    std::array<char16_t, 256> folded_{}; ///< the character of each byte, in lower case where the
                                         ///< case does not matter
    std::u16string text_;
    std::shared_ptr<const timeline::PatternSearch> search_; ///< of an expression, instead
};

} // namespace desktop
