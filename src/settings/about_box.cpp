#include "settings/about_box.h"

#include "core/error_trap.h"
#include "core/page_texts.h"
#include "core/showing_trap.h"
#include "core/utility.h"
#include "runtime/numbers.h"

#include <algorithm>
#include <utility>

namespace {

constexpr const char* formName = "frmAbout";
constexpr const char* englishTag = "1033";

/// Raises 9 for an index without an entry.
const frmAbout::LanguageItem& itemAt(const std::vector<frmAbout::LanguageItem>& items, int index)
{
    if (index < 0 || static_cast<std::size_t>(index) >= items.size())
        throw RunTimeError(runTimeErrors::subscriptOutOfRange);
    return items[static_cast<std::size_t>(index)];
}

} // namespace

frmAbout::frmAbout(ToolContext& tool) : tool_(tool)
{
    cmdOK.onClick = [this] { cmdOK_Click(); };
}

frmAbout::~frmAbout()
{
    auto& open = tool_.language.openForms;
    open.erase(std::remove(open.begin(), open.end(), this), open.end());
}

void frmAbout::show()
{
    if (!std::exchange(loaded_, true)) {
        tool_.language.openForms.push_back(this);
        Form_Load();
    }
    setVisible(true);
}

void frmAbout::Form_Load()
{
    ShowingTrap step{tool_, "Error in FormLoad routine:"};

    step([&] { applyLanguageFontToAll(tool_, controls()); });
    step([&] { frmAbout_Auto_Init(); });
    step([&] { lblVersion.setCaption(moduleVersionText(tool_.platform.module)); });
    step([&] { InitalizeLanguages(tool_); });
    step([&] { fillLanguageMenu(); });
}

void frmAbout::frmAbout_Auto_Init()
{
    caption_ = myLoadResString(tool_, TextId::toolName);
    setCaptions(tool_, {{cmdOK, TextId::ok},
                        {lblVersionTitle, TextId::version},
                        {lblCopyright, TextId::copyright},
                        {lblTrademark, TextId::trademarks},
                        {lblKelmaAddress1, TextId::companyName},
                        {lblKelmaAddress2, TextId::divisionName},
                        {lblKelmaAddress3, TextId::supportDepartment},
                        {lblChangeLanguage, TextId::changeLanguage}});
    mnuSelectLanguage_ = myLoadResString(tool_, TextId::selectLanguage);
    tellChanged();
}

/// A single library can't be told from none by the bounds of the array, and is treated alike.
void frmAbout::fillLanguageMenu()
{
    const std::vector<std::string>& codes = tool_.language.g_astrLanguages;
    if (codes.size() <= 1) {
        mnuLanguageList_ = {{myLoadResString(tool_, TextId::noLanguagesLoaded), englishTag}};
        return;
    }
    mnuLanguageList_.clear();
    for (const std::string& code : codes)
        mnuLanguageList_.push_back({languageNameFromCode(tool_, code),
                                    numberText(std::int64_t{languageIdFromCode(code)})});
}

void frmAbout::lblChangeLanguage_Click()
{
    if (onPopupMenu) onPopupMenu();
}

void frmAbout::mnuLanguageList_Click(int index)
{
    ErrorTrap step{tool_, formName, "mnuLanguageList_Click"};

    setMousePointer(hourglass);
    step([&] {
        tool_.language.g_lngCurrentLanguage =
            toInteger32(leadingNumber(itemAt(mnuLanguageList_, index).tag));
    });
    InitalizeLanguages(tool_);
    const std::vector<OpenForm*> forms = tool_.language.openForms;
    for (OpenForm* form : forms) {
        step([&] { applyLanguageFontToAll(tool_, form->controls()); });
        step([&] { form->autoInit(); });
        step([&] { form->refreshControls(); });
    }
    setMousePointer(defaultPointer);
}

void frmAbout::cmdOK_Click()
{
    setVisible(false);
}

std::vector<Control*> frmAbout::shownControls()
{
    return {&cmdOK,
            &lblVersionTitle,
            &lblVersion,
            &lblCopyright,
            &lblTrademark,
            &lblKelmaAddress1,
            &lblKelmaAddress2,
            &lblKelmaAddress3,
            &lblChangeLanguage};
}

std::vector<FontTarget*> frmAbout::controls()
{
    const std::vector<Control*> shown = shownControls();
    return {shown.begin(), shown.end()};
}

void frmAbout::refreshControls()
{
    for (Control* control : shownControls()) control->refresh();
}

void frmAbout::setMousePointer(int pointer)
{
    if (std::exchange(mousePointer_, pointer) != pointer) tellChanged();
}

void frmAbout::setVisible(bool visible)
{
    if (std::exchange(visible_, visible) != visible) tellChanged();
}

void frmAbout::tellChanged() const
{
    if (onChanged) onChanged();
}
