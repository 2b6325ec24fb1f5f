#pragma once

#include "system/file_bytes.h"
#include "system/file_descriptor.h"
#include "system/file_facts.h"
#include "system/file_opening.h"
#include "system/root_folder.h"

#include <cstddef>
#include <string>
#include <string_view>

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
    ReplacementFile(const RootFolder& root, const std::string& target,
                    OthersMay others = OthersMay::write);
    ~ReplacementFile();

    ReplacementFile(const ReplacementFile&) = delete;
    ReplacementFile& operator=(const ReplacementFile&) = delete;

    /// The open file, to be read and written; not open once it was closed.
    const FileDescriptor& file() const { return file_; }

    /// Gives the file what another one allows, and its owner where the system lets us.
    void resemble(const FileDescriptor& model);

    /// Raises 61, 57.
    void write(std::string_view bytes) { writeAll(file_, bytes); }

    /// Ends the writing before `commit` does: what the system still had to say has been said.
    /// Raises 61, 57.
    void close();

    /// Puts the file in the target's place, over what stands there, be it a link; `synced`: safe on
    /// the disk first. Raises 61, 57, 70.
    void commit(bool synced);

private:
    friend void copyWholeFile(const FileDescriptor& source, const RootFolder& root,
                              const std::string& target);

    /// `mode` is what the system is asked for.
    ReplacementFile(const RootFolder& root, const std::string& target, unsigned mode);

    RootFolder folder_; ///< the target's
    std::string target_;
    std::string temporary_;
    FileDescriptor file_;
};

/// Copies an open plain file whole, with its modified time and its mode as far as the user's
/// settings leave it to new files, over what stands at `target`. Raises 76 for the target's folder,
/// 70, 61, 57.
void copyWholeFile(const FileDescriptor& source, const RootFolder& root, const std::string& target);

/// Whether a name is one that a replacement file has until it is in its place.
bool isReplacementFile(std::string_view name);

/// Whether a file with such a name, which has these facts, is one that a program of ours that was
/// killed has left: no program of this machine owns it any more, or it is older than an hour.
bool isLeftReplacementFile(std::string_view name, const FileFacts& facts);

/// Removes from a folder what programs of ours that were killed have left of their replacement
/// files. What can't be removed stays.
void sweepReplacementFiles(const RootFolder& root, const std::string& folder);

/// Whether what bears a process's number in its name, and has these facts, is ours and owned by no
/// program any more.
bool isLeftBehind(std::string_view process, const FileFacts& facts);
