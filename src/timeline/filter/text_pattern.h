#pragma once

#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

class CodePage;

namespace timeline {

enum class Letters { asWritten, inAnyCase };

/// A pattern made ready for texts of one encoding.
class PatternSearch {
public:
    virtual ~PatternSearch() = default;

    /// Whether the pattern occurs in a line.
    virtual bool occursIn(std::string_view line) const = 0;

    /// A place among many lines before whose line none has the pattern; `npos` where none has it at
    /// all.
    virtual std::size_t firstPlaceIn(std::string_view lines) const = 0;

    struct Found {
        std::size_t begin = 0;
        std::size_t length = 0; ///< in bytes; 0 for an expression that wants none here
    };

    /// The first place in a part of a line that has the pattern, which does not reach past the
    /// part. What stands around the part tells where words and the line itself begin and end.
    /// Nothing where the part lacks it; `from` is no more than `end`, and that no more than the
    /// line.
    virtual std::optional<Found> findIn(std::string_view line, std::size_t from,
                                        std::size_t end) const = 0;
};

/// What a line is searched for: a text, or a regular expression of RE2, which takes time in
/// proportion to the text and no more.
class TextPattern {
public:
    enum class Kind { text, expression };

    /// `pattern` is UTF-8. Raises 5, with a sentence that says what is wrong, for an expression
    /// that is none.
    TextPattern(Kind kind, std::string pattern, Letters letters = Letters::asWritten);

    /// What is wrong with an expression, in a few words of the library that searches; the empty
    /// text for a sound one.
    static std::string faultOf(const std::string& expression);

    /// The search in texts of a code page, or of UTF-8 where that is null. A character that the
    /// code page lacks occurs nowhere in them.
    std::unique_ptr<PatternSearch> searchIn(const CodePage* codePage) const;

private:
    Kind kind_;
    bool isText_; ///< also of an expression that stands for itself
    std::string pattern_;
    Letters letters_;
};

} // namespace timeline
