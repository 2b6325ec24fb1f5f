#pragma once

#include "console/pages.h"
#include "console/sheet.h"
#include "controls/controls.h"
#include "controls/sheet_page.h"
#include "core/page_texts.h"
#include "wizards/trace_object.h"

#include <initializer_list>
#include <memory>
#include <string>

struct ToolContext;

/// What the pages of all wizards share: the tool, the wizard's shared object and the font step.
class WizardPage : public SheetPage, public IWizardPage {
public:
    IWizardPage* wizardPage() override { return this; }

protected:
    /// `shared` is the object that all pages of the wizard are given; null for none.
    WizardPage(ToolContext& tool, std::string name, std::shared_ptr<classTraceObject> shared);

    ToolContext& tool() const { return tool_; }

    /// Item 0 is the wizard's shared object. Raises 9 for another index, 424 when there is none.
    classTraceObject& SelectedControls(int index) const;

    void applyFontToPage();
    void applyFontToControls();
    void setCaptions(std::initializer_list<CaptionText> captions);

    /// The forward button of a page that waits for a choice: disabled, but enabled in the
    /// development host.
    int nextButtonBeforeChoice() const;
    int finishButtonBeforeChoice() const;

    /// Enable the forward button while the page is on show. Raise 424 before a page was given the
    /// sheet.
    void enableNextButton();
    void enableFinishButton();

    /// What a change of the page's control does: enables the button outside the development host,
    /// where it is enabled already.
    void enableNextButtonAfterChoice();

private:
    ToolContext& tool_;
    std::shared_ptr<classTraceObject> shared_;
};
