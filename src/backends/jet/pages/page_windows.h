#pragma once

#include "backends/jet/format.h"
#include "system/file_windows.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace jet {

/// The pages of a file that is being written, as memory (`FileWindows`): sixteen
/// parts of the file at a time.
class PageWindows {
public:
    /// `file` is open for reading and writing, and stays open. Raises 7.
    explicit PageWindows(const FileDescriptor& file) : memory_(file, mostWindows, windowBytes) {}

    /// The 4096 bytes of a page. They stay where they are until pages in fifteen other parts of a
    /// megabyte were asked for. Raises 7.
    char* page(std::uint32_t number)
    {
        const std::uint32_t part = number / pagesPerWindow;
        const unsigned window = windowOf_[part] != 0 ? windowOf_[part] - 1u : openWindow(part);
        windows_[window].used = ++uses_;
        return memory_.memory() + window * windowBytes +
               std::size_t{number % pagesPerWindow} * pageSize;
    }

    /// Writes bytes by a call in place of a store, as `FileWindows::write`.
    std::size_t write(std::string_view bytes, std::uint64_t at) { return memory_.write(bytes, at); }

    /// Cuts the file, as `FileWindows::cut`.
    bool cut(std::uint64_t bytes) { return memory_.cut(bytes); }

    /// Whether a store has not reached the file, and those after it have not either.
    bool failed() const { return memory_.failed(); }

    /// Forgets what did not reach the file, and comes back to it. Raises 7.
    void goOn() { memory_.goOn(); }

    /// Pages may be looked at and changed on this thread while one of these lives.
    class Use {
    public:
        explicit Use(PageWindows& windows) : use_(windows.memory_) {}

    private:
        FileWindows::Use use_;
    };

private:
    static constexpr std::uint32_t pagesPerWindow = 256;
    static constexpr std::size_t windowBytes = pagesPerWindow * pageSize;
    static constexpr std::size_t mostWindows = 16;

    struct Window {
        std::uint32_t part = 0;
        std::uint64_t used = 0; ///< when it was last asked for; 0 for one that was not
    };

    unsigned openWindow(std::uint32_t part);

    FileWindows memory_;
    std::array<Window, mostWindows> windows_{};
    std::array<std::uint8_t, formatFilePages / pagesPerWindow> windowOf_{}; ///< from 1; 0: none
    std::uint64_t uses_ = 0;
};

} // namespace jet
