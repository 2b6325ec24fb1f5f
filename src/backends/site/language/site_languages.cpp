#include "backends/site/language/site_languages.h"

#include "backends/site/language/language_names.h"
#include "drives/site_paths.h"
#include "runtime/run_time_error.h"
#include "system/environment.h"
#include "system/regional_settings.h"
#include "system/whole_file.h"

#include <array>

namespace {

constexpr std::int32_t english = 1033;
constexpr std::size_t largestCatalogue = 16U << 20;

struct LocaleLanguage {
    std::string_view locale;
    std::int32_t language;
};

/// A language's own entry comes before those of its countries.
constexpr std::array<LocaleLanguage, 54> localeLanguages = {{
    {"de", 1031},     {"de_AT", 3079},  {"de_CH", 2055},  {"de_LI", 5127},  {"de_LU", 4103},
    {"en", 1033},     {"en_AU", 3081},  {"en_CA", 4105},  {"en_GB", 2057},  {"en_IE", 6153},
    {"en_NZ", 5129},  {"es", 1034},     {"es_AR", 11274}, {"es_BO", 16394}, {"es_CL", 13322},
    {"es_CO", 9226},  {"es_CR", 5130},  {"es_DO", 7178},  {"es_EC", 12298}, {"es_GT", 4106},
    {"es_HN", 18442}, {"es_MX", 2058},  {"es_NI", 19466}, {"es_PA", 6154},  {"es_PE", 10250},
    {"es_PR", 20490}, {"es_PY", 15370}, {"es_SV", 17418}, {"es_UY", 14346}, {"es_VE", 8202},
    {"fr", 1036},     {"fr_BE", 2060},  {"fr_CA", 3084},  {"fr_CH", 4108},  {"fr_LU", 5132},
    {"it", 1040},     {"it_CH", 2064},  {"ja", 1041},     {"ko", 1042},     {"nb", 1044},
    {"nl", 1043},     {"nl_BE", 2067},  {"nn", 2068},     {"no", 1044},     {"pl", 1045},
    {"pt", 2070},     {"pt_BR", 1046},  {"ru", 1049},     {"sv", 1053},     {"da", 1030},
    {"fi", 1035},     {"zh", 2052},     {"zh_CN", 2052},  {"zh_TW", 1028},
}};

/// The language of a name as it stands in the table; 0 when it does not.
std::int32_t listedLanguage(std::string_view locale)
{
    for (const auto& entry : localeLanguages)
        if (entry.locale == locale) return entry.language;
    return 0;
}

/// The language of a locale's name, or of that without its country; 0 for neither.
std::int32_t knownLanguage(std::string_view locale)
{
    locale = locale.substr(0, locale.find_first_of(".@"));
    if (const auto language = listedLanguage(locale)) return language;
    return listedLanguage(locale.substr(0, locale.find('_')));
}

/// The catalogue's path for a library's: the same with the ending `.txt`.
std::string catalogueOf(const std::string& library)
{
    const auto name = library.find_last_of("\\/") + 1;
    const auto point = library.rfind('.');
    if (point == std::string::npos || point < name) return library + ".txt";
    return library.substr(0, point) + ".txt";
}

} // namespace

std::int32_t languageOfLocale(std::string_view locale)
{
    const std::int32_t language = knownLanguage(locale);
    return language != 0 ? language : english;
}

bool isKnownLocale(std::string_view locale)
{
    return knownLanguage(locale) != 0;
}

SiteLanguages::SiteLanguages(std::optional<std::int32_t> language, const SitePaths& paths)
    : language_(language), paths_(paths)
{}

std::int32_t SiteLanguages::userDefaultLanguage() const
{
    if (language_) return *language_;
    if (const auto setting = languageSetting()) return *setting;
    return languageOfLocale(messageLocale().name);
}

std::string SiteLanguages::languageName(std::int32_t id) const
{
    return std::string(nameOfLanguageId(id));
}

std::int32_t SiteLanguages::loadLibrary(const std::string& path)
{
    try {
        const SitePlace place = paths_.place(catalogueOf(path));
        const auto bytes =
            readWholeFile(place.root, place.path, runTimeErrors::fileNotFound, largestCatalogue);
        auto catalogue = parseLanguageCatalogue(bytes);
        loaded_.emplace(++lastHandle_, std::move(catalogue));
        return lastHandle_;
    } catch (const RunTimeError&) {
        return 0; // it does not exist, or does not load
    }
}

void SiteLanguages::freeLibrary(std::int32_t handle)
{
    loaded_.erase(handle);
}

std::optional<std::string> SiteLanguages::text(std::int32_t handle, int id) const
{
    const auto library = loaded_.find(handle);
    if (library == loaded_.end()) return {};
    const auto found = library->second.find(id);
    if (found == library->second.end()) return {};
    return found->second;
}
