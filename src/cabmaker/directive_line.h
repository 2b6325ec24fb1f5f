#pragma once

#include <string>
#include <string_view>

namespace cabmaker {

/// Takes one line of a directive file apart, from left to right. Blanks and tabs part words, `;`
/// begins a comment. The pieces are the bytes of the line.
class DirectiveLine {
public:
    explicit DirectiveLine(std::string_view line);

    /// Nothing but a comment is left.
    bool atEnd() const;

    /// The next byte; only before the end.
    char next() const { return rest_.front(); }

    /// The next word, up to a blank, a comment or one of `stops`. A word in `"` or `'` keeps all
    /// that stands between them, and a doubled one stands for itself.
    /// Raises 5 for a quote that nothing closes or that something touches.
    std::string word(std::string_view stops = {});

    /// The rest of the line as one value: in quotes, or all up to a comment or the end, without the
    /// blanks behind it. Raises 5 like `word`, and for what follows a value in quotes.
    std::string value();

    /// Takes `c` and the blanks around it if it is next.
    bool take(char c);

private:
    std::string quoted();
    void skipBlanks();

    std::string_view rest_;
};

} // namespace cabmaker
