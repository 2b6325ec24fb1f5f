#pragma once

/// The forward button of a wizard page.
namespace wizardButton {
constexpr int nextEnabled = 0;
constexpr int nextDisabled = 1;
constexpr int finishEnabled = 2;
constexpr int finishDisabled = 3;
} // namespace wizardButton

/// A wizard's sheet, as its pages see it. A sheet that is closed ignores its pages. (The shorter
/// name `PropertySheet` is a macro of a system header.)
class PageSheet {
public:
    virtual ~PageSheet() = default;

    /// Changes the buttons while the page is on show; `nextOrFinish` is one of `wizardButton`.
    virtual void SetWizardButtons(bool enableBack, int nextOrFinish) = 0;

    /// Presses Next on whatever page is on show, as Alt and N would: nothing happens unless that
    /// button is there and enabled. Raises what the page's handlers raise.
    virtual void pressNext() {}
};
