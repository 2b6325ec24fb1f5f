#pragma once

#include <nlohmann/json.hpp>

#include <cstdio>
#include <string>
#include <string_view>
#include <vector>

namespace cli {

/// JSON with its keys in the order in which they were set.
using Json = nlohmann::ordered_json;

/// Adds a UTF-8 text as JSON writes it, in its quotes; a byte that is no UTF-8 becomes U+FFFD.
/// Cheap for plain ASCII: a log has a hundred thousand texts and more.
void appendJsonText(std::string& json, std::string_view text);

/// Where results go: standard output, as text or as JSON. What would act on a terminal instead of
/// being seen is written out (`visibleText`); into a pipe too, behind which a terminal may be.
class Output {
public:
    explicit Output(bool json) : json_(json) {}

    bool json() const { return json_; }

    /// One JSON value and a line end.
    void value(const Json& json);

    /// Lines, without a line end of its own. A name in them may hold anything but a line feed.
    void text(std::string_view text);

    /// One line; the text may hold anything.
    void line(std::string_view text);

    /// Bytes as they are: for what is no text of a person's, and goes to no terminal.
    void bytes(std::string_view bytes);

    /// Whether nobody takes any more, so that what follows need not be made.
    bool failed() const { return failure_ != 0; }

    /// A line for the person on standard error, beside the results.
    void message(const std::string& text);

    /// Hands everything to the system. Raises CommandFailure when standard output can't take it.
    void finish();

private:
    bool json_;
    int failure_ = 0;     ///< the system's number of the first one
    std::string visible_; ///< of the latest text; its room is used again
};

/// Columns of text, padded to the width of their widest cell. A cell may hold anything.
class Table {
public:
    explicit Table(std::vector<std::string> headers);

    void row(std::vector<std::string> cells);

    /// Columns whose cells stand at the right.
    void alignRight(std::size_t column);

    /// With a line of headers when there is a row at all.
    std::string text() const;

private:
    std::vector<std::vector<std::string>> rows_;
    std::vector<bool> right_;
};

/// "1,234,567": a size for people.
std::string groupedNumber(long long number);

} // namespace cli
