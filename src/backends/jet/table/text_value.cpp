#include "backends/jet/table/text_value.h"

#include "backends/jet/format.h"
#include "text/utf8.h"

#include <algorithm>
#include <cstdint>

namespace jet {

namespace {

constexpr char16_t replacement = 0xFFFD;
constexpr char16_t byteOrderMark = 0xFEFF;
constexpr std::string_view compressedMark = "\xFF\xFE";

/// Bits that are set where one of eight bytes is no 0x01..0x7F.
std::uint64_t otherBytes(const char* eight)
{
    constexpr std::uint64_t ones = 0x0101'0101'0101'0101;
    constexpr std::uint64_t highs = 0x8080'8080'8080'8080;
    std::uint64_t word;
    std::memcpy(&word, eight, sizeof word);
    return (word | (word - ones)) & highs;
}

/// Whether every byte is 0x01..0x7F; eight at a time, as this is asked of every text stored.
bool isPlainAscii(std::string_view text)
{
    if (text.size() < 8)
        return std::all_of(text.begin(), text.end(),
                           [](char byte) { return static_cast<signed char>(byte) > 0; });
    const char* last = text.data() + text.size() - 8; // may overlap the one before
    std::uint64_t found = otherBytes(last);
    for (const char* at = text.data(); at < last; at += 8) found |= otherBytes(at);
    return found == 0;
}

bool isHighSurrogate(char16_t unit)
{
    return unit >= 0xD800 && unit < 0xDC00;
}

bool isLowSurrogate(char16_t unit)
{
    return unit >= 0xDC00 && unit < 0xE000;
}

char16_t storable(char16_t character)
{
    const bool fits = character != 0 && character != byteOrderMark && !isHighSurrogate(character) &&
                      !isLowSurrogate(character);
    return fits ? character : replacement;
}

/// The characters of stored bytes. In the compressed form a zero byte switches between one and two
/// bytes a character.
std::u16string storedCharacters(std::string_view stored)
{
    std::u16string text;
    const bool marked = stored.substr(0, compressedMark.size()) == compressedMark;
    bool oneByte = marked;
    for (std::size_t at = marked ? compressedMark.size() : 0; at < stored.size();) {
        const auto low = static_cast<unsigned char>(stored[at++]);
        if (marked && low == 0) {
            oneByte = !oneByte;
        } else if (oneByte) {
            text.push_back(low);
        } else if (at < stored.size()) {
            const auto high = static_cast<unsigned char>(stored[at++]);
            text.push_back(static_cast<char16_t>(high << 8 | low));
        }
    }
    return text;
}

} // namespace

void TextValue::assign(std::string_view bytes, const CodePage& codePage)
{
    source_.assign(bytes);
    ascii_ = isPlainAscii(bytes);
    if (ascii_) return;
    wide_.resize(bytes.size());
    std::transform(bytes.begin(), bytes.end(), wide_.begin(),
                   [&](char byte) { return storable(codePage.character(byte)); });
    takeWide();
}

void TextValue::assignUtf8(std::string_view text)
{
    source_.assign(text);
    ascii_ = isPlainAscii(text);
    if (ascii_) return;
    wide_.clear();
    appendUtf16(wide_, text);
    std::replace(wide_.begin(), wide_.end(), u'\0', replacement);
    wide_.erase(0, wide_.find_first_not_of(byteOrderMark));
    takeWide();
}

void TextValue::clear()
{
    source_.clear();
    ascii_ = true;
}

void TextValue::cutTo(std::size_t characters)
{
    if (this->characters() <= characters) return;
    if (ascii_) {
        source_.resize(characters);
        return;
    }
    const bool splitsPair = characters > 0 && isLowSurrogate(wide_[characters]);
    wide_.resize(splitsPair ? characters - 1 : characters);
    source_ = utf8OfUtf16(wide_);
    takeWide();
}

void TextValue::takeWide()
{
    latin_ = std::all_of(wide_.begin(), wide_.end(), [](char16_t unit) { return unit <= 0xFF; });
}

void TextValue::writeCompressed(char* to) const
{
    std::memcpy(to, compressedMark.data(), compressedMark.size());
    to += compressedMark.size();
    if (ascii_) {
        std::memcpy(to, source_.data(), source_.size());
    } else {
        std::transform(wide_.begin(), wide_.end(), to,
                       [](char16_t unit) { return static_cast<char>(unit); });
    }
}

void TextValue::writePlain(char* to) const
{
    if (!ascii_) {
        std::memcpy(to, wide_.data(), plainSize(wide_.size()));
        return;
    }
    for (const char byte : source_) {
        *to++ = byte;
        *to++ = 0;
    }
}

std::string decodeStoredText(std::string_view stored)
{
    return utf8OfUtf16(storedCharacters(stored));
}

std::string_view storedTextView(std::string_view stored, std::string& room)
{
    if (stored.starts_with(compressedMark)) {
        const std::string_view characters = stored.substr(compressedMark.size());
        if (isPlainAscii(characters)) return characters;
    }
    room = decodeStoredText(stored);
    return room;
}

std::string encodeName(std::string_view name)
{
    TextValue value;
    value.assignUtf8(name);
    std::string stored(plainSize(value.characters()), '\0');
    value.writePlain(stored.data());
    return stored;
}

} // namespace jet
