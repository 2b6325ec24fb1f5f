#include "cabmaker/data_block.h"

#include <gtest/gtest.h>
#include <zlib.h>

#include "cabmaker/checksum.h"
#include "cabmaker/scratch_folder.h"

namespace cabmaker {

namespace {

std::span<const std::uint8_t> bytesOf(const std::string& text)
{
    return {reinterpret_cast<const std::uint8_t*>(text.data()), text.size()};
}

unsigned number16(const std::vector<std::uint8_t>& block, std::size_t at)
{
    return block.at(at) | block.at(at + 1) << 8;
}

std::string inflated(const std::vector<std::uint8_t>& block, const std::string& history)
{
    z_stream stream{};
    EXPECT_EQ(Z_OK, inflateInit2(&stream, -15));
    if (!history.empty()) {
        EXPECT_EQ(Z_OK, inflateSetDictionary(&stream, bytesOf(history).data(),
                                             static_cast<uInt>(history.size())));
    }
    std::string plain(number16(block, 6), '\0');
    stream.next_in = const_cast<Bytef*>(block.data() + 10);
    stream.avail_in = static_cast<uInt>(block.size() - 10);
    stream.next_out = reinterpret_cast<Bytef*>(plain.data());
    stream.avail_out = static_cast<uInt>(plain.size());
    EXPECT_EQ(Z_STREAM_END, inflate(&stream, Z_FINISH));
    EXPECT_EQ(0U, stream.avail_in);
    EXPECT_EQ(0U, stream.avail_out);
    inflateEnd(&stream);
    return plain;
}

std::vector<std::uint8_t> pressed(Compression compression, const std::string& plain,
                                  const std::string& history = {})
{
    BlockPress press(compression);
    std::vector<std::uint8_t> out;
    press.append(bytesOf(plain), bytesOf(history), out);
    return out;
}

} // namespace

TEST(BlockPress, WritesAHeadWithChecksumAndSizes)
{
    for (const Compression compression : {Compression::none, Compression::mszip}) {
        const auto block = pressed(compression, traceText(1000));
        EXPECT_EQ(block.size() - 8, number16(block, 4));
        EXPECT_EQ(1000U, number16(block, 6));
        const auto all = std::span(block);
        EXPECT_EQ(checksum(all.subspan(4, 4), checksum(all.subspan(8))),
                  number16(block, 0) | number16(block, 2) << 16);
    }
}

TEST(BlockPress, KeepsUncompressedBytesAsTheyAre)
{
    const auto block = pressed(Compression::none, "plain bytes");
    EXPECT_EQ("plain bytes", std::string(block.begin() + 8, block.end()));
}

TEST(BlockPress, InflatesToTheSameBytesWithTheHistoryThatItWasGiven)
{
    const std::string text = traceText(2 * blockSize);
    const std::string history = text.substr(0, blockSize);
    const std::string plain = text.substr(blockSize);

    const auto block = pressed(Compression::mszip, plain, history);

    EXPECT_EQ('C', block[8]);
    EXPECT_EQ('K', block[9]);
    EXPECT_EQ(plain, inflated(block, history));
}

TEST(BlockPress, UsesTheHistory)
{
    const std::string repeated = noise(20000);
    EXPECT_LT(pressed(Compression::mszip, repeated, repeated).size(), 1000U);
    EXPECT_GT(pressed(Compression::mszip, repeated).size(), 20000U);
}

TEST(BlockPress, NeverPassesTheRoomThatAReaderHasForABlock)
{
    constexpr std::size_t readersRoom = 8 + 32768 + 12;
    for (const std::size_t size : {std::size_t{1}, std::size_t{2}, std::size_t{300}, blockSize}) {
        const std::string plain = noise(size);
        const auto block = pressed(Compression::mszip, plain);
        EXPECT_LE(block.size(), readersRoom);
        EXPECT_LE(block.size(), size + 8 + 2 + 5);
        EXPECT_EQ(plain, inflated(block, {}));
    }
}

TEST(BlockPress, ForgetsTheBlockBefore)
{
    BlockPress press(Compression::mszip);
    std::vector<std::uint8_t> out;
    press.append(bytesOf(traceText(blockSize)), {}, out);
    const std::size_t firstEnd = out.size();
    press.append(bytesOf(traceText(500)), {}, out);
    out.erase(out.begin(), out.begin() + static_cast<std::ptrdiff_t>(firstEnd));
    EXPECT_EQ(pressed(Compression::mszip, traceText(500)), out);
}

} // namespace cabmaker
