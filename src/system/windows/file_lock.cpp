#include "system/file_lock.h"

#include "system/system_error.h"
#include "system/windows/nt_files.h"
#include "system/windows/passed_on.h"

#include <cerrno>
#include <io.h>

namespace {

/// The system keeps others from reading what is locked. So a lock is one of bytes that no file has,
/// another for each kind.
constexpr DWORD beyondEveryFile = 0x40000000;
enum class LockedByte : DWORD { ofProgram, ofBytes };

/// Whether the lock was had; else the system's error.
DWORD lock(HANDLE file, LockedByte byte)
{
    OVERLAPPED place{};
    place.OffsetHigh = beyondEveryFile;
    place.Offset = static_cast<DWORD>(byte);
    if (::LockFileEx(file, LOCKFILE_EXCLUSIVE_LOCK | LOCKFILE_FAIL_IMMEDIATELY, 0, 1, 0, &place) !=
        0)
        return ERROR_SUCCESS;
    return ::GetLastError();
}

bool isAnothers(DWORD error)
{
    return error == ERROR_LOCK_VIOLATION || error == ERROR_IO_PENDING;
}

/// A lock that lasts as long as anybody has the handle: the system's locks end with the process
/// that took them, but nobody else opens what somebody has open for himself.
bool tryKeep(const FileDescriptor& file)
{
    HANDLE opened =
        ::ReOpenFile(handleOf(file), FILE_READ_DATA, FILE_SHARE_WRITE | FILE_SHARE_DELETE, 0);
    if (opened == INVALID_HANDLE_VALUE) {
        if (::GetLastError() == ERROR_SHARING_VIOLATION) return false;
        throw systemError(noteError(), runTimeErrors::deviceIo);
    }
    const FileDescriptor kept = descriptorOf(OwnedHandle(opened));
    if (!kept.isOpen() || ::_dup2(kept.get(), file.get()) != 0)
        throw systemError(errno, runTimeErrors::deviceIo);
    passOn(handleOf(file));
    return true;
}

} // namespace

bool tryLock(const FileDescriptor& file)
{
    if (isPassedOn(handleOf(file))) return tryKeep(file);
    const DWORD error = lock(handleOf(file), LockedByte::ofProgram);
    if (error == ERROR_SUCCESS) return true;
    if (isAnothers(error)) return false;
    throw systemError(errno = errnoOf(error), runTimeErrors::deviceIo);
}

bool tryLockBytes(const FileDescriptor& file)
{
    return !isAnothers(lock(handleOf(file), LockedByte::ofBytes));
}
