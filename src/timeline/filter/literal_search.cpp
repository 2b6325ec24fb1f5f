#include "timeline/filter/literal_search.h"

#include "timeline/lines/byte_blocks.h"

#include <algorithm>
#include <bit>
#include <cstring>
#include <utility>

namespace timeline {

namespace {

bool isAsciiLetter(char byte)
{
    const auto lower = static_cast<char>(byte | bytes::caseBit);
    return lower >= 'a' && lower <= 'z';
}

char smallLetter(char byte)
{
    return isAsciiLetter(byte) ? static_cast<char>(byte | bytes::caseBit) : byte;
}

/// How seldom a byte is in logs, by what is usual there: texts in English, numbers, separators.
std::size_t rarity(char byte)
{
    constexpr std::string_view fromCommon = " e0t1a,o2in:r3s45-l67d8c9umpghFCDAfyEBb.";
    return std::min(fromCommon.find(byte), fromCommon.size());
}

} // namespace

LiteralSearch::LiteralSearch(std::string text, bool inAnyCase)
    : text_(std::move(text)), inAnyCase_(inAnyCase)
{
    if (inAnyCase_) std::transform(text_.begin(), text_.end(), text_.begin(), smallLetter);
    if (!text_.empty()) chooseProbes();
}

LiteralSearch::Probe LiteralSearch::probeAt(std::size_t at) const
{
    const bool bothCases = inAnyCase_ && isAsciiLetter(text_[at]);
    return {at, text_[at], bothCases ? bytes::caseBit : '\0'};
}

/// Two bytes that seldom stand where they should by chance: the rarest two.
void LiteralSearch::chooseProbes()
{
    std::size_t rarest = 0;
    for (std::size_t at = 1; at < text_.size(); ++at)
        if (rarity(text_[at]) > rarity(text_[rarest])) rarest = at;
    std::size_t next = rarest == 0 ? text_.size() - 1 : 0;
    for (std::size_t at = 0; at < text_.size(); ++at)
        if (at != rarest && rarity(text_[at]) > rarity(text_[next])) next = at;
    first_ = probeAt(std::min(rarest, next));
    second_ = probeAt(std::max(rarest, next));
}

bool LiteralSearch::isAt(const char* bytes) const
{
    if (!inAnyCase_) return std::memcmp(bytes, text_.data(), text_.size()) == 0;
    return std::equal(text_.begin(), text_.end(), bytes,
                      [](char mine, char other) { return mine == smallLetter(other); });
}

/// The first place of the text between two, of which there is room for it; null for none.
const char* LiteralSearch::findIn(const char* from, const char* end) const
{
    const std::size_t reach = bytes::blockSize + second_.at;
    const char* const last = end - text_.size();
    if (static_cast<std::size_t>(end - from) < reach) return findShort(from, end);
    for (const char* block = from;;) {
        std::uint64_t places = bytes::placesOf(block + first_.at, first_.byte, first_.ignored) &
                               bytes::placesOf(block + second_.at, second_.byte, second_.ignored);
        for (; places != 0; places &= places - 1) {
            const char* const place = block + std::countr_zero(places);
            if (place > last) return nullptr;
            if (isAt(place)) return place;
        }
        block += bytes::blockSize;
        if (block > last) return nullptr;
        // The last block ends with the bytes, so that some of them are looked at twice.
        block = std::min(block, end - reach);
    }
}

const char* LiteralSearch::findShort(const char* from, const char* end) const
{
    for (const char* const last = end - text_.size(); from <= last; ++from)
        if (static_cast<char>(from[first_.at] | first_.ignored) == first_.byte && isAt(from))
            return from;
    return nullptr;
}

std::size_t LiteralSearch::find(std::string_view bytes, std::size_t from) const
{
    if (from > bytes.size() || bytes.size() - from < text_.size()) return std::string_view::npos;
    if (text_.empty()) return from;
    const char* const place = findIn(bytes.data() + from, bytes.data() + bytes.size());
    return place == nullptr ? std::string_view::npos
                            : static_cast<std::size_t>(place - bytes.data());
}

} // namespace timeline
