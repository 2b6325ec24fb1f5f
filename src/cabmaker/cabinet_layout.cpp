#include "cabmaker/cabinet_layout.h"

#include "runtime/run_time_error.h"

namespace cabmaker {

std::uint32_t CabinetLayout::Folder::blocks() const
{
    return static_cast<std::uint32_t>((bytes + blockSize - 1) / blockSize);
}

CabinetLayout::CabinetLayout(Compression compression, std::uint32_t blocksPerFolder,
                             FolderUse folders)
    : compression_(compression), blocksPerFolder_(blocksPerFolder), folderUse_(folders)
{}

void CabinetLayout::add(const MemberFacts& member)
{
    const std::uint64_t folderLimit = std::uint64_t{blocksPerFolder_} * blockSize;
    if (member.bytes > folderLimit)
        throw RunTimeError(runTimeErrors::overflow, "a file in a cabinet can't be larger than " +
                                                        std::to_string(folderLimit) + " bytes");
    if (members_.size() == formatLimits::members)
        throw RunTimeError(runTimeErrors::overflow, "a cabinet can't hold more than " +
                                                        std::to_string(formatLimits::members) +
                                                        " files");
    if (member.name.empty() || member.name.size() > formatLimits::nameBytes)
        throw RunTimeError(runTimeErrors::invalidCall, "a member's name takes 1 to " +
                                                           std::to_string(formatLimits::nameBytes) +
                                                           " bytes");

    const bool needsItsOwn = folderUse_ == FolderUse::own && !folders_.empty() &&
                             folders_.back().bytes > 0 && member.bytes > 0;
    if (folders_.empty() || needsItsOwn || folders_.back().bytes + member.bytes > folderLimit)
        folders_.push_back({.firstMember = members_.size()});
    Folder& folder = folders_.back();
    members_.push_back({member, static_cast<std::uint32_t>(folder.bytes), folders_.size() - 1});
    folder.members += 1;
    folder.bytes += member.bytes;
    memberRecordBytes_ += headSizes::member(member);
}

std::size_t CabinetLayout::headSize() const
{
    return headSizes::fixed + folders_.size() * headSizes::folder + memberRecordBytes_;
}

std::vector<std::uint8_t> CabinetLayout::head(std::span<const std::uint32_t> folderStarts,
                                              std::uint32_t cabinetSize) const
{
    CabinetHead head{.cabinetSize = cabinetSize, .compression = compression_};
    for (std::size_t i = 0; i < folders_.size(); ++i)
        head.folders.push_back({folderStarts[i], folders_[i].blocks()});
    for (const Place& place : members_)
        head.members.push_back(
            {&place.facts, place.offset, static_cast<std::uint16_t>(place.folder)});
    return bytesOf(head);
}

} // namespace cabmaker
