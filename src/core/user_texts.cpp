#include "core/user_texts.h"

#include "core/localisation.h"
#include "core/string_table.h"
#include "platform/languages.h"

UserTexts::UserTexts(Languages& languages, const HostModule& module)
    : languages_(languages),
      library_(languages.loadLibrary(languageLibraryPath(module, languages.userDefaultLanguage())))
{}

UserTexts::~UserTexts()
{
    if (library_ != 0) languages_.freeLibrary(library_);
}

std::string UserTexts::text(TextId id) const
{
    const auto text = languages_.text(library_, static_cast<int>(id));
    return text && !text->empty() ? *text : std::string(englishText(id));
}
