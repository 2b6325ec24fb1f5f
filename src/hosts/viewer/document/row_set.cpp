#include "hosts/viewer/document/row_set.h"

#include <algorithm>
#include <bit>

namespace viewer {

void RowSet::append(bool members, std::size_t rows)
{
    while (rows > 0) {
        const std::size_t bit = size_ % bits;
        if (bit == 0) {
            if (words_.size() % wordsOfBlock == 0)
                before_.push_back(static_cast<std::uint32_t>(count_));
            words_.push_back(0);
        }
        const std::size_t now = std::min(rows, bits - bit);
        if (members) {
            const std::uint64_t ones =
                now == bits ? ~std::uint64_t{0} : (std::uint64_t{1} << now) - 1;
            words_.back() |= ones << bit;
            count_ += now;
        }
        size_ += now;
        rows -= now;
    }
}

void RowSet::truncate(std::size_t size)
{
    if (size >= size_) return;
    count_ = countBefore(size);
    size_ = size;
    words_.resize((size + bits - 1) / bits);
    before_.resize((words_.size() + wordsOfBlock - 1) / wordsOfBlock);
    if (size % bits != 0) words_.back() &= (std::uint64_t{1} << (size % bits)) - 1;
}

std::size_t RowSet::countBefore(std::size_t row) const
{
    if (row >= size_) return count_;
    const std::size_t word = row / bits;
    const std::size_t block = word / wordsOfBlock;
    std::size_t count = before_[block];
    for (std::size_t at = block * wordsOfBlock; at < word; ++at)
        count += static_cast<std::size_t>(std::popcount(words_[at]));
    const std::uint64_t lower = (std::uint64_t{1} << (row % bits)) - 1;
    return count + static_cast<std::size_t>(std::popcount(words_[word] & lower));
}

std::size_t RowSet::at(std::size_t place) const
{
    const auto behind = std::upper_bound(before_.begin(), before_.end(), place);
    const auto block = static_cast<std::size_t>(behind - before_.begin()) - 1;
    std::size_t left = place - before_[block];
    std::size_t word = block * wordsOfBlock;
    for (;; ++word) {
        const auto here = static_cast<std::size_t>(std::popcount(words_[word]));
        if (left < here) break;
        left -= here;
    }
    std::uint64_t rest = words_[word];
    for (; left > 0; --left) rest &= rest - 1;
    return word * bits + static_cast<std::size_t>(std::countr_zero(rest));
}

std::optional<std::size_t> RowSet::nextFrom(std::size_t row) const
{
    const std::size_t before = countBefore(row);
    if (before == count_) return std::nullopt;
    return at(before);
}

std::optional<std::size_t> RowSet::lastBefore(std::size_t row) const
{
    const std::size_t before = countBefore(row);
    if (before == 0) return std::nullopt;
    return at(before - 1);
}

} // namespace viewer
