#include "system/file_windows.h"

#include "runtime/run_time_error.h"
#include "system/file_bytes.h"

#include <cerrno>
#include <csignal>
#include <mutex>
#include <sys/mman.h>
#include <unistd.h>
#include <vector>

/// Memory that the system shares with the file. It sends a signal for a store that fails, which
/// would end the program.
class FileWindows::Memory {
public:
    Memory(const FileDescriptor& file, std::size_t windows, std::size_t windowBytes);
    ~Memory() { ::munmap(base_, offsets_.size() * windowBytes_); }
    Memory(const Memory&) = delete;
    Memory& operator=(const Memory&) = delete;

    const FileDescriptor& file() const { return file_; }
    char* base() const { return base_; }
    bool failed() const { return failed_ != 0; }
    void show(std::size_t window, std::uint64_t offset);
    void goOn();

    /// Takes the store at an address away from the file. False when it lies in no window. For the
    /// handler of the signal.
    bool takeFault(char* at);

private:
    static constexpr std::int64_t nothing = -1;

    bool map(std::size_t window) const;

    const FileDescriptor& file_;
    std::size_t windowBytes_;
    std::size_t pageBytes_;             ///< of the system
    std::vector<std::int64_t> offsets_; ///< of what each window shows, or `nothing`
    char* base_ = nullptr;
    volatile std::sig_atomic_t failed_ = 0;
};

namespace {

/// Which memory this thread is at; null for none.
thread_local FileWindows::Memory* inUse = nullptr;

struct sigaction handlerBefore {};

void onFault(int number, siginfo_t* facts, void* context)
{
    const int error = errno;
    if (inUse != nullptr && inUse->takeFault(static_cast<char*>(facts->si_addr))) {
        errno = error;
        return;
    }
    if ((handlerBefore.sa_flags & SA_SIGINFO) != 0)
        handlerBefore.sa_sigaction(number, facts, context);
    else if (handlerBefore.sa_handler != SIG_DFL && handlerBefore.sa_handler != SIG_IGN)
        handlerBefore.sa_handler(number);
    else
        signal(number, SIG_DFL); // the store is tried again and ends the program as it would
}

void installHandler()
{
    static std::once_flag once;
    std::call_once(once, [] {
        struct sigaction handler {};
        handler.sa_sigaction = onFault;
        handler.sa_flags = SA_SIGINFO | SA_NODEFER;
        sigemptyset(&handler.sa_mask);
        sigaction(SIGBUS, &handler, &handlerBefore);
    });
}

} // namespace

FileWindows::Memory::Memory(const FileDescriptor& file, std::size_t windows,
                            std::size_t windowBytes)
    : file_(file), windowBytes_(windowBytes),
      pageBytes_(static_cast<std::size_t>(::sysconf(_SC_PAGESIZE))), offsets_(windows, nothing)
{
    void* area = ::mmap(nullptr, windows * windowBytes, PROT_NONE,
                        MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0);
    if (area == MAP_FAILED) throw RunTimeError(runTimeErrors::outOfMemory);
    base_ = static_cast<char*>(area);
    installHandler();
}

void FileWindows::Memory::show(std::size_t window, std::uint64_t offset)
{
    offsets_[window] = static_cast<std::int64_t>(offset);
    if (map(window)) return;
    offsets_[window] = nothing;
    throw RunTimeError(runTimeErrors::outOfMemory);
}

bool FileWindows::Memory::map(std::size_t window) const
{
    const int kind = failed() ? MAP_PRIVATE | MAP_NORESERVE : MAP_SHARED;
    return ::mmap(base_ + window * windowBytes_, windowBytes_, PROT_READ | PROT_WRITE,
                  kind | MAP_FIXED, file_.get(),
                  static_cast<off_t>(offsets_[window])) != MAP_FAILED;
}

void FileWindows::Memory::goOn()
{
    failed_ = 0;
    for (std::size_t window = 0; window < offsets_.size(); ++window)
        if (offsets_[window] != nothing && !map(window)) {
            failed_ = 1;
            throw RunTimeError(runTimeErrors::outOfMemory);
        }
}

bool FileWindows::Memory::takeFault(char* at)
{
    if (at < base_ || at >= base_ + offsets_.size() * windowBytes_) return false;
    if (!failed()) {
        failed_ = 1;
        for (std::size_t window = 0; window < offsets_.size(); ++window)
            if (offsets_[window] != nothing && !map(window)) return false;
        return true;
    }
    // The file has no such page any more: it reads as zeros.
    char* page = base_ + static_cast<std::size_t>(at - base_) / pageBytes_ * pageBytes_;
    return ::mmap(page, pageBytes_, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS | MAP_FIXED,
                  -1, 0) != MAP_FAILED;
}

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
    return writeBytesAt(memory_->file(), bytes, at);
}

bool FileWindows::failed() const
{
    return memory_->failed();
}

bool FileWindows::cut(std::uint64_t bytes)
{
    return resize(memory_->file(), bytes);
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
