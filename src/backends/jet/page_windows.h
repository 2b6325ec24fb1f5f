#pragma once

#include "backends/jet/format.h"

#include <array>
#include <csignal>
#include <cstddef>
#include <cstdint>

namespace jet {

/// Parts of a file that is being written, as memory that the system shares with it.
///
/// A store may fail: a file system that writes each change to a new place has no room for it, the
/// file was cut, the disk is broken. The system then sends SIGBUS, and would end the program. Here
/// the store and all after it go to memory of the program's own instead, so that the file stays as
/// it was just before: what a kill at that moment leaves. `failed` tells of it, and `goOn` comes
/// back to the file.
class PageWindows {
public:
    /// `file` is open for reading and writing, and stays open. Raises 7.
    explicit PageWindows(int file);
    ~PageWindows();
    PageWindows(const PageWindows&) = delete;
    PageWindows& operator=(const PageWindows&) = delete;

    /// The 4096 bytes of a page. They stay where they are until pages in fifteen other parts of a
    /// megabyte were asked for. Raises 7.
    char* page(std::uint32_t number)
    {
        const std::uint32_t part = number / pagesPerWindow;
        const unsigned place = places_[part] != 0 ? places_[part] - 1u : openWindow(part);
        windows_[place].used = ++uses_;
        return base_ + place * windowBytes + std::size_t{number % pagesPerWindow} * pageSize;
    }

    /// Whether a store has not reached the file, and those after it have not either.
    bool failed() const { return failed_ != 0; }

    /// Forgets what did not reach the file, and comes back to it. Raises 7.
    void goOn();

    /// Pages may be looked at and changed on this thread while one of these lives.
    class Use {
    public:
        explicit Use(PageWindows& windows);
        ~Use();
        Use(const Use&) = delete;
        Use& operator=(const Use&) = delete;

    private:
        PageWindows* before_;
    };

    /// Takes the store at a place away from the file. False when the place is in no window. For
    /// the handler of the signal.
    bool takeFault(char* at);

private:
    static constexpr std::uint32_t pagesPerWindow = 256;
    static constexpr std::size_t windowBytes = pagesPerWindow * pageSize;
    static constexpr std::size_t mostWindows = 16;

    struct Window {
        std::uint32_t part = 0;
        std::uint64_t used = 0; ///< when it was last asked for; 0 for one that was not
    };

    unsigned openWindow(std::uint32_t part);
    bool show(std::size_t place) const;

    int file_;
    char* base_ = nullptr;
    std::array<Window, mostWindows> windows_{};
    std::array<std::uint8_t, formatFilePages / pagesPerWindow> places_{}; ///< from 1
    std::uint64_t uses_ = 0;
    volatile std::sig_atomic_t failed_ = 0;
};

} // namespace jet
