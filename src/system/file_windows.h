#pragma once

#include "system/file_descriptor.h"

#include <csignal>
#include <cstddef>
#include <cstdint>
#include <vector>

/// Parts of a file that is being written, as memory that the system shares with it: windows of
/// one size, each of which shows a part of the file.
///
/// A store may fail: a file system that writes each change to new blocks has no room for it, the
/// file was cut, the disk is broken. The system then sends a signal, and would end the program.
/// Here the store and all after it go to memory of the program's own instead, so that the file
/// stays as it was just before: what a kill at that moment leaves. `failed` tells of it, and `goOn`
/// comes back to the file.
class FileWindows {
public:
    /// `file` is open for reading and writing, and stays open; `windowBytes` is a whole number of
    /// the system's pages. Raises 7.
    FileWindows(const FileDescriptor& file, std::size_t windows, std::size_t windowBytes);
    ~FileWindows();
    FileWindows(const FileWindows&) = delete;
    FileWindows& operator=(const FileWindows&) = delete;

    /// Where the first window lies; the others follow it.
    char* memory() const { return base_; }

    /// Shows another part of the file in a window, numbered from 0: the bytes from `offset`, a
    /// whole number of windows. Raises 7, and then the window shows nothing.
    void show(std::size_t window, std::uint64_t offset);

    /// Whether a store has not reached the file, and those after it have not either.
    bool failed() const { return failed_ != 0; }

    /// Forgets what did not reach the file, and comes back to it. Raises 7.
    void goOn();

    /// The memory may be looked at and changed on this thread while one of these lives.
    class Use {
    public:
        explicit Use(FileWindows& windows);
        ~Use();
        Use(const Use&) = delete;
        Use& operator=(const Use&) = delete;

    private:
        FileWindows* before_;
    };

    /// Takes the store at an address away from the file. False when it lies in no window. For the
    /// handler of the signal.
    bool takeFault(char* at);

private:
    static constexpr std::int64_t nothing = -1;

    bool map(std::size_t window) const;

    int file_;
    std::size_t windowBytes_;
    std::size_t pageBytes_;             ///< of the system
    std::vector<std::int64_t> offsets_; ///< of what each window shows, or `nothing`
    char* base_ = nullptr;
    volatile std::sig_atomic_t failed_ = 0;
};
