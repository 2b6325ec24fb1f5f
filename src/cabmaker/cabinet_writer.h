#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "cabmaker/cabinet_layout.h"
#include "cabmaker/output_file.h"

namespace cabmaker {

/// A file to pack.
struct CabinetSource {
    std::string path;      ///< of the machine
    std::string shownName; ///< in messages
    std::string name;      ///< in the cabinet
    std::string origin;    ///< who asks for it: the head of messages about it, such as "a.ddf:6: "
};

/// How to pack. As it stands: as large as the format allows, on one thread, to the end.
struct Packing {
    Compression compression = Compression::mszip;
    unsigned threads = 1;
    std::uint32_t blocksPerFolder = formatLimits::blocksPerFolder;
    FolderUse folders = FolderUse::shared;
    std::function<void()> checkpoint = [] {}; ///< called now and then; what it throws ends the work
};

/// What a cabinet holds.
struct PackedCabinet {
    std::vector<MemberFacts> members;
    std::vector<CabinetLayout::Folder> folders;
    std::vector<std::uint32_t> blocks; ///< bytes of each data block behind its head, in order
    std::uint64_t bytes = 0;           ///< of the cabinet itself
};

/// Writes a cabinet with `sources`, in their order, to `target`, which is empty.
///
/// One larger than the format allows has no true head: a set of cabinets is to be made of its
/// blocks. Raises what the source and the target raise, 75 for a source that doesn't stay as it is,
/// and 6 for what passes a limit; the bytes in `target` are then no cabinet.
PackedCabinet writeCabinet(const std::vector<CabinetSource>& sources, const Packing& packing,
                           OutputFile& target);

} // namespace cabmaker
