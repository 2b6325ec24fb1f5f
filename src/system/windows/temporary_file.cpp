#include "system/temporary_file.h"

#include "system/system_error.h"
#include "system/windows/nt_files.h"
#include "system/windows/temporary_place.h"
#include "system/windows/windows_calls.h"

#include <utility>
#include <winternl.h>

FileDescriptor makeTemporaryFile()
{
    OwnedHandle file;
    makeTemporary(
        "orvan-", ERROR_FILE_EXISTS, [&](const std::wstring& path, SECURITY_ATTRIBUTES& own) {
            // A file of Windows has a name; this one nobody else may open while it is
            // there.
            file = OwnedHandle(::CreateFileW(path.c_str(), GENERIC_READ | GENERIC_WRITE | DELETE, 0,
                                             &own, CREATE_NEW, FILE_FLAG_DELETE_ON_CLOSE, nullptr));
            return file.isOpen();
        });
    return descriptorOf(std::move(file));
}

FileSystemRoom roomOf(const FileDescriptor& file)
{
    FILE_FS_FULL_SIZE_INFORMATION facts{};
    IO_STATUS_BLOCK block{};
    const NTSTATUS status = ::NtQueryVolumeInformationFile(handleOf(file), &block, &facts,
                                                           sizeof facts, FileFsFullSizeInformation);
    if (status < 0)
        throw systemError(errnoOf(::RtlNtStatusToDosError(status)), runTimeErrors::deviceIo);
    const std::int64_t unit = std::int64_t{facts.SectorsPerAllocationUnit} * facts.BytesPerSector;
    return {facts.CallerAvailableAllocationUnits.QuadPart * unit,
            facts.TotalAllocationUnits.QuadPart * unit};
}
