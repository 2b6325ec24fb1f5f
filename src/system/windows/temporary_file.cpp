#include "system/temporary_file.h"

#include "system/system_error.h"
#include "system/windows/nt_files.h"
#include "system/windows/security.h"
#include "system/windows/windows_calls.h"

#include <array>
#include <random>
#include <string>
#include <utility>
#include <winternl.h>

FileDescriptor makeTemporaryFile()
{
    std::array<wchar_t, MAX_PATH + 2> place{};
    const DWORD length = ::GetTempPathW(static_cast<DWORD>(place.size()), place.data());
    if (length == 0 || length > place.size())
        throw systemError(noteError(), runTimeErrors::pathNotFound);
    const NewSecurity own(OthersMay::nothing);
    SECURITY_ATTRIBUTES attributes{sizeof attributes, own.descriptor(), FALSE};
    std::random_device random;
    for (int attempt = 0; attempt < 100; ++attempt) {
        // A file of Windows has a name; this one nobody else may open while it is there.
        const std::string path =
            utf8Of({place.data(), length}) + "orvan-" + std::to_string(random());
        OwnedHandle file(::CreateFileW(machinePathOf(path).c_str(),
                                       GENERIC_READ | GENERIC_WRITE | DELETE, 0, &attributes,
                                       CREATE_NEW, FILE_FLAG_DELETE_ON_CLOSE, nullptr));
        if (file.isOpen()) return descriptorOf(std::move(file));
        if (::GetLastError() != ERROR_FILE_EXISTS)
            throw systemError(noteError(), runTimeErrors::pathNotFound);
    }
    throw RunTimeError(runTimeErrors::permissionDenied);
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
