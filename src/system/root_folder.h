#pragma once

#include "system/file_descriptor.h"
#include "system/file_facts.h"
#include "system/file_opening.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

/// How much a file system holds, in bytes.
struct FileSystemRoom {
    std::int64_t free = 0; ///< for this user
    std::int64_t total = 0;
};

/// A folder of the machine, held open, and what lies below it.
///
/// Paths are names parted by "/", and the empty one is the folder itself. Whatever is asked of a
/// path, no link and no ".." leads out of the folder: what would raises 70, as an absolute link
/// does. A name is looked up in the act that uses it, so that nobody can exchange it in between.
/// The folder stays the one that was opened, whatever becomes of its name.
class RootFolder {
public:
    enum class Bounds {
        beneath, ///< links are followed within the folder alone
        machine, ///< links are followed anywhere: for what a person named, or we installed
    };

    /// `path` is one of the machine that a person named: it is reached through any links. Raises 76
    /// for what is no folder, 70.
    explicit RootFolder(const std::string& path, Bounds bounds = Bounds::beneath);

    /// A folder below as a root of its own. Raises 76, 70.
    RootFolder below(const std::string& path) const;

    /// The same; nothing when there is no such folder. Raises 70.
    std::optional<RootFolder> belowIfThere(const std::string& path) const;

    /// The descriptor, for the calls of the system that take one.
    int descriptor() const { return folder_->get(); }

    /// Where a path lies on the machine, for the eyes of a person: a name can lead elsewhere later.
    std::string shown(const std::string& path) const;

    /// Where a path lies on the machine, the links below the folder resolved; what is not there
    /// keeps its name. For other programs and libraries that take names. Raises 70.
    std::string machinePath(const std::string& path) const;

    /// A path with the names in the case that they have on the disk: the one as given where it is
    /// there, else the first that differs in case alone. Raises 70 for a link that leads out.
    std::string pathIgnoringCase(const std::vector<std::string>& names) const;

    /// Opens a plain file, and nothing else, at once. Raises `missing` when it is not there, 58 for
    /// a name that had to be free, 70, 61, 57.
    FileDescriptor openFile(const std::string& path, const FileOpening& opening, int missing) const;

    /// The same; not open where the user may not open it so.
    FileDescriptor openIfAllowed(const std::string& path, const FileOpening& opening,
                                 int missing) const;

    /// The folder itself, to be locked. The programs that are started meanwhile get it too. Raises
    /// 76, 70, 57.
    FileDescriptor openToPassOn() const;

    /// Of what a path leads to; nothing when nothing is there. Raises 70, 57.
    std::optional<FileFacts> facts(const std::string& path) const;

    /// Of the last name itself, which may be a link; nothing when nothing is there. Raises 70, 57.
    std::optional<FileFacts> unfollowedFacts(const std::string& path) const;

    /// When what a path leads to came to be; nothing where the file system does not know, or
    /// nothing is there.
    std::optional<FileMoment> birth(const std::string& path) const;

    /// Of the file system where a path leads to. Raises 76, 70, 57.
    FileSystemRoom room(const std::string& path) const;

    bool isFile(const std::string& path) const;   ///< false also where no way leads
    bool isFolder(const std::string& path) const; ///< false also where no way leads

    /// Names in a folder without "." and "..", in no order. Raises 76, 70.
    std::vector<std::string> names(const std::string& path) const;

    /// The size of all files in a folder and below; links are not followed. Raises 76, 70.
    std::int64_t size(const std::string& path) const;

    /// Makes the last name. Raises 58, 76, 70.
    void makeFolder(const std::string& path, OthersMay others = OthersMay::write) const;

    /// Makes a folder with those above it, as far as they are missing. Raises 76, 70.
    void makeFolders(const std::string& path) const;

    /// Gives what bears a name another one. Raises 76, 58 for a folder that is there already and
    /// not empty, 70.
    void rename(const std::string& from, const std::string& to) const;

    /// Removes a file or a link, never through a link. Raises 53, 70.
    void removeFile(const std::string& path) const;

    /// Removes an empty folder, never through a link. Raises 76, 70.
    void removeEmptyFolder(const std::string& path) const;

    /// Lets the owner of a plain file read and write it, and others as far as the user's settings
    /// leave new files to them. Raises 53, 70.
    void allowWriting(const std::string& path) const;

    /// Removes a folder with what it holds, never through a link. Raises 76, and 70 at the first
    /// file that is read-only: what came before it is gone.
    void removeFolder(const std::string& path) const;

private:
    RootFolder(std::shared_ptr<FileDescriptor> folder, std::string path, Bounds bounds);

    /// How this folder's own calls open what lies below it.
    struct Way;
    Way way() const;

    /// Raises `missing` or what else `errno` stands for, with the path where that tells more.
    [[noreturn]] void fail(const std::string& path, int missing) const;

    std::shared_ptr<FileDescriptor> folder_;
    std::string path_;
    Bounds bounds_;
};

/// The last name of a path, and what stands before it without a separator at its end.
std::string lastNameOf(const std::string& path);
std::string folderPathOf(const std::string& path);

/// Opens a plain file of the machine, and nothing else, at once: one that a person named, or we
/// installed. Raises as `RootFolder::openFile`.
FileDescriptor openMachineFile(const std::string& path, const FileOpening& opening, int missing);

/// Opens a pipe that a person named, to be read, and waits for whoever writes to it. Raises 70 for
/// what is no pipe, and `missing`.
FileDescriptor openMachinePipe(const std::string& path, int missing);
