#pragma once

#include <cstdint>
#include <ctime>
#include <span>
#include <string>

#include "cabmaker/cabinet_layout.h"
#include "system/file_facts.h"

namespace cabmaker {

/// The state of a file that is going to be packed.
struct SourceFacts {
    std::uint64_t bytes = 0;
    FileMoment modified;
    FileIdentity identity; ///< another file under the same name has another one
    bool readOnly = false;

    bool operator==(const SourceFacts&) const = default;
};

/// Looks at the file at `path`, a path of the machine, which messages call `shownName`.
/// Raises 53, 70, 57, and 75 for what is not a plain file.
SourceFacts sourceFacts(const std::string& path, const std::string& shownName);

/// A time in seconds since 1970 in cabinet form: local time, whole pairs of seconds. What lies
/// outside the years 1980 to 2107 becomes their first or last moment.
CabinetTime cabinetTime(std::time_t moment);

/// Reads a file that has to stay as it was when its facts were taken: the cabinet's head, made from
/// them, would tell a lie otherwise. A file that grew, shrank, changed or is gone raises 75.
class SourceReader {
public:
    SourceReader(std::string path, std::string shownName, const SourceFacts& facts);

    /// Bytes that are still to come.
    std::uint64_t remaining() const { return remaining_; }

    /// Fills the head of `target`, and says how much of it. 0 once nothing remains.
    std::size_t read(std::span<std::uint8_t> target);

    /// After the last byte: makes sure that the file is still what it was.
    void finish();

private:
    [[noreturn]] void refuse() const;

    std::string path_;
    std::string shownName_;
    SourceFacts facts_;
    std::uint64_t remaining_;
    FileDescriptor file_;
};

} // namespace cabmaker
