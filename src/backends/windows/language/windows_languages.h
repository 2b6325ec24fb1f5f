#pragma once

#include "platform/languages.h"

#include <map>
#include <windows.h>

/// The languages of the machine itself, and resource libraries with string tables, of whatever
/// processor: they are loaded as data, and nothing in them runs. Handles are numbers of our own, as
/// the system's have more bits than the tool's.
class WindowsLanguages final : public Languages {
public:
    WindowsLanguages() = default;
    ~WindowsLanguages() override;
    WindowsLanguages(const WindowsLanguages&) = delete;
    WindowsLanguages& operator=(const WindowsLanguages&) = delete;

    std::int32_t userDefaultLanguage() const override;
    std::string languageName(std::int32_t id) const override;
    std::int32_t loadLibrary(const std::string& path) override;
    void freeLibrary(std::int32_t handle) override;

    /// Of a text of more than 1,199 characters, those.
    std::optional<std::string> text(std::int32_t handle, int id) const override;

private:
    std::map<std::int32_t, HMODULE> loaded_;
    std::int32_t lastHandle_ = 0;
};
