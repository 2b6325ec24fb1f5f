#include "cabmaker/block_pipeline.h"

#include <algorithm>
#include <stdexcept>
#include <string>

#include <gtest/gtest.h>

#include "cabmaker/scratch_folder.h"

namespace cabmaker {

namespace {

using Bytes = std::vector<std::uint8_t>;

std::span<const std::uint8_t> bytesOf(const std::string& text)
{
    return {reinterpret_cast<const std::uint8_t*>(text.data()), text.size()};
}

void feed(BlockPipeline& pipeline, const std::string& input, std::size_t atMost)
{
    for (std::size_t done = 0; done < input.size();) {
        const auto room = pipeline.room();
        const std::size_t count = std::min({room.size(), input.size() - done, atMost});
        std::copy_n(input.begin() + static_cast<std::ptrdiff_t>(done), count, room.begin());
        pipeline.filled(count);
        done += count;
    }
}

Bytes piped(const std::vector<std::string>& folders, unsigned threads, std::size_t atMost)
{
    Bytes out;
    BlockPipeline pipeline(Compression::mszip, threads, [&](auto blocks) {
        out.insert(out.end(), blocks.begin(), blocks.end());
    });
    for (const std::string& folder : folders) {
        feed(pipeline, folder, atMost);
        pipeline.endFolder();
    }
    return out;
}

// The same blocks made one by one, each with the whole block before it as history.
Bytes oneByOne(const std::vector<std::string>& folders)
{
    Bytes out;
    BlockPress press(Compression::mszip);
    for (const std::string& folder : folders) {
        for (std::size_t start = 0; start < folder.size(); start += blockSize) {
            const std::string history =
                start == 0 ? "" : folder.substr(start - blockSize, blockSize);
            press.append(bytesOf(folder.substr(start, blockSize)), bytesOf(history), out);
        }
    }
    return out;
}

} // namespace

TEST(BlockPipeline, MakesTheSameBlocksOnAnyNumberOfThreads)
{
    const std::vector<std::string> folders = {traceText(5'000'001), noise(2'300'000),
                                              traceText(70'000)};
    const Bytes expected = oneByOne(folders);
    for (const unsigned threads : {0U, 1U, 2U, 3U, 16U}) {
        SCOPED_TRACE(threads);
        EXPECT_TRUE(piped(folders, threads, 1 << 20) == expected);
    }
}

TEST(BlockPipeline, CutsBlocksAtTheSamePlacesHoweverTheInputComes)
{
    for (const std::size_t size : {0, 1, 32767, 32768, 32769, 65536, 1 << 20, (1 << 20) + 1}) {
        SCOPED_TRACE(size);
        const std::vector<std::string> folders = {traceText(size)};
        const Bytes expected = oneByOne(folders);
        for (const std::size_t atMost :
             {std::size_t{1009}, std::size_t{32768}, std::size_t{4} << 20})
            EXPECT_TRUE(piped(folders, 2, atMost) == expected);
    }
}

TEST(BlockPipeline, PassesOnWhatTheSinkThrows)
{
    for (const unsigned threads : {1U, 2U}) {
        BlockPipeline pipeline(Compression::mszip, threads,
                               [](auto) { throw std::runtime_error("no room"); });
        EXPECT_THROW(
            {
                feed(pipeline, traceText(10'000'000), 1 << 20);
                pipeline.endFolder();
            },
            std::runtime_error);
    }
}

} // namespace cabmaker
