#pragma once

#include "system/file_descriptor.h"

#include <cstdint>
#include <optional>
#include <string>

enum class FileKind {
    file, ///< a plain one
    folder,
    link,  ///< only where it is not followed
    pipe,  ///< with a name, whose bytes come once; one of Windows' is `other`
    other, ///< a device, a socket and their like
};

/// A moment since the beginning of 1970, world time.
struct FileMoment {
    std::int64_t seconds = 0;
    std::int64_t nanoseconds = 0;

    bool operator==(const FileMoment&) const = default;
};

/// Two names with the same one lead to the same file.
struct FileIdentity {
    std::uint64_t device = 0;
    std::uint64_t number = 0;

    bool operator==(const FileIdentity&) const = default;
};

/// What the system tells of a file or a folder without reading it.
struct FileFacts {
    FileKind kind = FileKind::other;
    FileIdentity identity;
    std::int64_t size = 0;       ///< in bytes
    FileMoment modified;         ///< when its bytes changed last
    FileMoment changed;          ///< when its bytes or what is told here changed last
    std::uint64_t hardLinks = 1; ///< how many names lead to it
    std::uint64_t owner = 0;     ///< the system's number of the user
    bool readOnly = false;       ///< its owner may not write to it, whoever runs the program
};

/// Of an open file. Raises 57.
FileFacts factsOf(const FileDescriptor& file);

/// Of what a path of the machine leads to, through any links; nothing where nothing is there, or
/// nobody may see it.
std::optional<FileFacts> factsOf(const std::string& path);

/// Of what a path of the machine names, which may be a link; nothing as above.
std::optional<FileFacts> unfollowedFactsOf(const std::string& path);

/// Whether a path of the machine leads to a plain file.
bool isPlainFile(const std::string& path);

/// Whether a file belongs to the user as whom the program runs.
bool isOurs(const FileFacts& facts);

/// Sets when what a path of the machine leads to was modified and read last. False where the system
/// refuses.
bool setTimes(const std::string& path, FileMoment moment);

/// Whether the program may write to a file, or into a folder, as it runs now: that is not always as
/// the one who started it may.
bool mayWrite(const std::string& path);
