#pragma once

#include "console/wizard_sheet.h"
#include "controls/tree_view.h"
#include "hosts/cli/open_tool.h"

#include <memory>
#include <string>

namespace cli {

/// Drives a wizard as a person does, for a host that shows nothing.
class WizardDriver {
public:
    /// Opens the wizard of a task of the task pad. Raises CommandFailure when none comes up.
    WizardDriver(OpenTool& tool, const std::string& taskKey);

    /// Leaves the wizard by Cancel when it is still open: nothing is applied.
    ~WizardDriver();
    WizardDriver(const WizardDriver&) = delete;
    WizardDriver& operator=(const WizardDriver&) = delete;

    WizardSheet& sheet() { return *sheet_; }

    /// Presses Next, or Finish. Raises CommandFailure when the button is disabled.
    void next();
    void finish();

    /// A control of the page on show. Raises CommandFailure for a name that it does not have.
    template <typename Kind>
    Kind& control(const std::string& name)
    {
        auto* found = dynamic_cast<Kind*>(sheet_->currentPage().control(name));
        if (!found) missing(name);
        return *found;
    }

    /// Ticks or clears a node. One that is so already is turned over and back: the wizard goes on
    /// after a choice alone, and applies and lists what was chosen.
    void choose(TreeView& tree, TreeNode& node, bool ticked);

private:
    [[noreturn]] void missing(const std::string& name) const;

    std::shared_ptr<OpenSheet> open_;
    WizardSheet* sheet_ = nullptr;
};

} // namespace cli
