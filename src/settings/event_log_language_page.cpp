#include "settings/event_log_language_page.h"

#include "core/error_trap.h"
#include "core/page_texts.h"
#include "settings/event_log_language.h"

namespace {

constexpr const char* pageName = "ppgEventLogLanguage";

/// Raises 9 when there is none.
const std::string& firstOf(const std::vector<std::string>& names)
{
    if (names.empty()) throw RunTimeError(runTimeErrors::subscriptOutOfRange);
    return names.front();
}

} // namespace

ppgEventLogLanguage::ppgEventLogLanguage(ToolContext& tool) : SheetPage(pageName), tool_(tool)
{
    declare("lblDescription", ControlRole::description, lblDescription);
    declare("lblOriginalLanguage", ControlRole::fieldLabel, lblOriginalLanguage);
    declare("txtOriginalLanguage", ControlRole::field, txtOriginalLanguage);
    declare("lblCurrentLanguage", ControlRole::fieldLabel, lblCurrentLanguage);
    declare("txtCurrentLanguage", ControlRole::field, txtCurrentLanguage);
    declare("lblAvailableLangs", ControlRole::fieldLabel, lblAvailableLangs);
    declare("lstAvailableLangs", ControlRole::field, lstAvailableLangs);
    txtOriginalLanguage.setReadOnly(true);
    txtCurrentLanguage.setReadOnly(true);
    lstAvailableLangs.onClick = [this] { Changed(true); };
}

void ppgEventLogLanguage::ppgEventLogLanguage_Auto_Init()
{
    setCaptions(tool_, {{lblOriginalLanguage, TextId::originalEventLogLanguage},
                        {lblCurrentLanguage, TextId::currentEventLogLanguage},
                        {lblAvailableLangs, TextId::availableEventLogLanguages},
                        {lblDescription, TextId::aboutEventLogLanguages}});
}

void ppgEventLogLanguage::IMMCPropertyPage_Initialize(ScopeItem*, PageSheet&)
{
    ErrorTrap step{tool_, pageName, "IMMCPropertyPage_Initialize"};

    step.enterProc();
    applyFontToControls(tool_, *this);
    ppgEventLogLanguage_Auto_Init();
    const auto installed = step.value({}, [&] { return mdlLanguage::installedLanguages(tool_); });
    for (const std::string& language : installed) lstAvailableLangs.addItem(language);
    if (m_colEventKeys.empty()) m_colEventKeys = mdlLanguage::getEventLogKeys(tool_);
    const std::string messageFile = step.value(
        "", [&] { return mdlLanguage::eventMessageFile(tool_, firstOf(m_colEventKeys)); });
    m_strCurrentLanguage = mdlLanguage::determineCurrentLanguage(tool_, messageFile);
    std::string original = step.value("", [&] { return mdlLanguage::originalLanguage(tool_); });
    if (original.empty()) original = m_strCurrentLanguage;
    txtCurrentLanguage.setText(m_strCurrentLanguage);
    txtOriginalLanguage.setText(original);
    mdlLanguage::recordOriginalLanguage(tool_, original);
    step.exitProc();
}

void ppgEventLogLanguage::PropertyPage_ApplyChanges()
{
    ErrorTrap step{tool_, pageName, "PropertyPage_ApplyChanges"};

    step.enterProc();
    if (appliedOnce_) {
        appliedOnce_ = false;
    } else {
        mdlLanguage::changeEventLogLanguage(tool_, lstAvailableLangs.text(), m_colEventKeys);
        txtCurrentLanguage.setText(lstAvailableLangs.text());
        appliedOnce_ = true;
        Changed(false);
    }
    step.exitProc();
}
