#include "cabmaker/block_pipeline.h"

#include <algorithm>
#include <memory>
#include <system_error>
#include <utility>

namespace cabmaker {

namespace {

// Large enough that starting a thread is nothing beside the work it gets.
constexpr std::size_t batchSize = 32 * blockSize;

} // namespace

BlockPipeline::BlockPipeline(Compression compression, unsigned threads, Sink sink)
    : compression_(compression), threads_(std::max(threads, 1U)), sink_(std::move(sink)),
      batch_(emptyBatch())
{}

std::span<std::uint8_t> BlockPipeline::room()
{
    return std::span(batch_.bytes).subspan(batch_.end, batch_.history + batchSize - batch_.end);
}

void BlockPipeline::filled(std::size_t count)
{
    batch_.end += count;
    if (batch_.end < batch_.history + batchSize) return;

    Batch next = emptyBatch();
    std::copy_n(batch_.bytes.begin() + static_cast<std::ptrdiff_t>(batch_.end - blockSize),
                blockSize, next.bytes.begin());
    next.history = blockSize;
    next.end = blockSize;
    pressBatch(std::move(next));
}

void BlockPipeline::endFolder()
{
    if (batch_.end > batch_.history) pressBatch(emptyBatch());
    batch_ = emptyBatch();
    drain(0);
}

BlockPipeline::Batch BlockPipeline::emptyBatch()
{
    Batch batch;
    batch.bytes.resize(blockSize + batchSize);
    return batch;
}

std::vector<std::uint8_t> BlockPipeline::press(Compression compression, const Batch& batch)
{
    BlockPress blockPress(compression);
    std::vector<std::uint8_t> out;
    const auto bytes = std::span(batch.bytes).first(batch.end);
    for (std::size_t start = batch.history; start < bytes.size(); start += blockSize) {
        const std::size_t history = std::min(start, blockSize);
        blockPress.append(bytes.subspan(start, std::min(blockSize, bytes.size() - start)),
                          bytes.subspan(start - history, history), out);
    }
    return out;
}

// Hands the filled batch to a thread and goes on with `next`.
void BlockPipeline::pressBatch(Batch next)
{
    auto work = [compression = compression_,
                 batch = std::make_shared<const Batch>(std::exchange(batch_, std::move(next)))] {
        return press(compression, *batch);
    };
    if (threads_ == 1) {
        sink_(work());
        return;
    }
    try {
        underWay_.push_back(std::async(std::launch::async, work));
    } catch (
        const std::system_error&) { // no thread to be had: this one does it when its turn comes
        underWay_.push_back(std::async(std::launch::deferred, work));
    }
    drain(threads_); // one more than threads are under way while this thread reads and writes
}

void BlockPipeline::drain(std::size_t keep)
{
    while (underWay_.size() > keep) {
        auto oldest = std::move(underWay_.front());
        underWay_.pop_front();
        sink_(oldest.get());
    }
}

} // namespace cabmaker
