#pragma once

#include <cstdint>
#include <optional>
#include <string>

/// Resource libraries, one for each translated language, the user's own choice, and the names of
/// languages.
class Languages {
public:
    virtual ~Languages() = default;

    /// The language identifier (LCID) of the user, such as 1033.
    virtual std::int32_t userDefaultLanguage() const = 0;

    /// What the system calls a language, in its own words and UTF-8. What it says of an unknown
    /// identifier is its own too; the empty text where it says nothing.
    virtual std::string languageName(std::int32_t id) const = 0;

    /// Loads a library as data, by its path without regard to case. A handle, or 0 when it does
    /// not exist or does not load.
    virtual std::int32_t loadLibrary(const std::string& path) = 0;

    /// Lets a library go: the handle has no texts any more.
    virtual void freeLibrary(std::int32_t handle) = 0;

    /// A library's text; nothing when the handle is 0 or the library has no such id.
    virtual std::optional<std::string> text(std::int32_t handle, int id) const = 0;
};
