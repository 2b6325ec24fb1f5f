#include "system/whole_file.h"

#include "system/replacement_names.h"
#include "system/system_error.h"
#include "system/windows/handle_facts.h"
#include "system/windows/nt_files.h"
#include "system/windows/security.h"

#include <cerrno>
#include <io.h>
#include <tuple>
#include <utility>
#include <vector>
#include <winternl.h>

namespace {

constexpr std::size_t copyStep = 1U << 20;

HANDLE folderHandle(const RootFolder& folder)
{
    return reinterpret_cast<HANDLE>(::_get_osfhandle(folder.descriptor()));
}

OwnedHandle openTemporary(const RootFolder& folder, const std::string& name, ACCESS_MASK access)
{
    NtOpening opening;
    opening.access = access;
    return openIn(folderHandle(folder), wideOf(name), opening);
}

void makeReadOnlyAs(HANDLE model, HANDLE file)
{
    FILE_BASIC_INFO allowed{};
    if (::GetFileInformationByHandleEx(model, FileBasicInfo, &allowed, sizeof allowed) == 0 ||
        (allowed.FileAttributes & FILE_ATTRIBUTE_READONLY) == 0)
        return;
    FILE_BASIC_INFO facts{}; // zeros are left as they are
    facts.FileAttributes = FILE_ATTRIBUTE_READONLY;
    ::SetFileInformationByHandle(file, FileBasicInfo, &facts, sizeof facts);
}

} // namespace

ReplacementFile::ReplacementFile(const RootFolder& root, const std::string& target,
                                 OthersMay others)
    : ReplacementFile(root, target, static_cast<unsigned>(others))
{}

/// `mode` is what others may do with the file.
ReplacementFile::ReplacementFile(const RootFolder& root, const std::string& target, unsigned mode)
    : folder_(root.below(folderPathOf(target))), target_(lastNameOf(target))
{
    const NewSecurity security(static_cast<OthersMay>(mode));
    if (isNameOfAnother(wideOf(target_))) throw RunTimeError(runTimeErrors::permissionDenied);
    NtOpening opening;
    opening.access = FILE_GENERIC_READ | FILE_GENERIC_WRITE | WRITE_DAC;
    opening.disposition = FILE_CREATE;
    opening.options = FILE_NON_DIRECTORY_FILE;
    opening.security = security.descriptor();
    std::tie(temporary_, file_) = makeReplacement([&](const std::string& name) {
        return descriptorOf(openIn(folderHandle(folder_), wideOf(name), opening));
    });
}

ReplacementFile::~ReplacementFile()
{
    if (temporary_.empty()) return;
    file_.close();
    const OwnedHandle file = openTemporary(folder_, temporary_, DELETE);
    if (!file.isOpen()) return;
    // A read-only one, after another file's model, could not be removed.
    FILE_BASIC_INFO facts{};
    facts.FileAttributes = FILE_ATTRIBUTE_NORMAL;
    const OwnedHandle attributes = openTemporary(folder_, temporary_, FILE_WRITE_ATTRIBUTES);
    ::SetFileInformationByHandle(attributes.get(), FileBasicInfo, &facts, sizeof facts);
    removeOpen(file.get());
}

void ReplacementFile::resemble(const FileDescriptor& model)
{
    if (!factsOfHandle(handleOf(model))) throw systemError(errno, runTimeErrors::deviceIo);
    copyAccess(handleOf(model), handleOf(file_));
    makeReadOnlyAs(handleOf(model), handleOf(file_));
}

void ReplacementFile::commit(bool synced)
{
    if (synced && ::FlushFileBuffers(handleOf(file_)) == 0)
        throw systemError(noteError(), runTimeErrors::deviceIo);
    close();
    {
        const OwnedHandle file = openTemporary(folder_, temporary_, DELETE);
        if (!file.isOpen() || !renameTo(file.get(), folderHandle(folder_), wideOf(target_), true))
            throw systemError(errno, runTimeErrors::pathNotFound);
    }
    temporary_.clear();
}

void copyWholeFile(const FileDescriptor& source, const RootFolder& root, const std::string& target)
{
    ReplacementFile copy(root, target, static_cast<unsigned>(OthersMay::write));
    std::vector<char> buffer(copyStep);
    while (const std::size_t count = readSome(source, buffer.data(), buffer.size()))
        copy.write({buffer.data(), count});
    FILETIME read{};
    FILETIME modified{};
    if (::GetFileTime(handleOf(source), nullptr, &read, &modified) != 0)
        ::SetFileTime(handleOf(copy.file()), nullptr, &read, &modified);
    makeReadOnlyAs(handleOf(source), handleOf(copy.file()));
    copy.commit(false);
}
