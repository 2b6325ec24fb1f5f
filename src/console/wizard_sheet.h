#pragma once

#include "console/open_sheet.h"

#include <string>

/// The buttons below a wizard's page. Cancel is always there.
struct WizardButtons {
    bool back = false;
    int nextOrFinish = wizardButton::nextDisabled; ///< one of `wizardButton`
    std::string finishText;                        ///< empty for the usual one

    bool operator==(const WizardButtons&) const = default;
};

/// A wizard: one page after the other, as each page lets the person go on.
///
/// A button acts only when it is there and enabled; its method says whether it was. A page's choice
/// of the page to show next counts from 1, and 0 is the next or previous in order; where that does
/// not exist, the wizard stays as it is. A choice without a page raises 9, and the wizard stays.
class WizardSheet final : public OpenSheet {
public:
    explicit WizardSheet(std::string title, ScopeItem* subject = nullptr)
        : OpenSheet(std::move(title), subject)
    {}

    WizardSheet* wizard() override { return this; }

    const WizardButtons& buttons() const { return buttons_; }
    bool canGoBack() const { return !closed() && buttons_.back; }
    bool canGoNext() const;
    bool canFinish() const;

    /// The person presses a button. `finish` closes the sheet behind the page's work.
    bool back();
    bool next();
    bool finish();

    void SetWizardButtons(bool enableBack, int nextOrFinish) override;
    void pressNext() override { next(); }

private:
    void enter(int position) override;
    void go(int nextPage, int inOrder);

    WizardButtons buttons_;
};
