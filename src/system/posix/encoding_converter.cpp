#include "system/encoding_converter.h"

#include <array>
#include <cerrno>

#include <iconv.h>

namespace {

constexpr auto failure = static_cast<std::size_t>(-1);

} // namespace

EncodingConverter::EncodingConverter(const std::string& from, const std::string& to)
    : converter_(::iconv_open(to.c_str(), from.c_str()))
{}

EncodingConverter::~EncodingConverter()
{
    if (isKnown()) ::iconv_close(converter_);
}

bool EncodingConverter::isKnown() const
{
    return converter_ != reinterpret_cast<iconv_t>(-1);
}

EncodingConverter::Result EncodingConverter::append(std::string& target, std::string_view bytes)
{
    if (!isKnown()) return Result::cutShort;
    ::iconv(converter_, nullptr, nullptr, nullptr, nullptr);
    std::array<char, 4096> part;
    char* from = const_cast<char*>(bytes.data()); // which is only read
    std::size_t left = bytes.size();
    for (bool atEnd = false; !atEnd;) {
        atEnd = left == 0;
        char* to = part.data();
        std::size_t room = part.size();
        // A letter waits in the converter for a mark that it may carry, until it is asked for.
        const bool failed =
            ::iconv(converter_, atEnd ? nullptr : &from, &left, &to, &room) == failure;
        const int error = errno;
        target.append(part.data(), part.size() - room);
        if (failed && error != E2BIG)
            return error == EILSEQ ? Result::noCharacter : Result::cutShort;
    }
    return Result::whole;
}
