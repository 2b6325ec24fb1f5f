#include "backends/windows/language/library_file.h"

#include "system/windows/windows_calls.h"

#include <cstdint>
#include <cstring>
#include <vector>

namespace {

/// The head of a library as bytes; it is much shorter than this.
constexpr DWORD mostOfHead = 4096;

/// A value at a place of the head; false where that does not hold it.
template <typename Value>
bool valueAt(const std::vector<char>& head, std::uint64_t place, Value& value)
{
    if (place > head.size() || head.size() - place < sizeof value) return false;
    std::memcpy(&value, head.data() + place, sizeof value);
    return true;
}

std::vector<char> headOf(HANDLE file)
{
    std::vector<char> head(mostOfHead);
    DWORD read = 0;
    if (!::ReadFile(file, head.data(), mostOfHead, &read, nullptr)) read = 0;
    head.resize(read);
    return head;
}

} // namespace

bool isWholeLibrary(const std::wstring& path)
{
    const OwnedHandle file(::CreateFileW(path.c_str(), GENERIC_READ,
                                         FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                                         nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr));
    LARGE_INTEGER size{};
    if (!file.isOpen() || !::GetFileSizeEx(file.get(), &size)) return false;
    const std::vector<char> head = headOf(file.get());
    IMAGE_DOS_HEADER first{};
    DWORD signature = 0;
    IMAGE_FILE_HEADER facts{};
    if (!valueAt(head, 0, first) || first.e_magic != IMAGE_DOS_SIGNATURE) return false;
    const std::uint64_t start = static_cast<std::uint32_t>(first.e_lfanew);
    if (!valueAt(head, start, signature) || signature != IMAGE_NT_SIGNATURE) return false;
    if (!valueAt(head, start + sizeof signature, facts)) return false;
    std::uint64_t place = start + sizeof signature + sizeof facts + facts.SizeOfOptionalHeader;
    for (int left = facts.NumberOfSections; left > 0; --left) {
        IMAGE_SECTION_HEADER section{};
        if (!valueAt(head, place, section)) return false;
        const auto end = std::uint64_t{section.PointerToRawData} + section.SizeOfRawData;
        if (end > static_cast<std::uint64_t>(size.QuadPart)) return false;
        place += sizeof section;
    }
    return true;
}
