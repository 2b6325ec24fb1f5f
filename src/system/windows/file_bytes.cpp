#include "system/file_bytes.h"

#include "system/system_error.h"
#include "system/windows/windows_calls.h"

#include <algorithm>
#include <cerrno>
#include <limits>

namespace {

/// What one call of the system takes at most.
constexpr std::size_t longestCall = 1U << 30;

OVERLAPPED placeOf(std::uint64_t at)
{
    OVERLAPPED place{};
    place.Offset = static_cast<DWORD>(at);
    place.OffsetHigh = static_cast<DWORD>(at >> 32);
    return place;
}

/// Keeps where a file stands: the system's calls for a place of their own move it on.
class KeptPlace {
public:
    explicit KeptPlace(HANDLE file) : file_(file)
    {
        known_ = ::SetFilePointerEx(file_, {}, &place_, FILE_CURRENT) != 0;
    }
    ~KeptPlace()
    {
        if (known_) ::SetFilePointerEx(file_, place_, nullptr, FILE_BEGIN);
    }
    KeptPlace(const KeptPlace&) = delete;
    KeptPlace& operator=(const KeptPlace&) = delete;

private:
    HANDLE file_;
    LARGE_INTEGER place_{};
    bool known_ = false;
};

/// One reading; 0 at the end. Raises 57, 7.
std::size_t readOnce(HANDLE file, char* into, std::size_t size, OVERLAPPED* place)
{
    DWORD count = 0;
    const auto asked = static_cast<DWORD>(std::min(size, longestCall));
    if (::ReadFile(file, into, asked, &count, place) != 0) return count;
    const DWORD error = ::GetLastError();
    if (error == ERROR_HANDLE_EOF || error == ERROR_BROKEN_PIPE) return 0;
    throw systemError(noteError(), runTimeErrors::deviceIo);
}

/// Writes bytes from where the file stands, or from the offset `at` on.
std::size_t writeFrom(HANDLE file, std::string_view bytes, const std::uint64_t* at)
{
    std::size_t written = 0;
    while (written < bytes.size()) {
        OVERLAPPED place = placeOf(at == nullptr ? 0 : *at + written);
        DWORD count = 0;
        const auto asked = static_cast<DWORD>(std::min(bytes.size() - written, longestCall));
        if (::WriteFile(file, bytes.data() + written, asked, &count,
                        at == nullptr ? nullptr : &place) == 0) {
            noteError();
            break;
        }
        if (count == 0) {
            errno = EIO;
            break;
        }
        written += count;
    }
    return written;
}

} // namespace

std::size_t readSome(const FileDescriptor& file, char* into, std::size_t size)
{
    return readOnce(handleOf(file), into, size, nullptr);
}

std::size_t readAt(const FileDescriptor& file, char* into, std::size_t size, std::uint64_t at)
{
    const KeptPlace kept(handleOf(file));
    std::size_t done = 0;
    while (done < size) {
        OVERLAPPED place = placeOf(at + done);
        const std::size_t count = readOnce(handleOf(file), into + done, size - done, &place);
        if (count == 0) break;
        done += count;
    }
    return done;
}

std::size_t writeBytes(const FileDescriptor& file, std::string_view bytes)
{
    return writeFrom(handleOf(file), bytes, nullptr);
}

std::size_t writeBytesAt(const FileDescriptor& file, std::string_view bytes, std::uint64_t at)
{
    const KeptPlace kept(handleOf(file));
    return writeFrom(handleOf(file), bytes, &at);
}

void writeAll(const FileDescriptor& file, std::string_view bytes)
{
    if (writeBytes(file, bytes) < bytes.size()) throw systemError(errno, runTimeErrors::deviceIo);
}

bool resize(const FileDescriptor& file, std::uint64_t size)
{
    FILE_END_OF_FILE_INFO end{};
    end.EndOfFile.QuadPart = static_cast<LONGLONG>(size);
    if (::SetFileInformationByHandle(handleOf(file), FileEndOfFileInfo, &end, sizeof end) != 0)
        return true;
    noteError();
    return false;
}

std::uint64_t largestFileAllowed()
{
    return std::numeric_limits<std::uint64_t>::max(); // the system has no such limit
}

void goTo(const FileDescriptor& file, std::uint64_t at)
{
    LARGE_INTEGER place{};
    place.QuadPart = static_cast<LONGLONG>(at);
    ::SetFilePointerEx(handleOf(file), place, nullptr, FILE_BEGIN);
}

void expectReadingThrough(const FileDescriptor&)
{
    // The system takes such a hint only when a file is opened, and notices by itself as well.
}
