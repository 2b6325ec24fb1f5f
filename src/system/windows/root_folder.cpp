#include "system/root_folder.h"

#include "system/slash_paths.h"
#include "system/system_error.h"
#include "system/windows/folder_contents.h"
#include "system/windows/handle_facts.h"
#include "system/windows/nt_files.h"
#include "system/windows/passed_on.h"
#include "system/windows/security.h"
#include "text/utf8.h"

#include <array>
#include <cerrno>
#include <utility>
#include <winternl.h>

namespace {

using namespace runTimeErrors;

NtOpening forFolder()
{
    NtOpening opening;
    opening.options = FILE_DIRECTORY_FILE;
    return opening;
}

NtOpening forFacts(LinkItself link = LinkItself::followed)
{
    NtOpening opening;
    opening.access = READ_CONTROL;
    opening.link = link;
    return opening;
}

NtOpening openingOf(const FileOpening& asked)
{
    constexpr ACCESS_MASK appending = FILE_APPEND_DATA | FILE_WRITE_ATTRIBUTES | READ_CONTROL;
    NtOpening opening;
    switch (asked.access) {
    case FileAccess::read:
        opening.access = FILE_GENERIC_READ;
        break;
    case FileAccess::write:
        opening.access = FILE_GENERIC_WRITE;
        break;
    case FileAccess::append:
        opening.access = appending;
        break;
    case FileAccess::readAndWrite:
        opening.access = FILE_GENERIC_READ | FILE_GENERIC_WRITE;
        break;
    case FileAccess::readAndAppend:
        opening.access = FILE_GENERIC_READ | appending;
        break;
    }
    opening.disposition = asked.creation == Creation::never       ? FILE_OPEN
                          : asked.creation == Creation::ifMissing ? FILE_OPEN_IF
                                                                  : FILE_CREATE;
    if (asked.lastLink == LastLink::refused) opening.link = LinkItself::refused;
    return opening;
}

/// Refuses what is no plain file.
FileDescriptor requirePlain(OwnedHandle file, const std::string& shown)
{
    if (isFolderOnDisk(file.get())) throw RunTimeError(permissionDenied);
    if (!isFileOnDisk(file.get()))
        throw RunTimeError(permissionDenied, "Permission denied: " + shown + " is no plain file");
    FileDescriptor descriptor = descriptorOf(std::move(file));
    if (!descriptor.isOpen()) throw systemError(errno, deviceIo);
    return descriptor;
}

/// Whether the system's error says that nothing is there, or that nobody may look: a name may lead
/// on there all the same. Any other says that the machine failed.
bool isAnAnswer(int error)
{
    return error == ENOENT || error == ENOTDIR || error == EACCES || error == ENAMETOOLONG;
}

/// Whether a path begins at the machine's own top.
bool isWhole(const std::string& path)
{
    return path.starts_with('/') || path.starts_with('\\') || (path.size() > 1 && path[1] == ':');
}

} // namespace

/// Opens in the bounds of the root; not open, with `errno`, when that fails.
struct RootFolder::Way {
    const RootFolder& root;

    HANDLE handle() const { return handleOf(*root.folder_); }

    OwnedHandle open(const std::string& path, const NtOpening& opening) const
    {
        if (root.bounds_ == Bounds::beneath) return openBeneath(handle(), path, opening);
        if (path.empty()) return openIn(handle(), {}, opening);
        const std::string place = isWhole(path) ? path : joinedPath(pathOfHandle(handle()), path);
        return openMachine(machinePathOf(place), opening);
    }

    /// The folder that holds the last name.
    OwnedHandle parentOf(const std::string& path, Links links) const
    {
        NtOpening opening = forFolder();
        opening.links = links;
        OwnedHandle folder = open(folderPathOf(path), opening);
        if (!folder.isOpen()) root.fail(folderPathOf(path), pathNotFound);
        return folder;
    }

    /// The last name of a path, one that is its own. Raises 70.
    std::wstring nameIn(const std::string& path) const
    {
        std::wstring name = wideOf(lastNameOf(path));
        if (name == L"..")
            errno = EXDEV;
        else if (isNameOfAnother(name))
            errno = EACCES;
        else
            return name;
        root.fail(path, pathNotFound);
    }

