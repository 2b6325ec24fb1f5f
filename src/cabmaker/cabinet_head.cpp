#include "cabmaker/cabinet_head.h"

#include <algorithm>

#include "cabmaker/little_endian.h"

namespace cabmaker {

namespace {

constexpr std::size_t memberFixed = 16; // and the name with its zero

namespace attributes {
constexpr std::uint32_t readOnly = 0x01;
constexpr std::uint32_t archive = 0x20;
constexpr std::uint32_t nameIsUtf8 = 0x80;
} // namespace attributes

namespace headFlags {
constexpr std::uint32_t previous = 0x01;
constexpr std::uint32_t next = 0x02;
} // namespace headFlags

bool isAscii(const std::string& name)
{
    return std::all_of(name.begin(), name.end(),
                       [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}

/// Writes a text and its zero, and gives the place behind it. The bytes there are zeros.
std::uint8_t* writeText(const std::string& text, std::uint8_t* target)
{
    return std::copy(text.begin(), text.end(), target) + 1;
}

std::uint8_t* writeNeighbour(const CabinetHead::Neighbour& neighbour, std::uint8_t* target)
{
    if (neighbour.cabinet.empty()) return target;
    return writeText(neighbour.disk, writeText(neighbour.cabinet, target));
}

std::uint8_t* writeMember(const CabinetHead::Member& member, std::uint8_t* target)
{
    const MemberFacts& facts = *member.facts;
    std::uint32_t flags = attributes::archive;
    if (facts.readOnly) flags |= attributes::readOnly;
    if (!isAscii(facts.name)) flags |= attributes::nameIsUtf8;

    store32(target, static_cast<std::uint32_t>(facts.bytes));
    store32(target + 4, member.offset);
    store16(target + 8, member.folder);
    store16(target + 10, facts.modified.date);
    store16(target + 12, facts.modified.time);
    store16(target + 14, flags);
    return writeText(facts.name, target + memberFixed);
}

} // namespace

std::size_t headSizes::member(const MemberFacts& facts)
{
    return memberFixed + facts.name.size() + 1;
}

std::size_t headSizes::neighbour(const CabinetHead::Neighbour& neighbour)
{
    return neighbour.cabinet.empty() ? 0 : neighbour.cabinet.size() + neighbour.disk.size() + 2;
}

std::vector<std::uint8_t> bytesOf(const CabinetHead& head)
{
    const std::size_t memberRecords = headSizes::fixed + headSizes::neighbour(head.previous) +
                                      headSizes::neighbour(head.next) +
                                      head.folders.size() * headSizes::folder;
    std::size_t size = memberRecords;
    for (const auto& member : head.members) size += headSizes::member(*member.facts);

    std::vector<std::uint8_t> bytes(size);
    const char signature[] = {'M', 'S', 'C', 'F'};
    std::copy(std::begin(signature), std::end(signature), bytes.begin());
    store32(&bytes[8], head.cabinetSize);
    store32(&bytes[16], static_cast<std::uint32_t>(memberRecords));
    bytes[24] = 3; // version 1.3
    bytes[25] = 1;
    store16(&bytes[26], static_cast<std::uint32_t>(head.folders.size()));
    store16(&bytes[28], static_cast<std::uint32_t>(head.members.size()));
    std::uint32_t flags = 0;
    if (!head.previous.cabinet.empty()) flags |= headFlags::previous;
    if (!head.next.cabinet.empty()) flags |= headFlags::next;
    store16(&bytes[30], flags);
    store16(&bytes[32], head.set);
    store16(&bytes[34], head.number);

    std::uint8_t* target = bytes.data() + headSizes::fixed;
    target = writeNeighbour(head.next, writeNeighbour(head.previous, target));
    for (const auto& folder : head.folders) {
        store32(target, folder.start);
        store16(target + 4, folder.blocks);
        store16(target + 6, static_cast<std::uint32_t>(head.compression));
        target += headSizes::folder;
    }
    for (const auto& member : head.members) target = writeMember(member, target);
    return bytes;
}

} // namespace cabmaker
