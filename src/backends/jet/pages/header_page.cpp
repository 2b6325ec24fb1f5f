#include "backends/jet/pages/header_page.h"

#include "backends/jet/format.h"

#include <array>
#include <numeric>
#include <utility>

namespace jet {

namespace {

constexpr std::string_view pageMark{"\0\1\0\0", 4};
constexpr std::string_view engineName{"Standard Jet DB\0", 16};
constexpr std::size_t engineNameAt = 0x04;
constexpr std::size_t versionAt = 0x14;
constexpr std::uint32_t jet4 = 1;
constexpr std::size_t maskedAt = 0x18;
constexpr std::size_t maskedBytes = 128;
constexpr std::size_t encodingKeyAt = 0x3E;

/// The bytes that the middle of the page is masked with: RC4 with a key that all files share.
std::array<unsigned char, maskedBytes> headerMask()
{
    constexpr std::array<unsigned char, 4> key = {0xC7, 0xDA, 0x39, 0x6B};
    std::array<unsigned char, 256> state;
    std::iota(state.begin(), state.end(), static_cast<unsigned char>(0));
    for (unsigned i = 0, j = 0; i < state.size(); ++i) {
        j = (j + state[i] + key[i % key.size()]) % 256;
        std::swap(state[i], state[j]);
    }
    std::array<unsigned char, maskedBytes> mask;
    unsigned i = 0;
    unsigned j = 0;
    for (auto& byte : mask) {
        i = (i + 1) % 256;
        j = (j + state[i]) % 256;
        std::swap(state[i], state[j]);
        byte = state[(state[i] + state[j]) % 256];
    }
    return mask;
}

void applyMask(char* masked)
{
    const auto mask = headerMask();
    for (std::size_t at = 0; at < maskedBytes; ++at)
        masked[at] = static_cast<char>(static_cast<unsigned char>(masked[at]) ^ mask[at]);
}

/// The empty password is stored as a mask made of the date, ten times over.
void writePassword(char* page, std::uint32_t dateMask)
{
    for (std::size_t at = 0x42; at < 0x6A; at += 4) store32(page + at, dateMask);
}

} // namespace

void writeHeaderPage(char* page)
{
    // The identities in the catalog are masked by this date in a way of the engine's own, so every
    // file carries the one date that they are known to go with: 5 June 2004.
    constexpr std::string_view date = "\xBC\x72\x1F\x7D\xF1\x9F\xE2\x40";
    constexpr std::uint32_t dateMask = 38143;

    std::memset(page, 0, pageSize);
    std::memcpy(page, pageMark.data(), pageMark.size());
    std::memcpy(page + engineNameAt, engineName.data(), engineName.size());
    store32(page + versionAt, jet4);
    store32(page + 0x18, RowPointer{globalMapPage, 0}.stored());
    store32(page + 0x1C, RowPointer{globalMapPage, 1}.stored());
    for (std::uint32_t table = 2; table <= 5; ++table)
        store32(page + 0x18 + 4 * std::size_t{table}, table);
    store16(page + 0x3C, 1252);
    writePassword(page, dateMask);
    store32(page + 0x6A, 0x21AA); // the build of the engine
    store16(page + 0x6E, 0x0409); // the sort order
    std::memcpy(page + 0x72, date.data(), date.size());
    applyMask(page + maskedAt);
    store32(page + 0x98, 1620);
    std::memcpy(page + 0x9C, "4.0", 4);
    for (std::size_t slot = 0xE00; slot < pageSize; slot += 2) store16(page + slot, 0x0100);
}

bool isHeaderPage(const char* page)
{
    if (std::string_view(page, pageMark.size()) != pageMark || load32(page + versionAt) != jet4)
        return false;
    const auto mask = headerMask();
    const std::size_t key = encodingKeyAt - maskedAt;
    for (std::size_t at = 0; at < 4; ++at) {
        if (static_cast<unsigned char>(page[encodingKeyAt + at]) != mask[key + at]) return false;
    }
    return true;
}

} // namespace jet