    OwnedHandle openItself(const std::string& path, Links links, const NtOpening& opening) const
    {
        const OwnedHandle parent = parentOf(path, links);
        return openIn(parent.get(), nameIn(path), opening);
    }
};

RootFolder::Way RootFolder::way() const
{
    return {*this};
}

RootFolder::RootFolder(const std::string& path, Bounds bounds)
    : folder_(std::make_shared<FileDescriptor>()), path_(path), bounds_(bounds)
{
    const std::wstring place = machinePathOf(path);
    OwnedHandle folder = openMachine(place, forListing());
    if (!folder.isOpen() && errno == EACCES) folder = openMachine(place, forFolder());
    if (folder.isOpen()) *folder_ = descriptorOf(std::move(folder));
    if (!folder_->isOpen()) throw systemError(errno, pathNotFound);
}

std::optional<RootFolder> RootFolder::belowIfThere(const std::string& path) const
{
    OwnedHandle folder = way().open(path, forListing());
    if (!folder.isOpen() && errno == EACCES) folder = way().open(path, forFolder());
    if (folder.isOpen()) {
        auto kept = std::make_shared<FileDescriptor>(descriptorOf(std::move(folder)));
        if (kept->isOpen()) return RootFolder(std::move(kept), shown(path), bounds_);
    }
    if (errno == ENOENT || errno == ENOTDIR) return {};
    fail(path, pathNotFound);
}

RootFolder RootFolder::below(const std::string& path) const
{
    if (auto folder = belowIfThere(path)) return std::move(*folder);
    fail(path, pathNotFound);
}

std::string RootFolder::machinePath(const std::string& path) const
{
    if (bounds_ == Bounds::machine) return shown(path);
    const std::string top = pathOfHandle(way().handle());
    std::string rest;
    for (std::string there = path;; there = folderPathOf(there)) {
        const OwnedHandle file = way().open(there, {});
        if (!file.isOpen() && !isAnAnswer(errno)) fail(there, permissionDenied);
        const std::string name = file.isOpen() ? pathOfHandle(file.get()) : std::string();
        if (top.empty() || (there.empty() && name.empty())) return shown(path);
        if (name == top) return shown(rest);
        if (name.starts_with(top + "/"))
            return shown(joinedPath(name.substr(top.size() + 1), rest));
        rest = joinedPath(lastNameOf(there), rest);
    }
}

std::string RootFolder::pathIgnoringCase(const std::vector<std::string>& names) const
{
    std::string path;
    bool exists = true;
    for (const auto& name : names) {
        if (exists) {
            const OwnedHandle folder = way().open(path, forListing());
            if (!folder.isOpen() && !isAnAnswer(errno)) fail(path, permissionDenied);
            if (const auto there = folder.isOpen() ? nameOnDisk(folder.get(), name)
                                                   : std::optional<std::string>()) {
                path = joinedPath(path, *there);
                continue;
            }
            exists = false;
        }
        path = joinedPath(path, name);
    }
    if (!way().open(path, {}).isOpen() && (errno == EXDEV || errno == ELOOP))
        fail(path, permissionDenied);
    return path;
}

FileDescriptor RootFolder::openFile(const std::string& path, const FileOpening& opening,
                                    int missing) const
{
    OwnedHandle file = way().open(path, openingOf(opening));
    if (!file.isOpen()) fail(path, missing);
    return requirePlain(std::move(file), shown(path));
}

FileDescriptor RootFolder::openIfAllowed(const std::string& path, const FileOpening& opening,
                                         int missing) const
{
    OwnedHandle file = way().open(path, openingOf(opening));
    if (!file.isOpen() && (errno == EACCES || errno == EPERM || errno == EROFS)) return {};
    if (!file.isOpen()) fail(path, missing);
    return requirePlain(std::move(file), shown(path));
}

