#pragma once

#include <string>
#include <string_view>
#include <vector>

/// A whole English sentence for the person, kept as its pattern and what stands in it, so that a
/// host with a language of its own can translate the pattern.
struct Sentence {
    std::string_view pattern;         ///< a literal: "%1", "%2", "%3" stand for the inserts
    std::vector<std::string> inserts; ///< UTF-8

    /// The sentence in English.
    std::string text() const;

    bool operator==(const Sentence&) const = default;
};

/// A pattern with its inserts in their places; "%" followed by anything else stays as it is.
std::string withInserts(std::string_view pattern, const std::vector<std::string>& inserts);

/// A sentence as a part of a message: without its full stop, and with a small first letter unless
/// an insert stands there.
std::string asClause(const Sentence& sentence);
