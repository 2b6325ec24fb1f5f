#include "hosts/common/gather/cabinet_names.h"

#include <cstdint>
#include <fstream>
#include <string_view>

namespace {

constexpr std::string_view signature = "MSCF";
constexpr std::size_t headSize = 36;
constexpr std::size_t placeOfMembers = 16; ///< of the number that tells where they begin
constexpr std::size_t placeOfCount = 28;
constexpr std::size_t memberHead = 16; ///< before a member's name
constexpr std::size_t longestName = 256;

std::uint32_t number(std::string_view bytes, std::size_t offset, std::size_t size)
{
    std::uint32_t value = 0;
    while (size-- > 0) value = value << 8 | static_cast<unsigned char>(bytes[offset + size]);
    return value;
}

/// As many bytes as are left, at most `size`.
std::string read(std::ifstream& file, std::size_t size)
{
    std::string bytes(size, '\0');
    file.read(bytes.data(), static_cast<std::streamsize>(size));
    bytes.resize(static_cast<std::size_t>(file.gcount()));
    return bytes;
}

} // namespace

std::vector<std::string> namesInCabinet(const std::filesystem::path& cabinet)
{
    std::vector<std::string> names;
    std::ifstream file(cabinet, std::ios::binary);
    const std::string head = read(file, headSize);
    if (head.size() < headSize || head.compare(0, signature.size(), signature) != 0) return names;
    file.seekg(number(head, placeOfMembers, 4));
    for (std::uint32_t left = number(head, placeOfCount, 2); left > 0; --left) {
        if (read(file, memberHead).size() < memberHead) break;
        char name[longestName];
        if (!file.getline(name, longestName, '\0') || file.eof()) break;
        names.emplace_back(name);
    }
    return names;
}