FileDescriptor RootFolder::openToPassOn() const
{
    // The system locks no folder. A file that every user of the machine finds by the folder's
    // number stands for it.
    const auto facts = factsOfHandle(way().handle());
    if (!facts) fail({}, pathNotFound);
    std::array<wchar_t, MAX_PATH + 2> place{};
    if (::ExpandEnvironmentStringsW(L"%ProgramData%\\orvandiag\\turns", place.data(),
                                    static_cast<DWORD>(place.size())) == 0)
        fail({}, pathNotFound);
    const std::string turns = utf8Of(place.data());
    ::CreateDirectoryW(machinePathOf(folderPathOf(turns)).c_str(), nullptr);
    ::CreateDirectoryW(machinePathOf(turns).c_str(), nullptr);
    const std::string file = turns + "/" + std::to_string(facts->identity.device) + "-" +
                             std::to_string(facts->identity.number);
    NtOpening opening;
    opening.disposition = FILE_OPEN_IF;
    opening.link = LinkItself::refused;
    FileDescriptor lock = descriptorOf(openMachine(machinePathOf(file), opening));
    if (!lock.isOpen()) fail({}, pathNotFound);
    passOn(handleOf(lock));
    return lock;
}

std::optional<FileFacts> RootFolder::facts(const std::string& path) const
{
    OwnedHandle file = way().open(path, forFacts());
    if (!file.isOpen() && errno == EACCES) file = way().open(path, {});
    if (file.isOpen())
        if (auto facts = factsOfHandle(file.get())) return facts;
    if (errno == ENOENT || errno == ENOTDIR) return {};
    fail(path, fileNotFound);
}

std::optional<FileFacts> RootFolder::unfollowedFacts(const std::string& path) const
{
    NtOpening opening = forFacts(LinkItself::opened);
    OwnedHandle file = way().open(path, opening);
    opening.access = 0;
    if (!file.isOpen() && errno == EACCES) file = way().open(path, opening);
    if (file.isOpen())
        if (auto facts = factsOfHandle(file.get())) return facts;
    if (errno == ENOENT || errno == ENOTDIR) return {};
    fail(path, fileNotFound);
}

std::optional<FileMoment> RootFolder::birth(const std::string& path) const
{
    const OwnedHandle file = way().open(path, {});
    FILE_BASIC_INFO facts{};
    if (!file.isOpen() ||
        ::GetFileInformationByHandleEx(file.get(), FileBasicInfo, &facts, sizeof facts) == 0 ||
        facts.CreationTime.QuadPart == 0)
        return {};
    return momentOf(facts.CreationTime.QuadPart);
}

FileSystemRoom RootFolder::room(const std::string& path) const
{
    const OwnedHandle folder = way().open(path, {});
    if (!folder.isOpen()) fail(path, pathNotFound);
    FILE_FS_FULL_SIZE_INFORMATION facts{};
    IO_STATUS_BLOCK block{};
    const NTSTATUS status = ::NtQueryVolumeInformationFile(folder.get(), &block, &facts,
                                                           sizeof facts, FileFsFullSizeInformation);
    if (status < 0) throw systemError(errnoOf(::RtlNtStatusToDosError(status)), pathNotFound);
    const std::int64_t unit = std::int64_t{facts.SectorsPerAllocationUnit} * facts.BytesPerSector;
    return {facts.CallerAvailableAllocationUnits.QuadPart * unit,
            facts.TotalAllocationUnits.QuadPart * unit};
}

bool RootFolder::isFile(const std::string& path) const
{
    const OwnedHandle file = way().open(path, {});
    return file.isOpen() && isFileOnDisk(file.get());
}

bool RootFolder::isFolder(const std::string& path) const
{
    return way().open(path, forFolder()).isOpen();
}

std::vector<std::string> RootFolder::names(const std::string& path) const
{
    const OwnedHandle folder = way().open(path, forListing());
    if (!folder.isOpen()) fail(path, pathNotFound);
    std::vector<std::string> names;
    for (const auto& entry : entriesOf(folder.get())) names.push_back(utf8Of(entry.name));
    return names;
}

std::int64_t RootFolder::size(const std::string& path) const
{
    const OwnedHandle folder = way().open(path, forListing());
    if (!folder.isOpen()) fail(path, pathNotFound);
    return sizeOf(folder.get());
}

void RootFolder::makeFolder(const std::string& path, OthersMay others) const
{
    if (path.empty()) throw RunTimeError(fileAlreadyExists);
    const NewSecurity security(others);
    NtOpening opening = forFolder();
    opening.disposition = FILE_CREATE;
    opening.security = security.descriptor();
    if (!way().openItself(path, Links::within, opening).isOpen()) fail(path, pathNotFound);
}

