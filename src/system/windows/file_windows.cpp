#include "system/file_windows.h"

#include "runtime/run_time_error.h"
#include "system/file_bytes.h"
#include "system/windows/windows_calls.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <vector>

namespace {

LONG CALLBACK takeFailedStore(EXCEPTION_POINTERS* facts);

} // namespace

/// Views of the file. The system raises an exception for a store that fails, which would end the
/// program.
class FileWindows::Memory {
public:
    Memory(const FileDescriptor& file, std::size_t windows, std::size_t windowBytes);
    ~Memory();
    Memory(const Memory&) = delete;
    Memory& operator=(const Memory&) = delete;

    char* base() const { return base_; }
    bool failed() const { return failed_; }
    void show(std::size_t window, std::uint64_t offset);
    std::size_t write(std::string_view bytes, std::uint64_t at);
    bool cut(std::uint64_t bytes);
    void goOn();

    /// Takes the store at an address away from the file. False when it lies in no window, or in one
    /// that is memory of the program's own. For the handler of the exception.
    bool takeFault(const char* at);

private:
    static constexpr std::int64_t nothing = -1;

    enum class Holds { nothing, view, ownMemory };

    struct Window {
        char* place = nullptr;
        std::int64_t offset = nothing; ///< of what it shows
        Holds holds = Holds::nothing;
        std::size_t viewed = 0;     ///< bytes from the start that are a view
        bool addressesKept = false; ///< whether the addresses behind those are kept from others
    };

    bool keepAddresses(std::size_t windows);
    std::size_t unitsOf(const Window& window) const;
    bool view(Window& window) const;
    bool tryView(Window& window) const;
    bool mapFile(Window& window, std::size_t bytes) const;
    bool fillOwn(Window& window) const;
    void clear(Window& window) const;

    const FileDescriptor& file_;
    std::size_t windowBytes_;
    std::size_t unit_ = 0; ///< of the addresses that the system gives out
    std::vector<Window> windows_;
    char* base_ = nullptr;
    bool failed_ = false;
    void* handler_ = nullptr;
};

FileWindows::Memory::Memory(const FileDescriptor& file, std::size_t windows,
                            std::size_t windowBytes)
    : file_(file), windowBytes_(windowBytes), windows_(windows)
{
    SYSTEM_INFO facts{};
    ::GetSystemInfo(&facts);
    unit_ = facts.dwAllocationGranularity;
    constexpr int tries = 8;
    for (int tried = 0; base_ == nullptr && tried < tries; ++tried) keepAddresses(windows);
    if (base_ == nullptr) throw RunTimeError(runTimeErrors::outOfMemory);
    handler_ = ::AddVectoredExceptionHandler(1, takeFailedStore);
}

FileWindows::Memory::~Memory()
{
    ::RemoveVectoredExceptionHandler(handler_);
    for (Window& window : windows_) clear(window);
}

/// Finds room for all windows and keeps it for each by itself, as views take the place of whole
/// reservations alone. False where something else came in between.
bool FileWindows::Memory::keepAddresses(std::size_t windows)
{
    void* room = ::VirtualAlloc(nullptr, windows * windowBytes_, MEM_RESERVE, PAGE_NOACCESS);
    if (room == nullptr) return false;
    ::VirtualFree(room, 0, MEM_RELEASE);
    for (std::size_t i = 0; i < windows; ++i) {
        char* place = static_cast<char*>(room) + i * windowBytes_;
        if (::VirtualAlloc(place, windowBytes_, MEM_RESERVE, PAGE_NOACCESS) == nullptr) {
            for (Window& window : windows_) clear(window);
            return false;
        }
        windows_[i].place = place;
        windows_[i].addressesKept = true;
    }
    base_ = static_cast<char*>(room);
    return true;
}

void FileWindows::Memory::show(std::size_t window, std::uint64_t offset)
{
    Window& shown = windows_[window];
    shown.offset = static_cast<std::int64_t>(offset);
    if (failed_ ? fillOwn(shown) : view(shown)) return;
    shown.offset = nothing;
    throw RunTimeError(runTimeErrors::outOfMemory);
}

std::size_t FileWindows::Memory::write(std::string_view bytes, std::uint64_t at)
{
    const std::size_t written = writeBytesAt(file_, bytes, at);
    const int error = errno;
    for (Window& window : windows_) {
        if (window.offset == nothing) continue;
        const auto begin = static_cast<std::uint64_t>(window.offset);
        const std::uint64_t from = std::max(at, begin);
        const std::uint64_t to = std::min(at + written, begin + windowBytes_);
        if (from >= to) continue;
        // A view ends where the file did. Without a longer one a store there fails.
        if (window.holds != Holds::ownMemory)
            static_cast<void>(to <= begin + window.viewed || view(window));
        else
            std::memcpy(window.place + (from - begin), bytes.data() + (from - at), to - from);
    }
    errno = error;
    return written;
}

