#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

/// What a record of an event log is made of, in the system's own terms.
struct EventParts {
    std::uint32_t seconds = 1128784987; ///< 2005-10-08 15:23:07, universal time
    std::uint32_t id = 10004;
    std::uint16_t type = 4;
    std::u16string source = u"OrvanDiagnosticTool_MC";
    std::u16string computer = u"VOICE01";
    std::vector<std::u16string> inserts = {};
};

inline void putNumber(std::string& bytes, std::uint32_t number, int size)
{
    for (int byte = 0; byte < size; ++byte) bytes += static_cast<char>(number >> (8 * byte));
}

inline void putText(std::string& bytes, std::u16string_view text)
{
    for (const char16_t unit : text) putNumber(bytes, unit, 2);
    putNumber(bytes, 0, 2);
}

/// A record as the system's reading call gives it.
inline std::string eventBytes(const EventParts& parts)
{
    constexpr std::uint32_t fixed = 56;
    std::string names;
    putText(names, parts.source);
    putText(names, parts.computer);
    std::string inserts;
    for (const auto& insert : parts.inserts) putText(inserts, insert);
    const auto offset = static_cast<std::uint32_t>(fixed + names.size());
    const auto length = static_cast<std::uint32_t>(offset + inserts.size() + 4);
    std::string bytes;
    putNumber(bytes, length, 4);
    putNumber(bytes, 0x654C664C, 4);
    putNumber(bytes, 1, 4);
    putNumber(bytes, parts.seconds, 4);
    putNumber(bytes, parts.seconds, 4);
    putNumber(bytes, parts.id, 4);
    putNumber(bytes, parts.type, 2);
    putNumber(bytes, static_cast<std::uint32_t>(parts.inserts.size()), 2);
    putNumber(bytes, 0, 4); // category and flags
    putNumber(bytes, 0, 4); // closing record
    putNumber(bytes, offset, 4);
    putNumber(bytes, 0, 4);
    putNumber(bytes, offset, 4);
    putNumber(bytes, 0, 4);
    putNumber(bytes, offset, 4);
    bytes += names + inserts;
    putNumber(bytes, length, 4);
    return bytes;
}
