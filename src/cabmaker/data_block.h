#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <vector>

namespace cabmaker {

/// How a folder's bytes are held: as they are, or deflated block by block.
enum class Compression : std::uint16_t { none = 0, mszip = 1 };

/// The plain bytes of a full block. Every block of a folder but its last is full.
constexpr std::size_t blockSize = 32768;

/// The bytes before those that a data block packs.
constexpr std::size_t blockHeadSize = 8;

/// The bytes that a data block packs, which `block` begins with, as its head tells.
std::uint32_t packedSizeOf(std::span<const std::uint8_t> block);

/// Writes a data block's head before its packed bytes: `block` is both, and the packed bytes are
/// there. `plainSize` is 0 where they go on in the next cabinet of a set.
void sealBlock(std::span<std::uint8_t> block, std::uint32_t plainSize);

/// Makes data blocks, one after the other. An object serves one thread at a time.
class BlockPress {
public:
    explicit BlockPress(Compression compression);
    ~BlockPress();
    BlockPress(const BlockPress&) = delete;
    BlockPress& operator=(const BlockPress&) = delete;

    /// Appends a whole data block, head and payload, to `out`.
    ///
    /// `plain` is 1 to `blockSize` bytes. `history` is the plain bytes before it in its folder, at
    /// most `blockSize` of them and none for a folder's first block: a reader has them already, so
    /// the block may refer to them. The result depends on these two alone.
    void append(std::span<const std::uint8_t> plain, std::span<const std::uint8_t> history,
                std::vector<std::uint8_t>& out);

private:
    class Deflater;
    std::unique_ptr<Deflater> deflater_;
};

} // namespace cabmaker
