#include "system/windows/folder_contents.h"

#include "system/system_error.h"
#include "text/utf8.h"

#include <cerrno>
#include <utility>

NtOpening forListing()
{
    NtOpening opening;
    opening.access = FILE_LIST_DIRECTORY | READ_CONTROL;
    opening.options = FILE_DIRECTORY_FILE;
    return opening;
}

NtOpening forRemoving(ULONG options)
{
    NtOpening opening;
    opening.access = DELETE;
    opening.options = options;
    return opening;
}

std::vector<FolderEntry> entriesOf(HANDLE folder)
{
    std::vector<FolderEntry> entries;
    std::vector<char> buffer(65536);
    auto kind = FileIdBothDirectoryRestartInfo;
    for (;;) {
        if (::GetFileInformationByHandleEx(folder, kind, buffer.data(),
                                           static_cast<DWORD>(buffer.size())) == 0) {
            // An empty root of a drive has not even "." in it.
            const DWORD error = ::GetLastError();
            if (error == ERROR_NO_MORE_FILES || error == ERROR_FILE_NOT_FOUND) return entries;
            throw systemError(noteError(), runTimeErrors::pathNotFound);
        }
        kind = FileIdBothDirectoryInfo;
        for (const char* at = buffer.data();;) {
            const auto* entry = reinterpret_cast<const FILE_ID_BOTH_DIR_INFO*>(at);
            std::wstring name(entry->FileName, entry->FileNameLength / sizeof(wchar_t));
            if (name != L"." && name != L"..")
                entries.push_back(
                    {std::move(name), entry->FileAttributes, entry->EndOfFile.QuadPart});
            if (entry->NextEntryOffset == 0) break;
            at += entry->NextEntryOffset;
        }
    }
}

std::int64_t sizeOf(HANDLE folder)
{
    std::int64_t size = 0;
    for (const auto& entry : entriesOf(folder)) {
        if (entry.isFolder()) {
            const OwnedHandle below = openIn(folder, entry.name, forListing());
            if (!below.isOpen()) throw systemError(errno, runTimeErrors::pathNotFound);
            size += sizeOf(below.get());
        } else if ((entry.attributes & FILE_ATTRIBUTE_DIRECTORY) == 0) {
            size += entry.size;
        }
    }
    return size;
}

void removeContents(HANDLE folder)
{
    for (const auto& entry : entriesOf(folder)) {
        if (entry.isFolder()) {
            const OwnedHandle below = openIn(folder, entry.name, forListing());
            if (!below.isOpen()) throw systemError(errno, runTimeErrors::pathNotFound);
            removeContents(below.get());
        } else if ((entry.attributes & FILE_ATTRIBUTE_READONLY) != 0) {
            throw RunTimeError(runTimeErrors::permissionDenied);
        }
        const OwnedHandle itself = openIn(folder, entry.name, forRemoving(0));
        if (!itself.isOpen() || !removeOpen(itself.get()))
            throw systemError(errno, runTimeErrors::pathNotFound);
    }
}

std::optional<std::string> nameOnDisk(HANDLE folder, const std::string& wanted)
{
    const auto folded = foldCase(wanted);
    std::optional<std::string> found;
    for (const auto& entry : entriesOf(folder)) {
        std::string name = utf8Of(entry.name);
        if (name == wanted) return name;
        if ((!found || name < *found) && foldCase(name) == folded) found = std::move(name);
    }
    return found;
}
