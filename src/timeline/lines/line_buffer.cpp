#include "timeline/lines/line_buffer.h"

#include "timeline/lines/byte_blocks.h"

#include <bit>

namespace timeline {

namespace {

constexpr std::size_t writtenInAdvance = 2;

} // namespace

// Neither is filled: what is never looked at takes no memory of the machine.
LineBuffer::LineBuffer(std::size_t size)
    : bytes(new char[size]), capacity(size), ends(new std::uint32_t[size + writtenInAdvance])
{}

void LineBuffer::findEnds(std::size_t from, std::size_t to)
{
    std::uint32_t* next = ends.get() + endCount;
    for (; to - from >= bytes::blockSize; from += bytes::blockSize) {
        std::uint64_t places = bytes::placesOf(bytes.get() + from, '\n');
        const auto takeFirst = [&] {
            *next = static_cast<std::uint32_t>(from) +
                    static_cast<std::uint32_t>(std::countr_zero(places));
            next += places != 0 ? 1 : 0;
            places &= places - 1;
        };
        // Two are written whether they are there or not, as few blocks have more: lines differ in
        // length, and what a processor can't foresee takes longer than a needless step.
        for (std::size_t at = 0; at < writtenInAdvance; ++at) takeFirst();
        while (places != 0) takeFirst();
    }
    for (; from < to; ++from)
        if (bytes[from] == '\n') *next++ = static_cast<std::uint32_t>(from);
    endCount = static_cast<std::size_t>(next - ends.get());
}

} // namespace timeline
