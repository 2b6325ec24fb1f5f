#include "hosts/common/language_menu.h"

#include "core/localisation.h"
#include "hosts/common/tool_on_server.h"
#include "runtime/run_time_error.h"
#include "settings/about_box.h"

LanguageMenu LanguageMenu::of(ToolOnServer& tool)
{
    ToolContext& context = tool.context();
    const std::vector<std::string>& codes = context.language.g_astrLanguages;
    if (codes.size() <= 1) return {};
    LanguageMenu menu{myLoadResString(context, TextId::selectLanguage), {}};
    for (const std::string& code : codes)
        menu.languages.push_back(languageNameFromCode(context, code));
    return menu;
}

void chooseLanguage(ToolOnServer& tool, std::size_t place)
{
    frmAbout& box = tool.snapIn().showAbout();
    if (place >= box.mnuLanguageList().size())
        throw RunTimeError(runTimeErrors::subscriptOutOfRange);
    box.mnuLanguageList_Click(static_cast<int>(place));
    box.cmdOK_Click();
}
