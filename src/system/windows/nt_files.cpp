#include "system/windows/nt_files.h"

#include "system/windows/handle_facts.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstring>
#include <cwctype>
#include <deque>
#include <vector>
#include <winioctl.h>
#include <winternl.h>

namespace {

constexpr int mostLinks = 40;
constexpr ULONG shared = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;

/// Numbers of the system that its headers leave out.
constexpr auto renameClass = static_cast<FILE_INFORMATION_CLASS>(10);
constexpr auto renameClassEx = static_cast<FILE_INFORMATION_CLASS>(65);
constexpr auto dispositionClass = static_cast<FILE_INFORMATION_CLASS>(13);
constexpr auto dispositionClassEx = static_cast<FILE_INFORMATION_CLASS>(64);
constexpr ULONG renameReplaces = 0x1;
constexpr ULONG renameLikePosix = 0x2;
constexpr ULONG renameOverReadOnly = 0x40;
constexpr ULONG removeIt = 0x1;
constexpr ULONG removeLikePosix = 0x2;

void noteStatus(NTSTATUS status)
{
    errno = errnoOf(::RtlNtStatusToDosError(status));
}

OwnedHandle create(HANDLE folder, const std::wstring& name, const NtOpening& opening, ULONG options)
{
    UNICODE_STRING text{};
    text.Buffer = const_cast<wchar_t*>(name.data());
    text.Length = text.MaximumLength = static_cast<USHORT>(name.size() * sizeof(wchar_t));
    constexpr std::size_t longest = 32000;
    if (name.size() > longest) {
        errno = ENAMETOOLONG;
        return {};
    }
    OBJECT_ATTRIBUTES attributes{};
    attributes.Length = sizeof attributes;
    attributes.RootDirectory = folder;
    attributes.ObjectName = &text;
    attributes.Attributes = OBJ_CASE_INSENSITIVE;
    attributes.SecurityDescriptor = opening.security;
    IO_STATUS_BLOCK block{};
    HANDLE handle = nullptr;
    const NTSTATUS status =
        ::NtCreateFile(&handle, opening.access | FILE_READ_ATTRIBUTES | SYNCHRONIZE, &attributes,
                       &block, nullptr, FILE_ATTRIBUTE_NORMAL, shared, opening.disposition,
                       options | opening.options | FILE_SYNCHRONOUS_IO_NONALERT, nullptr, 0);
    if (status >= 0) return OwnedHandle(handle);
    noteStatus(status);
    return {};
}

/// What a handle is to the way that comes to it.
enum class Step {
    file,
    folder,
    link,
    kept, ///< a file that its system keeps in another form, to be opened through that
    unknown,
};

Step stepOf(HANDLE handle)
{
    FILE_ATTRIBUTE_TAG_INFO facts{};
    if (::GetFileInformationByHandleEx(handle, FileAttributeTagInfo, &facts, sizeof facts) == 0) {
        if (::GetFileType(handle) != FILE_TYPE_DISK) return Step::file;
        noteError();
        return Step::unknown;
    }
    const bool isFolder = (facts.FileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
    if ((facts.FileAttributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0) {
        if (IsReparseTagNameSurrogate(facts.ReparseTag)) return Step::link;
        if (!isFolder) return Step::kept;
    }
    return isFolder ? Step::folder : Step::file;
}

/// The names of a path, without "." and empty ones.
std::deque<std::wstring> namesOf(const std::wstring& path)
{
    std::deque<std::wstring> names;
    std::size_t at = 0;
    while (at <= path.size()) {
        const std::size_t end = std::min(path.find_first_of(L"/\\", at), path.size());
        const std::wstring name = path.substr(at, end - at);
        if (!name.empty() && name != L".") names.push_back(name);
        at = end + 1;
    }
    return names;
}

/// The target of a link that is relative to its folder; the empty text for any other, which leads
/// out, and what can't be read.
std::wstring relativeTarget(HANDLE link)
{
    // As the system lays out a symbolic link: the tag and the length, then this, then the texts.
    struct Header {
        DWORD tag;
        WORD length, reserved;
        WORD targetOffset, targetLength, shownOffset, shownLength;
        DWORD flags;
    };
    constexpr DWORD relative = 1;
    std::vector<char> buffer(MAXIMUM_REPARSE_DATA_BUFFER_SIZE);
    DWORD size = 0;
    if (::DeviceIoControl(link, FSCTL_GET_REPARSE_POINT, nullptr, 0, buffer.data(),
                          static_cast<DWORD>(buffer.size()), &size, nullptr) == 0 ||
        size < sizeof(Header))
        return {};
    Header header{};
    std::memcpy(&header, buffer.data(), sizeof header);
    if (header.tag != IO_REPARSE_TAG_SYMLINK || (header.flags & relative) == 0) return {};
    const std::size_t begin = sizeof header + header.targetOffset;
    if (begin + header.targetLength > size) return {};
    std::wstring target(header.targetLength / sizeof(wchar_t), L'\0');
    std::memcpy(target.data(), buffer.data() + begin, target.size() * sizeof(wchar_t));
    return target;
}

/// The walk of `openBeneath`, name by name.
class Walk {
public:
    Walk(HANDLE root, const std::string& path, const NtOpening& opening)
        : root_(root), opening_(opening), names_(namesOf(wideOf(path)))
    {}

    OwnedHandle run()
    {
        while (!names_.empty()) {
            const std::wstring name = std::move(names_.front());
            names_.pop_front();
            if (name == L"..") {
                if (held_.empty()) return refuse(EXDEV);
                held_.pop_back();
                continue;
            }
            if (isNameOfAnother(name)) return refuse(EACCES);
            const bool isLast = names_.empty();
            OwnedHandle next = openIn(folder(), name, isLast ? opening_ : NtOpening{});
            if (!next.isOpen()) return {};
            const Step step = stepOf(next.get());
            if (step == Step::unknown) return {};
            if (step == Step::link) {
                if (isLast && opening_.link == LinkItself::opened) return next;
                if (!follow(next.get(), isLast)) return {};
                continue;
            }
            if (isLast)
                return step == Step::kept ? throughItsSystem(std::move(next), name)
                                          : std::move(next);
            if (step != Step::folder) return refuse(ENOTDIR);
            held_.push_back(std::move(next));
        }
        return openIn(folder(), {}, opening_);
    }

private:
    HANDLE folder() const { return held_.empty() ? root_ : held_.back().get(); }

    static OwnedHandle refuse(int error)
    {
        errno = error;
        return {};
    }

    /// Puts the names of a link's target before those that are left. False with `errno`.
    bool follow(HANDLE link, bool isLast)
    {
        if ((isLast && opening_.link == LinkItself::refused) || opening_.links == Links::none ||
            ++links_ > mostLinks) {
            errno = ELOOP;
            return false;
        }
        std::wstring target = relativeTarget(link);
        if (target.empty()) {
            // The handle may lack the right to read it.
            errno = EXDEV;
            return false;
        }
        auto names = namesOf(target);
        names_.insert(names_.begin(), names.begin(), names.end());
        return true;
    }

    OwnedHandle throughItsSystem(OwnedHandle itself, const std::wstring& name) const
    {
        NtOpening again = opening_;
        again.disposition = FILE_OPEN;
        OwnedHandle file = create(folder(), name, again, 0);
        if (file.isOpen() && identityOf(itself.get()) != identityOf(file.get()))
            return refuse(EACCES);
        return file;
    }

    HANDLE root_;
    NtOpening opening_;
    std::deque<std::wstring> names_; ///< that are left
    std::vector<OwnedHandle> held_;  ///< the folders on the way, from the root's on
    int links_ = 0;
};

/// Whether the system knows no such call.
bool isUnknownCall(NTSTATUS status)
{
    constexpr std::array<unsigned long, 4> unknown = {0xC0000002UL, 0xC0000003UL, 0xC000000DUL,
                                                      0xC00000BBUL};
    return std::find(unknown.begin(), unknown.end(), static_cast<unsigned long>(status)) !=
           unknown.end();
}

/// As the system lays out the request for another name.
struct RenameRequest {
    ULONG flags;
    HANDLE folder;
    ULONG length;
    wchar_t name[1];
};

NTSTATUS rename(HANDLE handle, HANDLE folder, const std::wstring& name, ULONG flags,
                FILE_INFORMATION_CLASS kind)
{
    const std::size_t bytes = name.size() * sizeof(wchar_t);
    std::vector<char> buffer(sizeof(RenameRequest) + bytes);
    RenameRequest request{flags, folder, static_cast<ULONG>(bytes), {}};
    std::memcpy(buffer.data(), &request, sizeof request);
    std::memcpy(buffer.data() + offsetof(RenameRequest, name), name.data(), bytes);
    IO_STATUS_BLOCK block{};
    return ::NtSetInformationFile(handle, &block, buffer.data(), static_cast<ULONG>(buffer.size()),
                                  kind);
}

/// Takes a file that others have open out of the way of another one, for systems that replace none
/// such: it keeps its readers, and goes with the last of them. False where that fails too.
bool replaceByMovingAside(HANDLE handle, HANDLE folder, const std::wstring& name)
{
    NtOpening opening;
    opening.access = DELETE;
    opening.options = FILE_NON_DIRECTORY_FILE;
    const OwnedHandle old = openIn(folder, name, opening);
    if (!old.isOpen()) return false;
    const std::wstring aside = L".new-" + std::to_wstring(::GetCurrentProcessId()) + L"-" +
                               std::to_wstring(::GetTickCount() % 1'000'000'000);
    if (rename(old.get(), folder, aside, 0, renameClass) < 0) return false;
    if (rename(handle, folder, name, 0, renameClass) < 0) {
        rename(old.get(), folder, name, 0, renameClass);
        return false;
    }
    removeOpen(old.get());
    return true;
}

/// Lets a file be replaced by systems that keep a read-only one. False where it was not read-only.
bool takeReadOnlyOff(HANDLE folder, const std::wstring& name)
{
    NtOpening opening;
    opening.access = FILE_WRITE_ATTRIBUTES;
    opening.options = FILE_NON_DIRECTORY_FILE;
    const OwnedHandle file = openIn(folder, name, opening);
    FILE_BASIC_INFO facts{};
    if (!file.isOpen() ||
        ::GetFileInformationByHandleEx(file.get(), FileBasicInfo, &facts, sizeof facts) == 0 ||
        (facts.FileAttributes & FILE_ATTRIBUTE_READONLY) == 0)
        return false;
    facts.FileAttributes &= ~static_cast<DWORD>(FILE_ATTRIBUTE_READONLY);
    if (facts.FileAttributes == 0) facts.FileAttributes = FILE_ATTRIBUTE_NORMAL;
    return ::SetFileInformationByHandle(file.get(), FileBasicInfo, &facts, sizeof facts) != 0;
}

} // namespace

OwnedHandle openBeneath(HANDLE folder, const std::string& path, const NtOpening& opening)
{
    return Walk(folder, path, opening).run();
}

OwnedHandle openIn(HANDLE folder, const std::wstring& name, NtOpening opening)
{
    return create(folder, name, opening, FILE_OPEN_REPARSE_POINT);
}

OwnedHandle openMachine(const std::wstring& path, const NtOpening& opening)
{
    // The system's own way to write what machinePathOf gives.
    std::wstring name = path;
    if (name.starts_with(L"\\\\?\\") || name.starts_with(L"\\\\.\\")) name.replace(0, 4, L"\\??\\");
    const bool follows = opening.link == LinkItself::followed;
    OwnedHandle file = create(nullptr, name, opening, follows ? 0 : FILE_OPEN_REPARSE_POINT);
    if (file.isOpen() && opening.link == LinkItself::refused && isLink(file.get())) {
        errno = ELOOP;
        return {};
    }
    return file;
}

bool isLink(HANDLE handle)
{
    return stepOf(handle) == Step::link;
}

bool isNameOfAnother(const std::wstring& name)
{
    if (name.find(L':') != std::wstring::npos || name.ends_with(L'.') || name.ends_with(L' '))
        return true;
    std::wstring device = name.substr(0, name.find(L'.'));
    while (device.ends_with(L' ')) device.pop_back();
    for (auto& letter : device) letter = static_cast<wchar_t>(std::towupper(letter));
    for (const wchar_t* known : {L"CON", L"PRN", L"AUX", L"NUL", L"CONIN$", L"CONOUT$"})
        if (device == known) return true;
    return device.size() == 4 && (device.starts_with(L"COM") || device.starts_with(L"LPT")) &&
           std::wcschr(L"0123456789\u00B9\u00B2\u00B3", device.back()) != nullptr;
}

bool renameTo(HANDLE handle, HANDLE folder, const std::wstring& name, bool replaces)
{
    const ULONG flags = renameLikePosix | (replaces ? renameReplaces | renameOverReadOnly : 0);
    NTSTATUS status = rename(handle, folder, name, flags, renameClassEx);
    if (isUnknownCall(status)) {
        const ULONG plain = replaces ? renameReplaces : 0;
        status = rename(handle, folder, name, plain, renameClass);
        if (status < 0 && replaces && takeReadOnlyOff(folder, name))
            status = rename(handle, folder, name, plain, renameClass);
        if (status < 0 && replaces && replaceByMovingAside(handle, folder, name)) return true;
    }
    if (status >= 0) return true;
    noteStatus(status);
    return false;
}

bool removeOpen(HANDLE handle)
{
    IO_STATUS_BLOCK block{};
    ULONG flags = removeIt | removeLikePosix;
    NTSTATUS status =
        ::NtSetInformationFile(handle, &block, &flags, sizeof flags, dispositionClassEx);
    if (isUnknownCall(status)) {
        unsigned char removed = 1;
        status = ::NtSetInformationFile(handle, &block, &removed, sizeof removed, dispositionClass);
    }
    if (status >= 0) return true;
    noteStatus(status);
    return false;
}
