#include "sample/random.h"

#include <bit>

namespace sample {

namespace {

/// Spreads a seed over the state: neighbouring seeds give states that have nothing in common.
std::uint64_t splitMix(std::uint64_t& state)
{
    std::uint64_t mixed = state += 0x9E3779B97F4A7C15U;
    mixed = (mixed ^ (mixed >> 30)) * 0xBF58476D1CE4E5B9U;
    mixed = (mixed ^ (mixed >> 27)) * 0x94D049BB133111EBU;
    return mixed ^ (mixed >> 31);
}

} // namespace

Random::Random(std::uint64_t seed)
{
    for (auto& word : state_) word = splitMix(seed);
}

std::uint64_t Random::next()
{
    // The generator xoshiro256**.
    const std::uint64_t result = std::rotl(state_[1] * 5, 7) * 9;
    const std::uint64_t shifted = state_[1] << 17;
    state_[2] ^= state_[0];
    state_[3] ^= state_[1];
    state_[1] ^= state_[2];
    state_[0] ^= state_[3];
    state_[2] ^= shifted;
    state_[3] = std::rotl(state_[3], 45);
    return result;
}

std::uint32_t Random::below(std::uint32_t bound)
{
    return static_cast<std::uint32_t>(((next() >> 32) * bound) >> 32);
}

std::int64_t Random::between(std::int64_t first, std::int64_t last)
{
    return first + static_cast<std::int64_t>(below(static_cast<std::uint32_t>(last - first + 1)));
}

} // namespace sample
