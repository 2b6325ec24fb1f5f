#pragma once

#include <string>
#include <string_view>

/// Takes text from one encoding to another, by the tables of this machine.
class EncodingConverter {
public:
    /// The names are those that the machine knows encodings by, such as "UTF-8" or "CP437".
    EncodingConverter(const std::string& from, const std::string& to);
    ~EncodingConverter();
    EncodingConverter(const EncodingConverter&) = delete;
    EncodingConverter& operator=(const EncodingConverter&) = delete;

    /// Whether the machine knows both encodings; where it does not, nothing is converted.
    bool isKnown() const;

    enum class Result {
        whole,
        noCharacter, ///< some bytes are no character of the one encoding, or have none in the other
        cutShort,    ///< the bytes end within a character, or the machine failed
    };

    /// Appends a whole text to `target`; what comes before the first bytes that don't fit, too.
    Result append(std::string& target, std::string_view bytes);

private:
    void* converter_; ///< the machine's own, with a value of its own for none
};
