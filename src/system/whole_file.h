#pragma once

#include "system/file_descriptor.h"
#include "system/root_folder.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <sys/types.h>

/// All of a plain file. Raises `missing` (53, 76 or another number) when it is not there, 70, 57,
/// and 14 for more than `limit` bytes.
std::string readWholeFile(const RootFolder& root, const std::string& path, int missing,
                          std::size_t limit = 1U << 30);

/// The same of a file of the machine that a person named, or we installed: through any links.
std::string readMachineFile(const std::string& path, int missing, std::size_t limit = 1U << 30);

/// All of an open file from where it stands. Raises as the other.
std::string readWholeFile(const FileDescriptor& file, int missing, std::size_t limit = 1U << 30);

/// A file in the making: written under a name of its own beside the target and put in its place
/// when it is whole. Without `commit` it leaves no trace.
class ReplacementFile {
public:
    /// Raises 76 when the folder is missing, 70, 61, 57.
    ReplacementFile(const RootFolder& root, const std::string& target, mode_t mode);
    ~ReplacementFile();

    ReplacementFile(const ReplacementFile&) = delete;
    ReplacementFile& operator=(const ReplacementFile&) = delete;

    int descriptor() const { return file_.get(); }

    /// Raises 61, 57.
    void write(std::string_view bytes);

    /// Puts the file in the target's place, over what stands there, be it a link; `synced`: safe on
    /// the disk first. Raises 61, 57, 70.
    void commit(bool synced);

private:
    RootFolder folder_; ///< the target's
    std::string target_;
    std::string temporary_;
    FileDescriptor file_;
};

/// Copies an open plain file whole, with its modified time and its mode as far as the user's
/// settings leave it to new files, over what stands at `target`. Raises 76 for the target's folder,
/// 70, 61, 57.
void copyWholeFile(const FileDescriptor& source, const RootFolder& root, const std::string& target);

/// Removes from a folder what programs of ours that were killed have left of their replacement
/// files: those that no program of this machine owns any more, and those that are older than an
/// hour. What can't be removed stays.
void sweepReplacementFiles(const RootFolder& root, const std::string& folder);

/// Whether what bears a process's number in its name, and has these facts, is ours and owned by no
/// program any more.
bool isLeftBehind(std::string_view process, const struct stat& facts);
