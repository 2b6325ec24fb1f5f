#pragma once

#include "backends/jet/pages.h"

#include <cstdint>
#include <string>

namespace jet {

/// A database file whose pages are memory that the system shares with the file.
///
/// What is stored in a page is in the file at once, with no call to the system: a program that is
/// killed loses none of it. The file grows by runs of pages whose space the file system grants
/// beforehand, so that a full disk is an error of `grow` and never a fault of a store. The memory
/// of pages written long ago goes back to the system.
class PageFile {
public:
    /// Opens a file and keeps other writers out. Raises 3024, 3045, 3051, and 3343 for a file that
    /// is too large or holds no whole page.
    explicit PageFile(const std::string& path);
    ~PageFile();
    PageFile(const PageFile&) = delete;
    PageFile& operator=(const PageFile&) = delete;

    /// How many pages are in use; the file may be longer, with empty pages that nothing leads to.
    std::uint32_t count() const { return count_; }

    Pages pages() const { return Pages({base_, std::size_t{count_} * pageSize}); }

    /// The 4096 bytes of a page in use, to be changed in place.
    char* page(std::uint32_t number) const { return base_ + std::size_t{number} * pageSize; }

    /// Makes sure that `more` pages can be taken. Raises 3026, 3183, and then nothing has changed.
    void reserve(std::uint32_t more);

    /// Takes the page behind the last one, an empty data page. Raises as `reserve`.
    std::uint32_t take();

    /// Whether a page is one that the file grew by and nothing was stored in: an empty data page
    /// that belongs to nothing, or zeros.
    bool isEmpty(std::uint32_t number) const;

    /// Gives back pages at the end, which are empty.
    void giveBack(std::uint32_t count) { count_ -= count; }

    /// Cuts off what the file holds behind the pages in use: empty pages, a part of a page.
    void trim();

    /// Replaces a page in one step that a kill can't divide. Raises 57.
    void replace(std::uint32_t number, const char* content);

    /// Lets the memory of all pages go; they come back when they are looked at.
    void releaseMemory();

private:
    void readSize();
    void map(const std::string& path);
    void extendTo(std::uint32_t pages);
    bool extendBy(std::uint64_t run);

    int file_ = -1;
    char* base_ = nullptr;
    std::uint32_t count_ = 0;    ///< pages in use
    std::uint32_t extent_ = 0;   ///< pages that the file has room for
    std::uint32_t released_ = 0; ///< pages before this one were let go when the file grew past them
};

} // namespace jet
