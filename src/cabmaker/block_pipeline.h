#pragma once

#include <cstddef>
#include <cstdint>
#include <deque>
#include <functional>
#include <future>
#include <span>
#include <vector>

#include "cabmaker/data_block.h"

namespace cabmaker {

/// Turns the bytes of a cabinet's folders into data blocks, on several threads at once.
///
/// The blocks come out in order, and they are the same bytes whatever the number of threads: all
/// that a block needs of those before it is their plain bytes. Memory is a few MB a thread,
/// however long the input.
class BlockPipeline {
public:
    /// Takes the blocks that are ready, whole ones, in order, on the caller's thread.
    using Sink = std::function<void(std::span<const std::uint8_t>)>;

    /// `threads` is how many blocks are worked on at once; 1 works on the caller's thread alone.
    BlockPipeline(Compression compression, unsigned threads, Sink sink);

    /// Where the next bytes of the folder go; never empty, and good until the next call of
    /// `filled`.
    std::span<std::uint8_t> room();

    /// The first `count` bytes of `room` now hold input.
    void filled(std::size_t count);

    /// Brings the folder to its end: all of its blocks have gone to the sink. What is filled in
    /// afterwards belongs to the next folder.
    void endFolder();

private:
    // Input with the history of its first block before it.
    struct Batch {
        std::vector<std::uint8_t> bytes;
        std::size_t history = 0;
        std::size_t end = 0;
    };

    static std::vector<std::uint8_t> press(Compression compression, const Batch& batch);
    static Batch emptyBatch();
    void pressBatch(Batch next);
    void drain(std::size_t keep);

    Compression compression_;
    std::size_t threads_;
    Sink sink_;
    Batch batch_;
    std::deque<std::future<std::vector<std::uint8_t>>> underWay_;
};

} // namespace cabmaker
