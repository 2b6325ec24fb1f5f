#pragma once

#include "backends/jet/pages/page_windows.h"
#include "backends/jet/pages/pages.h"
#include "system/file_descriptor.h"

#include <chrono>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>

namespace jet {

/// A database file whose pages are memory that the system shares with the file.
///
/// What is stored in a page is in the file at once, with no call to the system: a program that is
/// killed loses none of it. The file grows by runs of pages whose space the file system grants
/// beforehand, so that a full disk is as a rule an error of `reserve`. Where a store fails all the
/// same, it and all after it are kept from the file, which `failed` tells: the file is then as a
/// kill would have left it. A few megabytes of the file are in memory at a time.
class PageFile final : public PageSource {
public:
    using Moment = std::chrono::steady_clock::time_point;

    /// Opens a file and keeps other writers out; `now` tells how long a refusal of the file system
    /// took. Raises 3024, 3045, 3051, and 3343 for a file that is too large or holds no whole page.
    explicit PageFile(const std::string& path,
                      std::function<Moment()> now = std::chrono::steady_clock::now);
    ~PageFile() override;
    PageFile(const PageFile&) = delete;
    PageFile& operator=(const PageFile&) = delete;

    /// How many pages are in use; the file may be longer, with empty pages that nothing leads to.
    std::uint32_t count() const { return count_; }

    Pages pages() const { return Pages(*this, count_); }

    /// The 4096 bytes of a page in use, to be changed in place while a PageWindows::Use lives. They
    /// stay until some fifteen others were asked for. Raises 7.
    char* page(std::uint32_t number) const { return windows_->page(number); }
    const char* look(std::uint32_t number) const override { return page(number); }

    PageWindows& windows() { return *windows_; }

    /// Whether stores have been kept from the file.
    bool failed() const { return windows_->failed(); }

    /// Forgets the stores that were kept from the file. Raises 7.
    void goOn() { windows_->goOn(); }

    /// Raises what made a store fail: 3343 when the file was cut, else 3026.
    [[noreturn]] void raiseFailure() const;

    /// Makes sure that `more` pages can be taken. Raises 3026, 3183, and then nothing has changed.
    /// After eight refusals of the file system in a row it is asked more and more rarely, but as
    /// soon as a while has passed in which the latest would fit many times.
    void reserve(std::uint32_t more);

    /// Takes the page behind the last one, an empty data page. Raises as `reserve`.
    std::uint32_t take();

    /// Whether a page is one that the file grew by and nothing was stored in: an empty data page
    /// that belongs to nothing, or zeros.
    bool isEmpty(std::uint32_t number) const;

    /// Gives back pages at the end, which are empty.
    void giveBack(std::uint32_t count) { count_ -= count; }

    /// Cuts off what the file holds behind the pages in use: empty pages, a part of a page. A file
    /// that another program cut before stays as it is.
    void trim();

    /// Replaces a page in one step that a kill can't divide. Raises 57, 3026.
    void replace(std::uint32_t number, const char* content);

private:
    void readSize();
    bool wasCut() const;
    void extendTo(std::uint32_t pages);
    bool extendBy(std::uint64_t run);
    [[noreturn]] void raiseRefused(Moment begun);

    std::function<Moment()> now_;
    FileDescriptor file_;
    mutable std::optional<PageWindows> windows_; ///< none until the file was opened
    std::uint32_t count_ = 0;                    ///< pages in use
    std::uint32_t extent_ = 0;                   ///< pages that the file has room for
    int refusals_ = 0;                           ///< of the file system, in a row
    int passedOver_ = 0;                         ///< extensions not to be tried before the next one
    Moment askedAgain_{};                        ///< from then on they are tried all the same
};

} // namespace jet
