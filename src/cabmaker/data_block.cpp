#include "cabmaker/data_block.h"

#include <algorithm>
#include <new>

#include <zlib.h>

#include "cabmaker/checksum.h"
#include "cabmaker/little_endian.h"

namespace cabmaker {

namespace {

constexpr std::size_t storedHeadSize = 5;

// A reader gives a block a fixed buffer, so bytes that don't deflate go into one stored part, which
// has a known size.
void store(std::span<const std::uint8_t> plain, std::uint8_t* target)
{
    const auto size = static_cast<std::uint32_t>(plain.size());
    target[0] = 1;
    store16(target + 1, size);
    store16(target + 3, ~size);
    std::copy(plain.begin(), plain.end(), target + storedHeadSize);
}

} // namespace

std::uint32_t packedSizeOf(std::span<const std::uint8_t> block)
{
    return block[4] | static_cast<std::uint32_t>(block[5]) << 8;
}

void sealBlock(std::span<std::uint8_t> block, std::uint32_t plainSize)
{
    const std::span<std::uint8_t> packed = block.subspan(blockHeadSize);
    store16(&block[4], static_cast<std::uint32_t>(packed.size()));
    store16(&block[6], plainSize);
    store32(block.data(), checksum(block.subspan(4, 4), checksum(packed)));
}

class BlockPress::Deflater {
public:
    Deflater()
    {
        constexpr int rawDeflate = -15;
        constexpr int memoryLevel = 8;
        if (deflateInit2(&stream_, compressionLevel, Z_DEFLATED, rawDeflate, memoryLevel,
                         Z_DEFAULT_STRATEGY) != Z_OK)
            throw std::bad_alloc();
    }
    ~Deflater() { deflateEnd(&stream_); }
    Deflater(const Deflater&) = delete;
    Deflater& operator=(const Deflater&) = delete;

    /// Bytes written to `target`, which has room for `room`; 0 when that is not enough.
    std::size_t run(std::span<const std::uint8_t> plain, std::span<const std::uint8_t> history,
                    std::uint8_t* target, std::size_t room)
    {
        deflateReset(&stream_);
        if (!history.empty())
            deflateSetDictionary(&stream_, history.data(), static_cast<uInt>(history.size()));
        stream_.next_in = const_cast<Bytef*>(plain.data());
        stream_.avail_in = static_cast<uInt>(plain.size());
        stream_.next_out = target;
        stream_.avail_out = static_cast<uInt>(room);
        return deflate(&stream_, Z_FINISH) == Z_STREAM_END ? room - stream_.avail_out : 0;
    }

private:
    // Measured on trace databases (benchmarks/cabinet_benchmark.sh): the next level takes half as
    // much time again for a thirtieth fewer bytes.
    static constexpr int compressionLevel = 5;

    z_stream stream_{};
};

BlockPress::BlockPress(Compression compression)
    : deflater_(compression == Compression::mszip ? std::make_unique<Deflater>() : nullptr)
{}

BlockPress::~BlockPress() = default;

void BlockPress::append(std::span<const std::uint8_t> plain, std::span<const std::uint8_t> history,
                        std::vector<std::uint8_t>& out)
{
    const std::size_t start = out.size();
    const std::size_t storedSize = storedHeadSize + plain.size();
    out.resize(start + blockHeadSize + 2 + storedSize);
    std::uint8_t* const payload = out.data() + start + blockHeadSize;

    std::size_t payloadSize = plain.size();
    if (deflater_) {
        payload[0] = 'C';
        payload[1] = 'K';
        std::size_t deflated = deflater_->run(plain, history, payload + 2, storedSize);
        if (deflated == 0) {
            store(plain, payload + 2);
            deflated = storedSize;
        }
        payloadSize = 2 + deflated;
    } else {
        std::copy(plain.begin(), plain.end(), payload);
    }

    out.resize(start + blockHeadSize + payloadSize);
    sealBlock(std::span(out).subspan(start), static_cast<std::uint32_t>(plain.size()));
}

} // namespace cabmaker
