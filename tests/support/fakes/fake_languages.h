#pragma once

#include "platform/languages.h"

#include <map>
#include <string>
#include <vector>

/// Language libraries in memory, by path without regard to case.
class FakeLanguages final : public Languages {
public:
    std::int32_t userDefault = 1033;

    /// The system's words; an identifier without any has no name.
    std::map<std::int32_t, std::string> names = {
        {1033, "English (United States)"}, {1036, "French (France)"}, {1041, "Japanese (Japan)"}};

    FakeLanguages& with(const std::string& path, std::map<int, std::string> texts);

    /// Paths asked for and handles freed, oldest first.
    const std::vector<std::string>& loads() const { return loads_; }
    const std::vector<std::int32_t>& freed() const { return freed_; }

    std::int32_t userDefaultLanguage() const override { return userDefault; }
    std::string languageName(std::int32_t id) const override;
    std::int32_t loadLibrary(const std::string& path) override;
    void freeLibrary(std::int32_t handle) override;
    std::optional<std::string> text(std::int32_t handle, int id) const override;

private:
    std::map<std::string, std::map<int, std::string>> libraries_;
    std::map<std::int32_t, std::string> open_;
    std::int32_t lastHandle_ = 0;
    std::vector<std::string> loads_;
    std::vector<std::int32_t> freed_;
};
