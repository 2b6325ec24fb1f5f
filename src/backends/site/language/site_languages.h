#pragma once

#include "backends/site/language/language_catalogue.h"
#include "platform/languages.h"

#include <map>
#include <optional>
#include <string>
#include <string_view>

class SitePaths;

/// The language identifier of a locale's name such as "fr_CA.UTF-8"; 1033 for one that is unknown.
std::int32_t languageOfLocale(std::string_view locale);

/// Whether a locale's name is one whose language is known.
bool isKnownLocale(std::string_view locale);

/// Language catalogues in the place of resource libraries: for a library `NAME.dll` the catalogue
/// `NAME.txt` beside it serves.
class SiteLanguages final : public Languages {
public:
    /// `language` is the user's; without one the machine's setting or the
    /// locale of messages tells it. `paths` outlives this.
    SiteLanguages(std::optional<std::int32_t> language, const SitePaths& paths);

    std::int32_t userDefaultLanguage() const override;
    std::string languageName(std::int32_t id) const override;
    std::int32_t loadLibrary(const std::string& path) override;
    void freeLibrary(std::int32_t handle) override;
    std::optional<std::string> text(std::int32_t handle, int id) const override;

private:
    std::optional<std::int32_t> language_;
    const SitePaths& paths_;
    std::map<std::int32_t, LanguageCatalogue> loaded_;
    std::int32_t lastHandle_ = 0;
};
