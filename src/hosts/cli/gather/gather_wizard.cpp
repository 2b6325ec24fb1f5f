#include "hosts/cli/gather/gather_wizard.h"

#include "hosts/cli/gather/gather_run.h"
#include "runtime/text.h"
#include "shell/snapin_names.h"
#include "wizards/gather_progress.h"
#include "wizards/gather_welcome.h"

namespace cli {

namespace {

constexpr const char* lastPageName = "ppgGatherLogs99Final";

/// What a label shows below its caption.
std::string belowCaption(const Label& label)
{
    const std::string& text = label.caption();
    return text.substr(text.rfind(lineBreak) + lineBreak.size());
}

/// A node by its text, exactly before in any case; null when there is none.
TreeNode* named(const std::vector<TreeNode*>& nodes, const std::string& text)
{
    TreeNode* inOtherCase = nullptr;
    for (TreeNode* node : nodes) {
        if (node->text() == text) return node;
        if (!inOtherCase && equalIgnoringCase(node->text(), text)) inOtherCase = node;
    }
    return inOtherCase;
}

std::vector<TreeNode*> childrenOf(const TreeNode& parent)
{
    std::vector<TreeNode*> children;
    for (TreeNode* node = parent.child(); node; node = node->next()) children.push_back(node);
    return children;
}

/// The log files of all processes, below the root of the server logs.
std::vector<TreeNode*> logsBelow(const TreeNode& root)
{
    std::vector<TreeNode*> logs;
    for (const TreeNode* process : childrenOf(root))
        for (TreeNode* log : childrenOf(*process)) logs.push_back(log);
    return logs;
}

void tickNode(TreeView& tree, TreeNode* node, const std::string& name)
{
    if (!node) throw CommandFailure("the wizard does not offer the log \"" + name + "\"");
    tree.checkByPerson(*node, true);
}

void tickBox(CheckBox& box, bool ticked)
{
    if (box.checked() != ticked) box.click();
}

} // namespace

GatherWizard::GatherWizard(OpenTool& tool, const GatherAnswers& answers)
    : driver_(tool, snapinTask::gatherLogFiles)
{
    chooseDestination(tool, answers);
    driver_.control<OptionButtonGroup>("optGatherLogs").click(answers.option);
    driver_.next();
    if (answers.option == gatherOption::byHand) tickLogs(answers);
    if (answers.option == gatherOption::timeFrame) enterFrame(answers);
    progressPage_ = dynamic_cast<ppgGatherLogs03Step*>(&driver_.sheet().currentPage());
    if (!progressPage_) throw CommandFailure("the wizard does not come to its progress page");
    steps_ = &driver_.control<TreeView>("treeviewSteps");
    currentStep_ = &driver_.control<Label>("lblCurrentProcess");
    current_ = &driver_.control<ProgressBar>("progressbarCurrentProcess");
    overall_ = &driver_.control<ProgressBar>("progressbarOverall");
}

void GatherWizard::chooseDestination(OpenTool& tool, const GatherAnswers& answers)
{
    if (!answers.destination.empty()) {
        tool.desktop().answerPickers(answers.destination);
        driver_.control<Button>("cmdChangeDestinationDirectory").click();
        tool.desktop().answerPickers({});
    }
    destination_ = belowCaption(driver_.control<Label>("lblDestinationDirectory"));
    requireUsableDestination(tool, destination_);
}

void GatherWizard::tickLogs(const GatherAnswers& answers)
{
    auto& tree = driver_.control<TreeView>("treeviewLogsToGather");
    if (tree.roots().size() < 2) throw CommandFailure("the wizard offers no logs");
    const auto logs = logsBelow(*tree.roots()[0]);
    for (const auto& name : answers.logs) tickNode(tree, named(logs, name), name);
    for (const auto& name : answers.eventLogs)
        tickNode(tree, named(childrenOf(*tree.roots()[1]), name), name);
    driver_.next();
}

void GatherWizard::enterFrame(const GatherAnswers& answers)
{
    auto& date = driver_.control<DateTimePicker>("dtpickerDate");
    auto& time = driver_.control<DateTimePicker>("dtpickerTime");
    auto& duration = driver_.control<TextBox>("txtDuration");
    if (answers.frame) {
        const Date start = answers.frame->start;
        date.setByPerson(start);
        time.setByPerson(start);
        duration.setByPerson(answers.frame->hours);
        if (dayOf(date.value()) != dayOf(start) || timeOf(time.value()) != timeOf(start))
            throw CommandFailure("the time frame starts in the future");
    }
    tickBox(driver_.control<CheckBox>("chkWindowsEventLogs_Application"), answers.applicationLog);
    tickBox(driver_.control<CheckBox>("chkWindowsEventLogs_System"), answers.systemLog);
    frame_.emplace();
    computeTimeFrame({date.value(), time.value(), duration.text()}, *frame_);
    driver_.next();
}

void GatherWizard::run()
{
    WizardSheet& sheet = driver_.sheet();
    sheet.tick(driver_.control<Timer>("tmrDelayStart"));
    if (sheet.closed()) return;
    if (sheet.currentPage().name() != lastPageName)
        throw CommandFailure("the wizard did not come to its end");
    destination_ = belowCaption(driver_.control<Label>("lblSummary"));
    driver_.finish();
}

} // namespace cli
