#include "timeline/filter/text_pattern.h"

#include "runtime/run_time_error.h"
#include "text/code_page.h"
#include "text/utf8.h"
#include "timeline/filter/literal_search.h"
#include "timeline/filter/required_texts.h"
#include "timeline/lines/byte_words.h"

#include <re2/re2.h>

#include <algorithm>
#include <vector>

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

/// Whether an expression stands for itself.
bool isPlain(std::string_view expression)
{
    return expression.find_first_of("\\^$.|?*+()[]{}\n") == std::string_view::npos;
}

bool isAsciiPattern(std::string_view text)
{
    return std::all_of(text.begin(), text.end(), [](char byte) { return byte >= 0; });
}

class PlainSearch final : public PatternSearch {
public:
    PlainSearch(std::string text, bool inAnyCase)
        : length_(text.size()), text_(std::move(text), inAnyCase)
    {}

    bool occursIn(std::string_view line) const override
    {
        return text_.find(line) != std::string_view::npos;
    }

    std::size_t firstPlaceIn(std::string_view lines) const override { return text_.find(lines); }

    std::optional<Found> findIn(std::string_view line, std::size_t from,
                                std::size_t end) const override
    {
        const std::size_t begin = text_.find(line.substr(0, end), from);
        if (begin == std::string_view::npos) return std::nullopt;
        return Found{begin, length_};
    }

private:
    std::size_t length_;
    LiteralSearch text_;
};

/// Places of several texts, which are asked for from one place on and then from later ones.
class TextPlaces {
public:
    TextPlaces(const std::vector<LiteralSearch>& texts, std::string_view bytes)
        : texts_(texts), bytes_(bytes)
    {
        for (const LiteralSearch& text : texts_) next_.push_back(text.find(bytes_));
    }

    /// The first place of any of the texts at or behind another one; `npos` for none.
    std::size_t from(std::size_t place)
    {
        for (std::size_t at = 0; at < texts_.size(); ++at)
            if (next_[at] < place) next_[at] = texts_[at].find(bytes_, place);
        return *std::min_element(next_.begin(), next_.end());
    }

private:
    const std::vector<LiteralSearch>& texts_;
    std::string_view bytes_;
    std::vector<std::size_t> next_;
};

class ExpressionSearch final : public PatternSearch {
public:
    ExpressionSearch(const std::string& expression, const RE2::Options& options)
        : line_(expression, options), lines_("(?m)" + expression, options),
          asksForEnds_(asksForEnds(expression))
    {
        // Letters of other encodings may be the same as some of ASCII in another case.
        if (options.encoding() != RE2::Options::EncodingLatin1) return;
        for (std::string& text : requiredTexts(expression, options))
            required_.emplace_back(std::move(text), true);
    }

    bool occursIn(std::string_view line) const override
    {
        return line_.Match(piece(line), 0, line.size(), RE2::UNANCHORED, nullptr, 0);
    }

    std::size_t firstPlaceIn(std::string_view lines) const override
    {
        if (!required_.empty()) return firstPlaceByTexts(lines);
        if (asksForEnds_) return 0;
        re2::StringPiece found;
        const bool any = lines_.Match(piece(lines), 0, lines.size(), RE2::UNANCHORED, &found, 1);
        return any ? static_cast<std::size_t>(found.data() - lines.data()) : std::string_view::npos;
    }

    std::optional<Found> findIn(std::string_view line, std::size_t from,
                                std::size_t end) const override
    {
        re2::StringPiece found;
        if (!line_.Match(piece(line), from, end, RE2::UNANCHORED, &found, 1)) return std::nullopt;
        return Found{static_cast<std::size_t>(found.data() - line.data()), found.size()};
    }

private:
    /// Looks only at lines that have a text which the expression can't do without.
    std::size_t firstPlaceByTexts(std::string_view lines) const
    {
        TextPlaces places(required_, lines);
        for (std::size_t at = 0;;) {
            const std::size_t place = places.from(at);
            if (place == std::string_view::npos) return place;
            const char* const found = lines.data() + place;
            const char* const begin = bytes::behindLast(lines.data() + at, found, '\n');
            const std::size_t end = std::min(lines.find('\n', place), lines.size());
            std::string_view line(begin, static_cast<std::size_t>(lines.data() + end - begin));
            if (line.ends_with('\r')) line.remove_suffix(1);
            if (occursIn(line)) return place;
            at = end;
        }
    }

    RE2 line_;
    RE2 lines_;
    bool asksForEnds_;
    std::vector<LiteralSearch> required_;
};

} // namespace

TextPattern::TextPattern(Kind kind, std::string pattern, Letters letters)
    : kind_(kind), isText_(kind == Kind::text || isPlain(pattern)), pattern_(std::move(pattern)),
      letters_(letters)
{
    if (kind_ == Kind::text) return;
    const std::string fault = faultOf(pattern_);
    if (!fault.empty())
        throw RunTimeError(runTimeErrors::invalidCall,
                           "\"" + pattern_ + "\" is no regular expression: " + fault);
}

std::string TextPattern::faultOf(const std::string& expression)
{
    const RE2 tried(expression, optionsFor(RE2::Options::EncodingUTF8, Letters::asWritten));
    return tried.ok() ? std::string() : tried.error();
}

std::unique_ptr<PatternSearch> TextPattern::searchIn(const CodePage* codePage) const
{
    std::string pattern = codePage == nullptr ? pattern_ : bytesIn(*codePage, pattern_);
    const bool inAnyCase = letters_ == Letters::inAnyCase;
    // Which letters are the same in any case ASCII alone tells as RE2 does, and that in a code page
    // alone: UTF-8 has others that are the same as some of those.
    if (isText_ && (!inAnyCase || (codePage != nullptr && isAsciiPattern(pattern))))
        return std::make_unique<PlainSearch>(std::move(pattern), inAnyCase);
    if (kind_ == Kind::text) pattern = RE2::QuoteMeta(pattern);
    const auto encoding =
        codePage == nullptr ? RE2::Options::EncodingUTF8 : RE2::Options::EncodingLatin1;
    return std::make_unique<ExpressionSearch>(pattern, optionsFor(encoding, letters_));
}

} // namespace timeline
