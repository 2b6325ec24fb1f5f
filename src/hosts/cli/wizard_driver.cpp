#include "hosts/cli/wizard_driver.h"

#include "runtime/text.h"

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

TraceChange::TraceChange(OpenTool& tool) : tool_(tool)
{
    tool.requireDatabase();
    tool.context().onTrappedError = [this](const RunTimeError& error, std::string_view procName) {
        if (failure_.empty() &&
            (beginsWith(procName, "[mdlOrvanDatabase]") || beginsWith(procName, "[mdlTraces]")))
            failure_ = error.description();
    };
}

TraceChange::~TraceChange()
{
    tool_.context().onTrappedError = {};
}

void TraceChange::requireSuccess() const
{
    if (!failure_.empty()) throw CommandFailure("not every trace was changed: " + failure_);
}
