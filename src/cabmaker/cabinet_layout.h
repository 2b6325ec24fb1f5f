#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <vector>

#include "cabmaker/cabinet_head.h"
#include "cabmaker/data_block.h"

namespace cabmaker {

/// What the cabinet format can hold.
namespace formatLimits {
constexpr std::uint32_t blocksPerFolder = 65535;
constexpr std::uint64_t memberBytes = std::uint64_t{blocksPerFolder} * blockSize;
constexpr std::size_t members = 65535;
constexpr std::size_t nameBytes = 255;
constexpr std::uint64_t cabinetBytes = 0x7fffffff;
} // namespace formatLimits

/// Whether members share folders, or each that has bytes has its own.
enum class FolderUse { shared, own };

/// The members of one cabinet and their places in its folders, in the order in which they came.
///
/// A folder is filled up to the blocks that the format lets it have; a member that would not fit
/// opens the next one, since no member may cross from folder to folder. Members that share a folder
/// pack better; in a set of cabinets each that has bytes needs its own.
class CabinetLayout {
public:
    struct Folder {
        std::size_t firstMember = 0;
        std::size_t members = 0;
        std::uint64_t bytes = 0;

        std::uint32_t blocks() const;
    };

    /// `blocksPerFolder` is the format's limit or a smaller one.
    explicit CabinetLayout(Compression compression,
                           std::uint32_t blocksPerFolder = formatLimits::blocksPerFolder,
                           FolderUse folders = FolderUse::shared);

    /// Raises 6 (overflow) for a member that is too large or one too many, 5 for a name that the
    /// format can't hold; the layout then stays as it was.
    void add(const MemberFacts& member);

    const std::vector<Folder>& folders() const { return folders_; }

    /// Bytes before the first data block.
    std::size_t headSize() const;

    /// Those bytes. `folderStarts` is where each folder's first data block stands in the cabinet.
    std::vector<std::uint8_t> head(std::span<const std::uint32_t> folderStarts,
                                   std::uint32_t cabinetSize) const;

private:
    struct Place {
        MemberFacts facts;
        std::uint32_t offset = 0;
        std::size_t folder = 0;
    };

    Compression compression_;
    std::uint32_t blocksPerFolder_;
    FolderUse folderUse_;
    std::vector<Folder> folders_;
    std::vector<Place> members_;
    std::size_t memberRecordBytes_ = 0;
};

} // namespace cabmaker
