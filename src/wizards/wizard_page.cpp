#include "wizards/wizard_page.h"

#include "core/localisation.h"
#include "core/tool_context.h"
#include "runtime/required_object.h"
#include "runtime/run_time_error.h"

#include <utility>

WizardPage::WizardPage(ToolContext& tool, std::string name,
                       std::shared_ptr<classTraceObject> shared)
    : SheetPage(std::move(name)), tool_(tool), shared_(std::move(shared))
{}

classTraceObject& WizardPage::SelectedControls(int index) const
{
    if (index != 0) throw RunTimeError(runTimeErrors::subscriptOutOfRange);
    return required(shared_, runTimeErrors::objectRequired);
}

void WizardPage::applyFontToPage()
{
    applyLanguageFont(tool_, *this);
}

void WizardPage::applyFontToControls()
{
    ::applyFontToControls(tool_, *this);
}

void WizardPage::setCaptions(std::initializer_list<CaptionText> captions)
{
    ::setCaptions(tool_, captions);
}

int WizardPage::nextButtonBeforeChoice() const
{
    return tool_.g_bDebugMode ? wizardButton::nextEnabled : wizardButton::nextDisabled;
}

int WizardPage::finishButtonBeforeChoice() const
{
    return tool_.g_bDebugMode ? wizardButton::finishEnabled : wizardButton::finishDisabled;
}

void WizardPage::enableNextButton()
{
    SelectedControls(0).m_PropertySheet().SetWizardButtons(true, wizardButton::nextEnabled);
}

void WizardPage::enableFinishButton()
{
    SelectedControls(0).m_PropertySheet().SetWizardButtons(true, wizardButton::finishEnabled);
}

void WizardPage::enableNextButtonAfterChoice()
{
    if (!tool_.g_bDebugMode) enableNextButton();
}
