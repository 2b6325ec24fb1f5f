#pragma once

#include "backends/jet/pages/pages.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>

class StoredBytes;

namespace jet {

/// The pages of a file, for a Reader: read as they are looked at, and kept in blocks of 64 KB whose
/// number does not go by the size of the file.
///
/// What a writer adds to the pages that were there shows where a newer page leads to it; a file
/// that grows is to be opened again. A page that was cut off since is an error of that look.
class FilePages final : public PageSource {
public:
    static constexpr std::size_t mostBlocks = 64;
    static constexpr std::size_t fewestBlocks = 16; ///< by which a look holds as long as it has to

    /// Raises 3024 for a missing file, 3051 for one that can't be read, 3343 for one that is larger
    /// than the format allows.
    explicit FilePages(const std::string& path);

    /// Keeps so many blocks, from `fewestBlocks` to `mostBlocks`. Raises 57, and 3343 for what is
    /// larger than the format allows.
    explicit FilePages(std::shared_ptr<const StoredBytes> bytes, std::size_t blocks = mostBlocks);
    FilePages(const FilePages&) = delete;
    FilePages& operator=(const FilePages&) = delete;

    Pages pages() const { return Pages(*this, count_); }

    /// Both raise 3343 for a page that is not in the file any more, and 57.
    const char* look(std::uint32_t page) const override;
    const char* lookAgain(std::uint32_t page) const override;

private:
    static constexpr std::uint32_t pagesPerBlock = 16;

    /// Pages that lie one after the other, as they were last read.
    struct Block {
        std::unique_ptr<char[]> bytes; ///< null until the block is used
        std::uint32_t number = 0;
        std::uint64_t used = 0; ///< when it was last looked at
    };

    void read(Block& block) const;
    Block& blockFor(std::uint32_t number) const;

    std::shared_ptr<const StoredBytes> file_;
    std::size_t keptBlocks_;
    std::uint32_t count_ = 0;
    mutable std::array<Block, mostBlocks> blocks_;
    mutable std::array<std::uint8_t, formatFilePages / pagesPerBlock> blockOf_{}; ///< from 1
    mutable std::uint64_t looks_ = 0;
};

} // namespace jet
