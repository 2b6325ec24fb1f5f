#include "cabmaker/cabinet_layout.h"

#include <algorithm>

#include "cabmaker/little_endian.h"
#include "runtime/run_time_error.h"

namespace cabmaker {

namespace {

constexpr std::size_t headerSize = 36;
constexpr std::size_t folderRecordSize = 8;
constexpr std::size_t memberRecordSize = 16; // and the name with its zero

namespace attributes {
constexpr std::uint32_t readOnly = 0x01;
constexpr std::uint32_t archive = 0x20;
constexpr std::uint32_t nameIsUtf8 = 0x80;
} // namespace attributes

bool isAscii(const std::string& name)
{
    return std::all_of(name.begin(), name.end(),
                       [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}

} // namespace

std::uint32_t CabinetLayout::Folder::blocks() const
{
    return static_cast<std::uint32_t>((bytes + blockSize - 1) / blockSize);
}

CabinetLayout::CabinetLayout(Compression compression, std::uint32_t blocksPerFolder)
    : compression_(compression), blocksPerFolder_(blocksPerFolder)
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

    if (folders_.empty() || folders_.back().bytes + member.bytes > folderLimit)
        folders_.push_back({.firstMember = members_.size()});
    Folder& folder = folders_.back();
    members_.push_back({member, static_cast<std::uint32_t>(folder.bytes), folders_.size() - 1});
    folder.members += 1;
    folder.bytes += member.bytes;
    memberRecordBytes_ += memberRecordSize + member.name.size() + 1;
}

std::size_t CabinetLayout::headSize() const
{
    return headerSize + folders_.size() * folderRecordSize + memberRecordBytes_;
}

std::vector<std::uint8_t> CabinetLayout::head(std::span<const std::uint32_t> folderStarts,
                                              std::uint32_t cabinetSize) const
{
    const std::size_t memberRecords = headerSize + folders_.size() * folderRecordSize;
    std::vector<std::uint8_t> bytes(headSize());
    const char signature[] = {'M', 'S', 'C', 'F'};
    std::copy(std::begin(signature), std::end(signature), bytes.begin());
    store32(&bytes[8], cabinetSize);
    store32(&bytes[16], static_cast<std::uint32_t>(memberRecords));
    bytes[24] = 3; // version 1.3
    bytes[25] = 1;
    store16(&bytes[26], static_cast<std::uint32_t>(folders_.size()));
    store16(&bytes[28], static_cast<std::uint32_t>(members_.size()));

    std::uint8_t* target = bytes.data() + headerSize;
    for (std::size_t i = 0; i < folders_.size(); ++i, target += folderRecordSize) {
        store32(target, folderStarts[i]);
        store16(target + 4, folders_[i].blocks());
        store16(target + 6, static_cast<std::uint32_t>(compression_));
    }
    for (const Place& place : members_) {
        writeMember(place, target);
        target += memberRecordSize + place.facts.name.size() + 1;
    }
    return bytes;
}

void CabinetLayout::writeMember(const Place& place, std::uint8_t* target)
{
    const MemberFacts& facts = place.facts;
    std::uint32_t flags = attributes::archive;
    if (facts.readOnly) flags |= attributes::readOnly;
    if (!isAscii(facts.name)) flags |= attributes::nameIsUtf8;

    store32(target, static_cast<std::uint32_t>(facts.bytes));
    store32(target + 4, place.offset);
    store16(target + 8, static_cast<std::uint32_t>(place.folder));
    store16(target + 10, facts.modified.date);
    store16(target + 12, facts.modified.time);
    store16(target + 14, flags);
    std::copy(facts.name.begin(), facts.name.end(), target + memberRecordSize);
}

} // namespace cabmaker
