#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <vector>

#include "cabmaker/cabinet_writer.h"

namespace cabmaker {

/// How large the cabinets of a set may be, and what they are called.
struct SetWish {
    std::uint64_t largestCabinet = formatLimits::cabinetBytes;

    /// The names that the cabinets before and behind give cabinet `number`, from 1.
    std::function<CabinetHead::Neighbour(std::size_t number)> called;
};

/// What one cabinet of a set holds: a stretch of the blocks, and the members with bytes in it.
///
/// A folder that goes on in the next cabinet is cut within a block, as readers count on: the block
/// is then in both, a part in each. Its members are in both cabinets too, and readers take them for
/// all that the folder has: that is why each member with bytes has a folder of its own in a set.
struct SetPart {
    /// Packed bytes of a block, all or some of them.
    struct Slice {
        std::size_t block = 0; ///< of all folders' blocks
        std::uint32_t begin = 0;
        std::uint32_t end = 0;
    };

    /// The slices that belong to one folder.
    struct Folder {
        std::size_t folder = 0;
        std::vector<Slice> slices;
    };

    std::vector<Folder> folders;
    std::size_t firstMember = 0;
    std::size_t endMember = 0;
    std::size_t membersFromPrevious = 0; ///< so many of the first ones began before
    std::size_t membersToNext = 0;       ///< so many of the last ones end behind
};

/// Divides a cabinet's blocks, packed with `FolderUse::own`, among cabinets of the wished size.
/// Raises 6 when they would have to
/// be larger, or too many for the format.
std::vector<SetPart> planSet(const PackedCabinet& cabinet, const SetWish& wish);

/// Writes cabinet `number` of a planned set, from 1, to `target`, which is empty. `blocks` holds
/// the cabinet that the plan divides. Raises what the files raise.
void writeSetPart(const PackedCabinet& cabinet, const OutputFile& blocks, Compression compression,
                  const std::vector<SetPart>& plan, std::size_t number, const SetWish& wish,
                  OutputFile& target);

} // namespace cabmaker
