#include "console/wizard_sheet.h"

#include "console/first_failure.h"
#include "console/pages.h"

#include <utility>

bool WizardSheet::canGoNext() const
{
    return !closed() && buttons_.nextOrFinish == wizardButton::nextEnabled;
}

bool WizardSheet::canFinish() const
{
    return !closed() && buttons_.nextOrFinish == wizardButton::finishEnabled;
}

bool WizardSheet::back()
{
    const Work work{*this};
    if (!canGoBack()) return false;
    const int left = currentPosition();
    int nextPage = 0;
    if (IWizardPage* page = currentPage().wizardPage()) page->IWizardPage_Back(nextPage);
    go(nextPage, left - 1);
    return true;
}

bool WizardSheet::next()
{
    const Work work{*this};
    if (!canGoNext()) return false;
    const int left = currentPosition();
    int nextPage = 0;
    if (IWizardPage* page = currentPage().wizardPage()) page->IWizardPage_Next(nextPage);
    go(nextPage, left + 1);
    return true;
}

bool WizardSheet::finish()
{
    const Work work{*this};
    if (!canFinish()) return false;
    if (IWizardPage* page = currentPage().wizardPage()) page->IWizardPage_Finish();
    close();
    return true;
}

void WizardSheet::SetWizardButtons(bool enableBack, int nextOrFinish)
{
    if (closed()) return;
    WizardButtons asked{enableBack, nextOrFinish, buttons_.finishText};
    if (asked == buttons_) return;
    buttons_ = std::move(asked);
    tellButtonsChanged();
}

void WizardSheet::enter(int position)
{
    OpenSheet::enter(position);
    const bool last = position == pageCount();
    WizardButtons asked{
        position > 1, last ? wizardButton::finishEnabled : wizardButton::nextEnabled, {}};
    FirstFailure failure;
    IWizardPage* page = currentPage().wizardPage();
    if (page)
        failure.attempt(
            [&] { page->IWizardPage_Activate(asked.back, asked.nextOrFinish, asked.finishText); });
    buttons_ = std::move(asked);
    failure.raise();
}

/// The handler may have closed the sheet meanwhile; then there is nothing to show.
void WizardSheet::go(int nextPage, int inOrder)
{
    if (closed()) return;
    if (nextPage == 0 && (inOrder < 1 || inOrder > pageCount())) return;
    const int position = nextPage == 0 ? inOrder : nextPage;
    FirstFailure failure;
    page(position);
    failure.attempt([&] { enter(position); });
    tellPageShown();
    failure.raise();
}
