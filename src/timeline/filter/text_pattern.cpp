#include "timeline/filter/text_pattern.h"

#include "runtime/run_time_error.h"
#include "text/code_page.h"
#include "text/utf8.h"

#include <re2/re2.h>

#include <algorithm>

namespace timeline {

namespace {

re2::StringPiece piece(std::string_view text)
{
    return {text.data(), text.size()};
}

RE2::Options optionsFor(RE2::Options::Encoding encoding, Letters letters)
{
    RE2::Options options;
    options.set_encoding(encoding);
    options.set_case_sensitive(letters == Letters::asWritten);
    options.set_log_errors(false);
    options.set_never_nl(true);
    return options;
}

/// A pattern in the bytes of a code page. What that lacks becomes a zero, which no line of a log
/// has.
std::string bytesIn(const CodePage& codePage, std::string_view pattern)
{
    std::string bytes;
    while (!pattern.empty()) {
        const std::size_t length = std::max<std::size_t>(utf8CharacterLength(pattern), 1);
        const std::string byte = codePage.bytesOf(pattern.substr(0, length));
        bytes += byte == "?" && pattern.front() != '?' ? std::string(1, '\0') : byte;
        pattern.remove_prefix(length);
    }
    return bytes;
}

/// Whether an expression asks where a line begins or ends in a way that many lines at once answer
/// otherwise: behind the end of each may stand a carriage return, which is none of it, and flags
/// may make one line of them.
bool asksForEnds(std::string_view expression)
{
    for (const std::string_view end : {"$", "\\z", "\\A"})
        if (expression.find(end) != std::string_view::npos) return true;
    for (std::size_t at = expression.find("(?"); at != std::string_view::npos;
         at = expression.find("(?", at + 1))
        if (const auto next = expression.substr(at + 2, 1); next != ":" && next != "P") return true;
    return false;
}

class PlainSearch final : public PatternSearch {
public:
    explicit PlainSearch(std::string text) : text_(std::move(text)) {}

    bool occursIn(std::string_view line) const override
    {
        return line.find(text_) != std::string_view::npos;
    }

    std::size_t firstPlaceIn(std::string_view lines) const override { return lines.find(text_); }

private:
    std::string text_;
};

class ExpressionSearch final : public PatternSearch {
public:
    ExpressionSearch(const std::string& expression, const RE2::Options& options)
        : line_(expression, options), lines_("(?m)" + expression, options),
          asksForEnds_(asksForEnds(expression))
    {}

    bool occursIn(std::string_view line) const override
    {
        return line_.Match(piece(line), 0, line.size(), RE2::UNANCHORED, nullptr, 0);
    }

    std::size_t firstPlaceIn(std::string_view lines) const override
    {
        if (asksForEnds_) return 0;
        re2::StringPiece found;
        const bool any = lines_.Match(piece(lines), 0, lines.size(), RE2::UNANCHORED, &found, 1);
        return any ? static_cast<std::size_t>(found.data() - lines.data()) : std::string_view::npos;
    }

private:
    RE2 line_;
    RE2 lines_;
    bool asksForEnds_;
};

} // namespace

TextPattern::TextPattern(Kind kind, std::string pattern, Letters letters)
    : kind_(kind), pattern_(std::move(pattern)), letters_(letters)
{
    if (kind_ == Kind::text) return;
    const RE2 tried(pattern_, optionsFor(RE2::Options::EncodingUTF8, letters_));
    if (!tried.ok())
        throw RunTimeError(runTimeErrors::invalidCall,
                           "\"" + pattern_ + "\" is no regular expression: " + tried.error());
}

std::unique_ptr<PatternSearch> TextPattern::searchIn(const CodePage* codePage) const
{
    std::string pattern = codePage == nullptr ? pattern_ : bytesIn(*codePage, pattern_);
    if (kind_ == Kind::text && letters_ == Letters::asWritten)
        return std::make_unique<PlainSearch>(std::move(pattern));
    if (kind_ == Kind::text) pattern = RE2::QuoteMeta(pattern);
    const auto encoding =
        codePage == nullptr ? RE2::Options::EncodingUTF8 : RE2::Options::EncodingLatin1;
    return std::make_unique<ExpressionSearch>(pattern, optionsFor(encoding, letters_));
}

} // namespace timeline
