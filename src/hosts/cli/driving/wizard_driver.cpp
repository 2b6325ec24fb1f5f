#include "hosts/cli/driving/wizard_driver.h"

namespace cli {

WizardDriver::WizardDriver(OpenTool& tool, const std::string& taskKey)
{
    tool.console().clickTask(taskKey);
    open_ = tool.console().currentView().propertySheetProvider().lastSheet();
    sheet_ = open_ ? open_->wizard() : nullptr;
    if (!sheet_ || sheet_->closed()) throw CommandFailure("the wizard does not open");
}

WizardDriver::~WizardDriver()
{
    try {
        if (!sheet_->closed()) sheet_->cancel();
    } catch (const RunTimeError&) {
        // A page that can't be told of its end has no work left.
    }
}

void WizardDriver::next()
{
    if (!sheet_->next()) throw CommandFailure("the wizard does not go on");
}

void WizardDriver::finish()
{
    if (!sheet_->finish()) throw CommandFailure("the wizard does not finish");
}

void WizardDriver::choose(TreeView& tree, TreeNode& node, bool ticked)
{
    tree.checkByPerson(node, !ticked);
    tree.checkByPerson(node, ticked);
}

void WizardDriver::missing(const std::string& name) const
{
    throw CommandFailure("the page " + sheet_->currentPage().name() + " has no " + name);
}

} // namespace cli
