#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

#include "system/whole_file.h"

namespace cabmaker {

/// A file that appears under its name only when it is complete.
///
/// Until `publish` it has a temporary name in the same folder; an object that goes away before that
/// takes its bytes with it. Every call raises 61 (disk full), 70, 76 or 57 and names the file.
class OutputFile {
public:
    /// `path` is a path of the machine. Nothing there is touched before `publish`.
    explicit OutputFile(std::string path);

    void append(std::span<const std::uint8_t> bytes);
    void append(std::string_view text);

    /// Replaces bytes that have been written before.
    void overwrite(std::uint64_t offset, std::span<const std::uint8_t> bytes);

    /// Reads bytes back that have been written before.
    void readBack(std::uint64_t offset, std::span<std::uint8_t> bytes) const;

    /// Bytes written so far.
    std::uint64_t size() const { return size_; }

    /// No more bytes: what the system still had to say of them has been said.
    void close();

    /// The name that the file is to have.
    const std::string& path() const { return path_; }

    /// Closes the file and gives it its name, in place of a file that had it.
    void publish();

private:
    void write(std::uint64_t offset, std::span<const std::uint8_t> bytes);

    std::string path_;
    ReplacementFile file_;
    std::uint64_t size_ = 0;
};

} // namespace cabmaker
