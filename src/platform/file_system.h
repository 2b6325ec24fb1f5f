#pragma once

#include "platform/text_stream.h"
#include "runtime/dates.h"

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

/// What a folder listing or a look at one file tells.
struct FileInfo {
    std::string name; ///< without folder
    std::int64_t size = 0;
    Date created;  ///< local time of the server
    Date modified; ///< local time of the server
    bool folder = false;
    bool readOnly = false;
};

struct DiskSpace {
    std::int64_t freeBytes = 0; ///< available to the caller
    std::int64_t totalBytes = 0;
};

enum class SpecialFolder { windows = 0, temporary = 2 };

/// The files of the machine under diagnosis.
///
/// Paths are Windows paths in UTF-8; `\` and `/` both separate; a path without a drive is taken
/// from the current folder, one with a drive alone from that drive's; names match without regard to
/// case; a path can't climb out of its drive. The empty path leads nowhere: it raises 52. Any call
/// may raise 70 (permission denied) or 57 (device I/O error).
class FileSystem {
public:
    virtual ~FileSystem() = default;

    /// Whether a plain file, or a folder, is there to be seen. False for the empty path.
    virtual bool fileExists(const std::string& path) const = 0;
    virtual bool folderExists(const std::string& path) const = 0;

    /// A file's facts. Raises 53 (file not found), also for a folder.
    virtual FileInfo file(const std::string& path) const = 0;

    /// The size of all files in a folder and below. Raises 76 (path not found).
    virtual std::int64_t folderSize(const std::string& path) const = 0;

    /// Files and folders in a folder, sorted by name, without "." and "..". Raises 76.
    virtual std::vector<FileInfo> entries(const std::string& folder) const = 0;

    /// Names of the plain files that match a pattern such as `C:\Logs\diag_*.txt`, sorted; `*` and
    /// `?` in the last part alone. `?` is one character, or none before a point and at the end;
    /// "*.*" is every name, and any name ends in a point where a pattern asks for one before signs
    /// alone. None, or no such folder, is an empty list. Too many may raise 7.
    virtual std::vector<std::string> matching(const std::string& pattern) const = 0;

    /// Makes the last level. Raises 58 (a folder or a file exists), 76 (its parent is missing).
    virtual void createFolder(const std::string& path) = 0;

    /// As `createFolder`, for this user alone where the machine knows of users.
    virtual void createPrivateFolder(const std::string& path) = 0;

    /// Removes an empty folder; a link to one is none. Raises 76; 70 for one that holds something
    /// and for the root of a drive.
    virtual void removeFolder(const std::string& path) = 0;

    /// Copies over a plain file at `target`, or makes one, as old as the source, as read-only, and
    /// of a use that the user's own settings restrict. Raises 53, 76, 61 (disk full), 70 for a
    /// read-only target, one that is no plain file and the source itself.
    virtual void copyFile(const std::string& source, const std::string& target) = 0;

    /// Raises 53, also for a folder; 70 for a read-only file.
    virtual void deleteFile(const std::string& path) = 0;

    /// Makes a file an ordinary one that may be written. Raises 53, also for a folder.
    virtual void clearAttributes(const std::string& path) = 0;

    /// Raises 53, 76.
    virtual std::unique_ptr<TextReader> openForReading(const std::string& path) const = 0;

    /// Opens for writing at the end, and makes the file when it is missing. Raises 76; 70 for a
    /// read-only file and for what is no plain file.
    virtual std::unique_ptr<TextWriter> openForAppending(const std::string& path) = 0;

    /// Makes the file, over an existing one. Raises as `openForAppending`.
    virtual std::unique_ptr<TextWriter> createTextFile(const std::string& path) = 0;

    /// A folder that is there.
    virtual std::string specialFolder(SpecialFolder folder) const = 0;

    /// The long form of a path with shortened names; the path itself where nothing is shortened.
    virtual std::string longPathName(const std::string& path) const = 0;

    /// "C:" of "C:\x"; the empty text when the path names no drive.
    virtual std::string driveName(const std::string& path) const = 0;

    /// Of the drive such as "C:\". Raises 76.
    virtual DiskSpace diskSpace(const std::string& drive) const = 0;

    /// Where relative paths and started processes begin: in the folder of the current drive. Each
    /// drive has one, first its root; another drive's does not make it the current one. Raise 68
    /// for a drive that is not there, 76 for a folder.
    virtual void changeDrive(const std::string& drive) = 0;
    virtual void changeFolder(const std::string& path) = 0;
};
