#pragma once

#include "core/text_id.h"

#include <cstdint>
#include <string>

class HostModule;
class Languages;

/// The tool's texts in the user's language, for whoever asks before there is a tool: nothing is
/// logged, and no choice of language is remembered.
class UserTexts {
public:
    /// `languages` outlives this. Raises what the services raise.
    UserTexts(Languages& languages, const HostModule& module);
    ~UserTexts();
    UserTexts(const UserTexts&) = delete;
    UserTexts& operator=(const UserTexts&) = delete;

    /// The English text where the language has none; the empty text for an id of neither.
    std::string text(TextId id) const;

private:
    Languages& languages_;
    std::int32_t library_ = 0;
};
