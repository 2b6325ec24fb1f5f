#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace timeline {

/// Searches long stretches of bytes for a text, many bytes at a time.
class LiteralSearch {
public:
    /// `inAnyCase` is meant of the letters of ASCII alone.
    explicit LiteralSearch(std::string text, bool inAnyCase = false);

    /// The first place of the text at or behind `from`; `npos` for none.
    std::size_t find(std::string_view bytes, std::size_t from = 0) const;

private:
    /// A byte of the text, which is looked at before all others.
    struct Probe {
        std::size_t at = 0;
        char byte = 0;
        char ignored = 0; ///< the bits of a byte that may differ
    };
    Probe probeAt(std::size_t at) const;
    void chooseProbes();
    bool isAt(const char* bytes) const;
    const char* findIn(const char* from, const char* end) const;
    const char* findShort(const char* from, const char* end) const;

    std::string text_; ///< with small letters when it is sought in any case
    bool inAnyCase_;
    Probe first_; ///< the one that stands in front of the other, or both are the same
    Probe second_;
};

} // namespace timeline