void RootFolder::rename(const std::string& from, const std::string& to) const
{
    const OwnedHandle source = way().openItself(from, Links::within, forRemoving(0));
    if (!source.isOpen()) fail(to, pathNotFound);
    const OwnedHandle target = way().parentOf(to, Links::within);
    const std::wstring name = way().nameIn(to);
    const auto facts = factsOfHandle(source.get());
    if (!facts) fail(to, pathNotFound);
    if (renameTo(source.get(), target.get(), name, facts->kind != FileKind::folder)) return;
    if (facts->kind != FileKind::folder || errno != EEXIST) fail(to, pathNotFound);
    // A folder takes the place of an empty one alone.
    {
        const OwnedHandle there = openIn(target.get(), name, forRemoving(FILE_DIRECTORY_FILE));
        if (!there.isOpen()) fail(to, pathNotFound);
        if (!removeOpen(there.get())) {
            if (errno == ENOTEMPTY) errno = EEXIST;
            fail(to, pathNotFound);
        }
    }
    if (!renameTo(source.get(), target.get(), name, false)) fail(to, pathNotFound);
}

void RootFolder::removeFile(const std::string& path) const
{
    NtOpening opening = forRemoving(0);
    opening.access |= FILE_READ_ATTRIBUTES;
    const OwnedHandle file = way().openItself(path, Links::none, opening);
    if (!file.isOpen()) fail(path, fileNotFound);
    const auto facts = factsOfHandle(file.get());
    if (facts && facts->kind == FileKind::folder) throw RunTimeError(permissionDenied);
    if (!removeOpen(file.get())) fail(path, fileNotFound);
}

void RootFolder::removeEmptyFolder(const std::string& path) const
{
    const OwnedHandle folder =
        way().openItself(path, Links::none, forRemoving(FILE_DIRECTORY_FILE));
    if (!folder.isOpen() || isLink(folder.get())) {
        if (folder.isOpen()) errno = ENOTDIR;
        fail(path, pathNotFound);
    }
    if (!removeOpen(folder.get())) fail(path, pathNotFound);
}

void RootFolder::allowWriting(const std::string& path) const
{
    NtOpening opening;
    opening.access = FILE_WRITE_ATTRIBUTES;
    const OwnedHandle file = way().open(path, opening);
    if (!file.isOpen()) fail(path, fileNotFound);
    FILE_BASIC_INFO facts{};
    if (::GetFileType(file.get()) != FILE_TYPE_DISK) throw RunTimeError(permissionDenied);
    if (::GetFileInformationByHandleEx(file.get(), FileBasicInfo, &facts, sizeof facts) == 0)
        throw systemError(noteError(), deviceIo);
    if ((facts.FileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0) throw RunTimeError(fileNotFound);
    if ((facts.FileAttributes & FILE_ATTRIBUTE_READONLY) == 0) return;
    facts.FileAttributes &= ~static_cast<DWORD>(FILE_ATTRIBUTE_READONLY);
    if (facts.FileAttributes == 0) facts.FileAttributes = FILE_ATTRIBUTE_NORMAL;
    if (::SetFileInformationByHandle(file.get(), FileBasicInfo, &facts, sizeof facts) == 0)
        throw systemError(noteError(), fileNotFound);
}

void RootFolder::removeFolder(const std::string& path) const
{
    {
        const OwnedHandle folder = way().openItself(path, Links::none, forListing());
        if (!folder.isOpen() || isLink(folder.get())) {
            if (folder.isOpen()) errno = ENOTDIR;
            fail(path, pathNotFound);
        }
        removeContents(folder.get());
    }
    removeEmptyFolder(path);
}

FileDescriptor openMachineFile(const std::string& path, const FileOpening& opening, int missing)
{
    OwnedHandle file = openMachine(machinePathOf(path), openingOf(opening));
    if (!file.isOpen() && errno == ELOOP)
        throw RunTimeError(permissionDenied,
                           "Permission denied: " + path + " is a link that is not followed");
    if (!file.isOpen()) throw systemError(errno, missing);
    return requirePlain(std::move(file), path);
}

FileDescriptor openMachinePipe(const std::string&, int)
{
    throw RunTimeError(permissionDenied); // no path leads to one that is read once, as a file is
}
