#include "cabmaker/cabinet_set.h"

#include <algorithm>
#include <string>
#include <utility>

#include "cabmaker/data_block.h"
#include "runtime/run_time_error.h"

namespace cabmaker {

namespace {

constexpr std::size_t mostCabinets = 0xffff;

/// A member, and the first and the last block of its bytes. One without bytes goes with the member
/// before it wherever that goes, as readers know no more of it; the first one of all with block 0.
struct MemberPlace {
    std::size_t folder = 0;
    std::uint32_t offset = 0;
    std::size_t firstBlock = 0;
    std::size_t lastBlock = 0;
};

/// The blocks of a cabinet and what they belong to.
struct BlockMap {
    std::vector<std::size_t> folderOfBlock;
    std::vector<std::uint32_t> plainSizes;
    std::vector<std::uint64_t> starts; ///< of each block's head behind the cabinet's own; the end
    std::vector<MemberPlace> members;
    std::vector<std::uint64_t> records; ///< bytes of the members' records before each; the sum

    explicit BlockMap(const PackedCabinet& cabinet);

    /// The member behind the last one that begins in a block or before.
    std::size_t endOfMembersIn(std::size_t block) const
    {
        return indexOf([&](const MemberPlace& place) { return place.firstBlock <= block; });
    }

    /// The first member that has its last byte in a block or behind.
    std::size_t firstMemberIn(std::size_t block) const
    {
        return indexOf([&](const MemberPlace& place) { return place.lastBlock < block; });
    }

private:
    template <typename Before>
    std::size_t indexOf(Before before) const
    {
        return static_cast<std::size_t>(
            std::partition_point(members.begin(), members.end(), before) - members.begin());
    }
};

BlockMap::BlockMap(const PackedCabinet& cabinet) : starts{0}, records{0}
{
    for (const std::uint32_t packed : cabinet.blocks)
        starts.push_back(starts.back() + blockHeadSize + packed);
    for (std::size_t number = 0; number < cabinet.folders.size(); ++number) {
        const CabinetLayout::Folder& folder = cabinet.folders[number];
        const std::size_t first = folderOfBlock.size();
        for (std::uint64_t left = folder.bytes; left > 0; left -= plainSizes.back()) {
            plainSizes.push_back(
                static_cast<std::uint32_t>(std::min<std::uint64_t>(left, blockSize)));
            folderOfBlock.push_back(number);
        }
        std::uint64_t offset = 0;
        for (std::size_t i = 0; i < folder.members; ++i) {
            const MemberFacts& facts = cabinet.members[folder.firstMember + i];
            const std::uint64_t end = offset + facts.bytes;
            if (facts.bytes > 0)
                members.push_back({number, static_cast<std::uint32_t>(offset),
                                   first + offset / blockSize, first + (end - 1) / blockSize});
            else if (i > 0)
                members.push_back({number, static_cast<std::uint32_t>(offset),
                                   members.back().firstBlock, members.back().lastBlock});
            else
                members.push_back({number, 0, first, first});
            records.push_back(records.back() + headSizes::member(facts));
            offset = end;
        }
    }
}

class Planner {
public:
    Planner(const PackedCabinet& cabinet, const SetWish& wish)
        : cabinet_(cabinet), wish_(wish), map_(cabinet)
    {}

    std::vector<SetPart> plan();

private:
    bool takeTheRest();
    void fill();
    bool takeSome(std::uint64_t used);
    void take(std::uint32_t end);
    void giveLastByteBack();
    void closePart();
    std::uint64_t fixedBytes(bool last) const;
    std::uint64_t growth() const;
    [[noreturn]] void refuse() const;

