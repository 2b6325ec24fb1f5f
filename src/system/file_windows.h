#pragma once

#include "system/file_descriptor.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string_view>

/// Parts of a file that is being written, as memory: windows of one size, each of which shows a
/// part of the file. What is stored there is in the file at once.
///
/// A store may fail: a file system that writes each change to new blocks has no room for it, the
/// file was cut, the disk is broken. The store and all after it then stay in memory of the
/// program's own, so that the file is as it was just before: what a kill at that moment leaves.
/// `failed` tells of it, and `goOn` comes back to the file.
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

    /// Writes bytes by a call in place of a store, from the offset `at` of the file on. Gives how
    /// many of them were written, as `writeBytesAt`. Windows that show the place show them.
    std::size_t write(std::string_view bytes, std::uint64_t at);

    /// Cuts the file off behind its first bytes, as `resize`: what `file_bytes.h` has may fail
    /// while a window shows the file. A store behind the end fails.
    bool cut(std::uint64_t bytes);

    /// Whether a store has not reached the file, and those after it have not either.
    bool failed() const;

    /// Forgets what did not reach the file, and comes back to it. Raises 7.
    void goOn();

    /// The memory and what it shows, as the system offers it.
    class Memory;

    /// The memory may be looked at and changed on this thread while one of these lives.
    class Use {
    public:
        explicit Use(FileWindows& windows);
        ~Use();
        Use(const Use&) = delete;
        Use& operator=(const Use&) = delete;

    private:
        Memory* before_;
    };

private:
    std::unique_ptr<Memory> memory_;
    char* base_ = nullptr;
};
