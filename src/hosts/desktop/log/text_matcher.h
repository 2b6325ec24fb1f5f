#pragma once

#include "text/code_page.h"

#include <array>
#include <string>
#include <string_view>

namespace desktop {

/// Finds a text in the bytes of a log without decoding them; letters match in either case.
class TextMatcher {
public:
    /// Matches nothing.
    TextMatcher() = default;

    /// An empty `text` matches nothing.
    TextMatcher(const CodePage& codePage, std::u16string_view text);

    bool empty() const { return text_.empty(); }

    bool in(std::string_view bytes) const;

private:
    std::array<char16_t, 256> folded_{}; ///< the character of each byte, in lower case
    std::u16string text_;
};

} // namespace desktop
