#include "system/file_windows.h"

#include "runtime/run_time_error.h"
#include "system/file_bytes.h"
#include "system/windows/windows_calls.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <vector>

/// Memory of the program's own, of which the system tells what was stored to: that is written to
/// the file by calls, whose failures can be told. A view of the file would keep it from being cut.
class FileWindows::Memory {
public:
    Memory(const FileDescriptor& file, std::size_t windows, std::size_t windowBytes);
    ~Memory()
    {
        writeBack();
        ::VirtualFree(base_, 0, MEM_RELEASE);
    }
    Memory(const Memory&) = delete;
    Memory& operator=(const Memory&) = delete;

    char* base() const { return base_; }
    void show(std::size_t window, std::uint64_t offset);
    std::size_t write(std::string_view bytes, std::uint64_t at);
    void goOn();

    bool failed()
    {
        writeBack();
        return failed_;
    }

    /// Writes what was stored, unless a store has failed before.
    void writeBack();

private:
    static constexpr std::int64_t nothing = -1;

    std::size_t size() const { return offsets_.size() * windowBytes_; }
    bool read(std::size_t window);
    bool writePage(char* page);
    void forgetStores(char* from, std::size_t bytes);

    const FileDescriptor& file_;
    std::size_t windowBytes_;
    std::size_t pageBytes_ = 0;         ///< of the system
    std::vector<std::int64_t> offsets_; ///< of what each window shows, or `nothing`
    std::vector<void*> stored_;         ///< room for the addresses of all pages
    char* base_ = nullptr;
    bool failed_ = false;
};

FileWindows::Memory::Memory(const FileDescriptor& file, std::size_t windows,
                            std::size_t windowBytes)
    : file_(file), windowBytes_(windowBytes), offsets_(windows, nothing)
{
    SYSTEM_INFO facts{};
    ::GetSystemInfo(&facts);
    pageBytes_ = facts.dwPageSize;
    base_ = static_cast<char*>(::VirtualAlloc(
        nullptr, size(), MEM_RESERVE | MEM_COMMIT | MEM_WRITE_WATCH, PAGE_READWRITE));
    if (base_ == nullptr) throw RunTimeError(runTimeErrors::outOfMemory);
    stored_.resize(size() / pageBytes_);
}

void FileWindows::Memory::show(std::size_t window, std::uint64_t offset)
{
    writeBack();
    offsets_[window] = static_cast<std::int64_t>(offset);
    if (read(window)) return;
    offsets_[window] = nothing;
    throw RunTimeError(runTimeErrors::outOfMemory);
}

std::size_t FileWindows::Memory::write(std::string_view bytes, std::uint64_t at)
{
    writeBack();
    const std::size_t written = writeBytesAt(file_, bytes, at);
    const int error = errno;
    for (std::size_t window = 0; window < offsets_.size(); ++window) {
        if (offsets_[window] == nothing) continue;
        const auto begin = static_cast<std::uint64_t>(offsets_[window]);
        const std::uint64_t from = std::max(at, begin);
        const std::uint64_t to = std::min(at + written, begin + windowBytes_);
        if (from >= to) continue;
        char* place = base_ + window * windowBytes_ + (from - begin);
        std::memcpy(place, bytes.data() + (from - at), to - from);
        if (!failed_) forgetStores(place, to - from);
    }
    errno = error;
    return written;
}

void FileWindows::Memory::goOn()
{
    failed_ = false;
    for (std::size_t window = 0; window < offsets_.size(); ++window)
        if (offsets_[window] != nothing && !read(window)) {
            failed_ = true;
            throw RunTimeError(runTimeErrors::outOfMemory);
        }
}

/// Fills a window from the file: with zeros behind its end. False where that can't be read.
bool FileWindows::Memory::read(std::size_t window)
{
    char* place = base_ + window * windowBytes_;
    try {
        const std::size_t count =
            readAt(file_, place, windowBytes_, static_cast<std::uint64_t>(offsets_[window]));
        std::memset(place + count, 0, windowBytes_ - count);
    } catch (const RunTimeError&) {
        return false;
    }
    forgetStores(place, windowBytes_);
    return true;
}

void FileWindows::Memory::forgetStores(char* from, std::size_t bytes)
{
    ::ResetWriteWatch(from, bytes);
}

void FileWindows::Memory::writeBack()
{
    if (failed_) return;
    ULONG_PTR count = stored_.size();
    DWORD pageBytes = 0;
    if (::GetWriteWatch(WRITE_WATCH_FLAG_RESET, base_, size(), stored_.data(), &count,
                        &pageBytes) != 0)
        failed_ = true;
    for (ULONG_PTR i = 0; i < count && !failed_; ++i)
        failed_ = !writePage(static_cast<char*>(stored_[i]));
}

/// Writes one page; one that the file does not have any more is not made anew.
bool FileWindows::Memory::writePage(char* page)
{
    const auto distance = static_cast<std::size_t>(page - base_);
    const std::int64_t offset = offsets_[distance / windowBytes_];
    if (offset == nothing) return true;
    const std::uint64_t at = static_cast<std::uint64_t>(offset) + distance % windowBytes_;
    LARGE_INTEGER end{};
    if (::GetFileSizeEx(handleOf(file_), &end) == 0) return false;
    const auto fileBytes = static_cast<std::uint64_t>(end.QuadPart);
    if (at >= fileBytes) return false;
    const std::size_t bytes =
        static_cast<std::size_t>(std::min<std::uint64_t>(pageBytes_, fileBytes - at));
    return writeBytesAt(file_, {page, bytes}, at) == bytes;
}

namespace {

/// Which memory this thread is at; null for none.
thread_local FileWindows::Memory* inUse = nullptr;

} // namespace

FileWindows::FileWindows(const FileDescriptor& file, std::size_t windows, std::size_t windowBytes)
    : memory_(std::make_unique<Memory>(file, windows, windowBytes)), base_(memory_->base())
{}

FileWindows::~FileWindows() = default;

void FileWindows::show(std::size_t window, std::uint64_t offset)
{
    memory_->show(window, offset);
}

std::size_t FileWindows::write(std::string_view bytes, std::uint64_t at)
{
    return memory_->write(bytes, at);
}

bool FileWindows::failed() const
{
    return memory_->failed();
}

void FileWindows::goOn()
{
    memory_->goOn();
}

FileWindows::Use::Use(FileWindows& windows) : before_(inUse)
{
    inUse = windows.memory_.get();
}

FileWindows::Use::~Use()
{
    inUse->writeBack();
    inUse = before_;
}
