#pragma once

#include "console/open_sheet.h"

/// A plain property sheet: OK, Cancel and Apply, and a tab a page.
class PlainSheet final : public OpenSheet {
public:
    explicit PlainSheet(std::string title, ScopeItem* subject = nullptr)
        : OpenSheet(std::move(title), subject)
    {}

    PlainSheet* plainSheet() override { return this; }

    /// The person picks a tab. Raises 9 for a position without a page.
    void selectPage(int position);

    /// Whether Apply is enabled: some page has changed.
    bool canApply() const;

    /// Tells each page that has changed to apply, twice, as the console does; then it has not
    /// changed any more. Does nothing unless Apply is enabled.
    void apply();

    /// Applies what there is to apply, and closes. A page that raises keeps the sheet open.
    void ok();

    /// A plain sheet has no such buttons.
    void SetWizardButtons(bool, int) override {}
};