/// The system cuts no file that a view shows.
bool FileWindows::Memory::cut(std::uint64_t bytes)
{
    for (Window& window : windows_)
        if (window.holds == Holds::view) clear(window);
    const bool done = resize(file_, bytes);
    const int error = errno;
    // Without its view a store to a window fails.
    for (Window& window : windows_)
        if (window.offset != nothing && window.holds == Holds::nothing)
            static_cast<void>(view(window));
    errno = error;
    return done;
}

void FileWindows::Memory::goOn()
{
    failed_ = false;
    for (Window& window : windows_)
        if (window.offset != nothing && !view(window)) {
            failed_ = true;
            throw RunTimeError(runTimeErrors::outOfMemory);
        }
}

bool FileWindows::Memory::takeFault(const char* at)
{
    if (failed_ || at < base_ || at >= base_ + windows_.size() * windowBytes_) return false;
    failed_ = true;
    bool taken = true;
    for (Window& window : windows_)
        if (window.offset != nothing) taken = fillOwn(window) && taken;
    return taken;
}

/// The bytes of addresses that a window's view takes.
std::size_t FileWindows::Memory::unitsOf(const Window& window) const
{
    return (window.viewed + unit_ - 1) / unit_ * unit_;
}

/// Makes a window the file's, as far as the file goes. False where the system does not.
bool FileWindows::Memory::view(Window& window) const
{
    constexpr int tries = 3; // another thread may take the addresses in between
    for (int tried = 0; tried < tries; ++tried)
        if (tryView(window)) return true;
    clear(window);
    return false;
}

bool FileWindows::Memory::tryView(Window& window) const
{
    clear(window);
    LARGE_INTEGER end{};
    if (::GetFileSizeEx(handleOf(file_), &end) == 0) return false;
    if (window.offset < end.QuadPart) {
        const std::int64_t left = end.QuadPart - window.offset;
        const auto most = static_cast<std::int64_t>(windowBytes_);
        if (!mapFile(window, static_cast<std::size_t>(std::min(left, most)))) return false;
    }
    const std::size_t taken = unitsOf(window);
    if (taken < windowBytes_)
        window.addressesKept = ::VirtualAlloc(window.place + taken, windowBytes_ - taken,
                                              MEM_RESERVE, PAGE_NOACCESS) != nullptr;
    return window.addressesKept || taken >= windowBytes_;
}

bool FileWindows::Memory::mapFile(Window& window, std::size_t bytes) const
{
    const OwnedHandle section(
        ::CreateFileMappingW(handleOf(file_), nullptr, PAGE_READWRITE, 0, 0, nullptr));
    if (!section.isOpen()) return false;
    const auto offset = static_cast<std::uint64_t>(window.offset);
    if (::MapViewOfFileEx(section.get(), FILE_MAP_READ | FILE_MAP_WRITE,
                          static_cast<DWORD>(offset >> 32U), static_cast<DWORD>(offset), bytes,
                          window.place) == nullptr)
        return false;
    window.holds = Holds::view;
    window.viewed = bytes;
    return true;
}

/// Makes a window memory of the program's own, with what the file has there, and zeros behind its
/// end. False where there is no memory.
bool FileWindows::Memory::fillOwn(Window& window) const
{
    clear(window);
    if (::VirtualAlloc(window.place, windowBytes_, MEM_RESERVE | MEM_COMMIT, PAGE_READWRITE) ==
        nullptr)
        return false;
    window.holds = Holds::ownMemory;
    try {
        readAt(file_, window.place, windowBytes_, static_cast<std::uint64_t>(window.offset));
    } catch (const RunTimeError&) {
        return true; // zeros
    }
    return true;
}

/// Gives up what a window holds, its addresses too.
void FileWindows::Memory::clear(Window& window) const
{
    if (window.addressesKept) ::VirtualFree(window.place + unitsOf(window), 0, MEM_RELEASE);
    if (window.holds == Holds::view) ::UnmapViewOfFile(window.place);
    if (window.holds == Holds::ownMemory) ::VirtualFree(window.place, 0, MEM_RELEASE);
    window.addressesKept = false;
    window.holds = Holds::nothing;
    window.viewed = 0;
}

namespace {

/// Which memory this thread is at; null for none.
thread_local FileWindows::Memory* inUse = nullptr;

LONG CALLBACK takeFailedStore(EXCEPTION_POINTERS* facts)
{
    const EXCEPTION_RECORD& record = *facts->ExceptionRecord;
    const bool ofMemory = record.ExceptionCode == EXCEPTION_ACCESS_VIOLATION ||
                          record.ExceptionCode == EXCEPTION_IN_PAGE_ERROR;
    if (!ofMemory || record.NumberParameters < 2 || inUse == nullptr)
        return EXCEPTION_CONTINUE_SEARCH;
    const auto* at = reinterpret_cast<const char*>(record.ExceptionInformation[1]);
    return inUse->takeFault(at) ? EXCEPTION_CONTINUE_EXECUTION : EXCEPTION_CONTINUE_SEARCH;
}

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

bool FileWindows::cut(std::uint64_t bytes)
{
    return memory_->cut(bytes);
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
    inUse = before_;
}
