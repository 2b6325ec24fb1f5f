#pragma once

#include "system/file_descriptor.h"

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace timeline {

/// What may be written to temporary files altogether, by all that is read at a time: what somebody
/// sent may unpack to more than any disk holds.
class Spooling {
public:
    /// So many bytes in so many files, and so many bytes are left free on their disk.
    struct Limits {
        std::uint64_t bytes = std::uint64_t{64} << 30;
        std::uint64_t files = 512;
        std::uint64_t leftFree = std::uint64_t{256} << 20;
    };

    explicit Spooling(Limits limits) : limits_(limits) {}
    Spooling() : Spooling(Limits()) {}

    const Limits& limits() const { return limits_; }

private:
    friend class SpooledFile;

    Limits limits_;
    std::uint64_t bytes_ = 0;
    std::uint64_t files_ = 0;
};

/// A temporary file without a name in the making. One that is not taken leaves the room that it
/// took to others.
class SpooledFile {
public:
    /// Raises 7 past the number of files and 61 where the disk has no room, with the reason as a
    /// text; 76, 70, 57.
    explicit SpooledFile(Spooling& spooling);
    ~SpooledFile();
    SpooledFile(const SpooledFile&) = delete;
    SpooledFile& operator=(const SpooledFile&) = delete;

    /// Raises 61, with the reason as a text, where the limit or the disk has no room for it; 57.
    void append(std::string_view bytes);

    std::uint64_t size() const { return size_; }
    const FileDescriptor& file() const { return file_; }

    /// The file, to be read; this can be used no more.
    FileDescriptor take();

private:
    void lookForRoom();

    Spooling& spooling_;
    FileDescriptor file_;
    std::uint64_t size_ = 0;
    std::uint64_t lookedAt_ = 0; ///< the size at which the disk was looked at
};

} // namespace timeline
