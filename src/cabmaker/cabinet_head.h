#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "cabmaker/data_block.h"

namespace cabmaker {

/// A moment in the form in which cabinets keep it, local time.
struct CabinetTime {
    std::uint16_t date = 0x21; ///< 1 January 1980
    std::uint16_t time = 0;
};

/// What is known of a member before its bytes are read.
struct MemberFacts {
    std::string name; ///< UTF-8, 1 to 255 bytes, `\` between folders
    std::uint64_t bytes = 0;
    CabinetTime modified{};
    bool readOnly = false;
};

/// Where a member's folder stands that is not as a whole in its cabinet.
namespace continuedFolder {
constexpr std::uint16_t fromPrevious = 0xfffd;
constexpr std::uint16_t toNext = 0xfffe;
constexpr std::uint16_t bothWays = 0xffff;
} // namespace continuedFolder

/// What stands before the data blocks of a cabinet.
struct CabinetHead {
    struct Folder {
        std::uint32_t start = 0; ///< of its first data block in the cabinet
        std::uint32_t blocks = 0;
    };

    struct Member {
        const MemberFacts* facts = nullptr;
        std::uint32_t offset = 0; ///< in its folder
        std::uint16_t folder = 0; ///< its number, or one of `continuedFolder`
    };

    /// Another cabinet of the set.
    struct Neighbour {
        std::string cabinet; ///< the file's name; empty: there is none
        std::string disk;    ///< for the person who is asked for it
    };

    std::uint32_t cabinetSize = 0;
    Compression compression = Compression::mszip;
    std::uint16_t set = 0;    ///< the same for all cabinets of a set
    std::uint16_t number = 0; ///< in the set, from 0
    Neighbour previous{};
    Neighbour next{};
    std::vector<Folder> folders{};
    std::vector<Member> members{};
};

/// Sizes of the head's pieces in bytes.
namespace headSizes {
constexpr std::size_t fixed = 36;
constexpr std::size_t folder = 8;

std::size_t member(const MemberFacts& facts);
std::size_t neighbour(const CabinetHead::Neighbour& neighbour);
} // namespace headSizes

std::vector<std::uint8_t> bytesOf(const CabinetHead& head);

} // namespace cabmaker