    const PackedCabinet& cabinet_;
    const SetWish& wish_;
    BlockMap map_;
    std::vector<SetPart> parts_;
    SetPart part_;
    std::size_t block_ = 0;    // where the next slice begins
    std::uint32_t offset_ = 0; // in that block's packed bytes
};

std::vector<SetPart> Planner::plan()
{
    while (!takeTheRest()) {
        if (parts_.size() + 1 == mostCabinets) refuse();
        fill();
        closePart();
    }
    return std::move(parts_);
}

/// The head's bytes but for folders and members.
std::uint64_t Planner::fixedBytes(bool last) const
{
    const std::size_t number = parts_.size() + 1;
    std::uint64_t bytes = headSizes::fixed;
    if (number > 1) bytes += headSizes::neighbour(wish_.called(number - 1));
    if (!last) bytes += headSizes::neighbour(wish_.called(number + 1));
    return bytes;
}

/// Ends the set with the cabinet that is begun, if all that is left fits in it.
bool Planner::takeTheRest()
{
    const std::size_t members = cabinet_.members.size();
    const bool any = block_ < cabinet_.blocks.size();
    const std::size_t folders =
        any ? cabinet_.folders.size() - map_.folderOfBlock[block_] : cabinet_.folders.size();
    const std::uint64_t data = map_.starts.back() - (any ? map_.starts[block_] : 0) - offset_;
    if (fixedBytes(true) + folders * headSizes::folder + map_.records[members] -
            map_.records[part_.firstMember] + data >
        wish_.largestCabinet)
        return false;
    while (block_ < cabinet_.blocks.size()) take(cabinet_.blocks[block_]);
    part_.endMember = members;
    parts_.push_back(std::move(part_));
    return true;
}

/// What the next slice adds to the head and as its own head.
std::uint64_t Planner::growth() const
{
    const bool newFolder =
        part_.folders.empty() || part_.folders.back().folder != map_.folderOfBlock[block_];
    return (newFolder ? headSizes::folder : 0) + blockHeadSize +
           map_.records[map_.endOfMembersIn(block_)] -
           map_.records[std::max(part_.endMember, part_.firstMember)];
}

/// Fills the cabinet that is begun as far as it goes. More is left then.
void Planner::fill()
{
    std::uint64_t used = fixedBytes(false);
    while (block_ < cabinet_.blocks.size()) {
        const std::uint64_t whole = used + growth() + cabinet_.blocks[block_] - offset_;
        if (whole > wish_.largestCabinet) break;
        take(cabinet_.blocks[block_]);
        used = whole;
    }
    if (block_ == cabinet_.blocks.size() || !takeSome(used)) giveLastByteBack();
}

/// Takes what fits of the next block; between two folders nothing need be taken.
bool Planner::takeSome(std::uint64_t used)
{
    const std::uint64_t needed = used + growth();
    if (needed < wish_.largestCabinet) {
        take(offset_ + static_cast<std::uint32_t>(wish_.largestCabinet - needed));
        return true;
    }
    return !part_.folders.empty() && part_.folders.back().folder != map_.folderOfBlock[block_];
}

void Planner::take(std::uint32_t end)
{
    const std::size_t folder = map_.folderOfBlock[block_];
    if (part_.folders.empty() || part_.folders.back().folder != folder)
        part_.folders.push_back({folder, {}});
    part_.folders.back().slices.push_back({block_, offset_, end});
    part_.endMember = map_.endOfMembersIn(block_);
    offset_ = end;
    if (end < cabinet_.blocks[block_]) return;
    ++block_;
    offset_ = 0;
}

/// Cuts the last block, since a folder may not go on with a whole one.
void Planner::giveLastByteBack()
{
    if (part_.folders.empty()) refuse();
    SetPart::Slice& last = part_.folders.back().slices.back();
    if (last.end - last.begin < 2) refuse();
    last.end -= 1;
    block_ = last.block;
    offset_ = last.end;
}

void Planner::closePart()
{
    SetPart next;
    next.firstMember = part_.endMember;
    if (offset_ > 0) {
        next.firstMember = map_.firstMemberIn(block_);
        next.membersFromPrevious = part_.endMember - next.firstMember;
        part_.membersToNext = next.membersFromPrevious;
    }
    parts_.push_back(std::exchange(part_, std::move(next)));
}

void Planner::refuse() const
{
    throw RunTimeError(runTimeErrors::overflow, "the files can't be divided among cabinets of " +
                                                    std::to_string(wish_.largestCabinet) +
                                                    " bytes");
}

/// Whether a member goes on before or behind, and else its folder's number in the cabinet.
std::uint16_t folderFieldOf(const SetPart& part, std::size_t member, std::size_t folder)
{
    const bool fromPrevious = member < part.firstMember + part.membersFromPrevious;
    const bool toNext = member >= part.endMember - part.membersToNext;
    if (fromPrevious && toNext) return continuedFolder::bothWays;
    if (fromPrevious) return continuedFolder::fromPrevious;
    if (toNext) return continuedFolder::toNext;
    const std::size_t first = part.folders.empty() ? 0 : part.folders.front().folder;
    return static_cast<std::uint16_t>(folder - first);
}

} // namespace

std::vector<SetPart> planSet(const PackedCabinet& cabinet, const SetWish& wish)
{
    return Planner(cabinet, wish).plan();
}

void writeSetPart(const PackedCabinet& cabinet, const OutputFile& blocks, Compression compression,
                  const std::vector<SetPart>& plan, std::size_t number, const SetWish& wish,
                  OutputFile& target)
{
    const BlockMap map(cabinet);
    const std::uint64_t firstBlock = cabinet.bytes - map.starts.back();
    const SetPart& part = plan[number - 1];
    CabinetHead head{.compression = compression,
                     .set = static_cast<std::uint16_t>(cabinet.bytes % 0xffff + 1),
                     .number = static_cast<std::uint16_t>(number - 1)};
    if (number > 1) head.previous = wish.called(number - 1);
    if (number < plan.size()) head.next = wish.called(number + 1);
    for (std::size_t member = part.firstMember; member < part.endMember; ++member)
        head.members.push_back({&cabinet.members[member], map.members[member].offset,
                                folderFieldOf(part, member, map.members[member].folder)});
    head.folders.resize(part.folders.size());
    target.append(bytesOf(head));

    std::vector<std::uint8_t> bytes;
    for (std::size_t i = 0; i < part.folders.size(); ++i) {
        head.folders[i] = {static_cast<std::uint32_t>(target.size()),
                           static_cast<std::uint32_t>(part.folders[i].slices.size())};
        for (const SetPart::Slice& slice : part.folders[i].slices) {
            bytes.resize(blockHeadSize + slice.end - slice.begin);
            blocks.readBack(firstBlock + map.starts[slice.block] + blockHeadSize + slice.begin,
                            std::span(bytes).subspan(blockHeadSize));
            const bool ends = slice.end == cabinet.blocks[slice.block];
            sealBlock(bytes, ends ? map.plainSizes[slice.block] : 0);
            target.append(bytes);
        }
    }
    head.cabinetSize = static_cast<std::uint32_t>(target.size());
    target.overwrite(0, bytesOf(head));
}

} // namespace cabmaker
