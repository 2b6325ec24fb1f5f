#include "system/file_facts.h"

#include "system/system_error.h"
#include "system/windows/handle_facts.h"
#include "system/windows/nt_files.h"
#include "system/windows/security.h"

#include <array>
#include <cerrno>
#include <cstring>

namespace {

/// The system counts in steps of 100 nanoseconds from the beginning of 1601.
constexpr std::int64_t stepsPerSecond = 10'000'000;
constexpr std::int64_t nanosecondsPerStep = 100;
constexpr std::int64_t secondsBefore1970 = 11'644'473'600;

std::int64_t joined(DWORD high, DWORD low)
{
    return static_cast<std::int64_t>((std::uint64_t{high} << 32) | low);
}

std::optional<FileFacts> factsAt(const std::string& path, LinkItself link)
{
    NtOpening opening;
    opening.access = READ_CONTROL;
    opening.link = link;
    const std::wstring machinePath = machinePathOf(path);
    OwnedHandle file = openMachine(machinePath, opening);
    opening.access = 0;
    if (!file.isOpen()) file = openMachine(machinePath, opening);
    if (!file.isOpen()) return {};
    return factsOfHandle(file.get());
}

} // namespace

FileMoment momentOf(std::int64_t time)
{
    return {time / stepsPerSecond - secondsBefore1970, time % stepsPerSecond * nanosecondsPerStep};
}

std::int64_t systemTimeOf(FileMoment moment)
{
    return (moment.seconds + secondsBefore1970) * stepsPerSecond +
           moment.nanoseconds / nanosecondsPerStep;
}

FileIdentity identityOf(HANDLE handle)
{
    FILE_ID_INFO wide{};
    if (::GetFileInformationByHandleEx(handle, FileIdInfo, &wide, sizeof wide) != 0) {
        std::array<std::uint64_t, 2> halves{};
        static_assert(sizeof halves == sizeof wide.FileId);
        std::memcpy(halves.data(), &wide.FileId, sizeof halves);
        return {wide.VolumeSerialNumber, halves[0] ^ halves[1]};
    }
    BY_HANDLE_FILE_INFORMATION record{};
    if (::GetFileInformationByHandle(handle, &record) == 0) return {};
    return {record.dwVolumeSerialNumber,
            static_cast<std::uint64_t>(joined(record.nFileIndexHigh, record.nFileIndexLow))};
}

bool isFileOnDisk(HANDLE handle)
{
    FILE_STANDARD_INFO facts{};
    return ::GetFileType(handle) == FILE_TYPE_DISK &&
           ::GetFileInformationByHandleEx(handle, FileStandardInfo, &facts, sizeof facts) != 0 &&
           facts.Directory == FALSE;
}

bool isFolderOnDisk(HANDLE handle)
{
    FILE_STANDARD_INFO facts{};
    return ::GetFileInformationByHandleEx(handle, FileStandardInfo, &facts, sizeof facts) != 0 &&
           facts.Directory != FALSE;
}

std::optional<FileFacts> factsOfHandle(HANDLE handle)
{
    FileFacts facts;
    if (::GetFileType(handle) != FILE_TYPE_DISK) return facts;
    FILE_STANDARD_INFO record{};
    FILE_BASIC_INFO basic{};
    if (::GetFileInformationByHandleEx(handle, FileStandardInfo, &record, sizeof record) == 0 ||
        ::GetFileInformationByHandleEx(handle, FileBasicInfo, &basic, sizeof basic) == 0) {
        noteError();
        return {};
    }
    const bool isFolder = record.Directory != FALSE;
    const bool mayBeLink = (basic.FileAttributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0;
    facts.kind = mayBeLink && isLink(handle) ? FileKind::link
                 : isFolder                  ? FileKind::folder
                                             : FileKind::file;
    facts.identity = identityOf(handle);
    facts.size = isFolder ? 0 : record.EndOfFile.QuadPart;
    facts.modified = momentOf(basic.LastWriteTime.QuadPart);
    facts.changed = momentOf(basic.ChangeTime.QuadPart);
    facts.hardLinks = record.NumberOfLinks;
    facts.owner = ownerOf(handle);
    facts.readOnly = !isFolder && (basic.FileAttributes & FILE_ATTRIBUTE_READONLY) != 0;
    return facts;
}

FileFacts factsOf(const FileDescriptor& file)
{
    if (const auto facts = factsOfHandle(handleOf(file))) return *facts;
    throw systemError(errno, runTimeErrors::deviceIo);
}

std::optional<FileFacts> factsOf(const std::string& path)
{
    return factsAt(path, LinkItself::followed);
}

std::optional<FileFacts> unfollowedFactsOf(const std::string& path)
{
    return factsAt(path, LinkItself::opened);
}

bool isPlainFile(const std::string& path)
{
    const auto facts = factsOf(path);
    return facts && facts->kind == FileKind::file;
}

bool isOurs(const FileFacts& facts)
{
    return isOurNumber(facts.owner);
}

bool setTimes(const std::string& path, FileMoment moment)
{
    NtOpening opening;
    opening.access = FILE_WRITE_ATTRIBUTES;
    const OwnedHandle file = openMachine(machinePathOf(path), opening);
    if (!file.isOpen()) return false;
    LARGE_INTEGER steps{};
    steps.QuadPart = systemTimeOf(moment);
    const FILETIME time{steps.LowPart, static_cast<DWORD>(steps.HighPart)};
    if (::SetFileTime(file.get(), nullptr, &time, &time) != 0) return true;
    noteError();
    return false;
}

bool mayWrite(const std::string& path)
{
    NtOpening opening;
    opening.access = FILE_WRITE_DATA; // of a folder: to add a file
    return openMachine(machinePathOf(path), opening).isOpen();
}
