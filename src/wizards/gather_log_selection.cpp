#include "wizards/gather_log_selection.h"

#include "core/error_trap.h"
#include "core/localisation.h"
#include "core/registry_store.h"
#include "gather/log_choice.h"
#include "gather/pipeline.h"
#include "wizards/gather_pages.h"

#include <utility>
#include <vector>

namespace {

constexpr const char* pageName = "ppgGatherLogs01Step";
constexpr const char* eventLogsKey = "System\\CurrentControlSet\\Services\\Eventlog";

/// The names of the keys below one; none, and a logged error, when it can't be listed.
std::vector<std::string> keyNames(ToolContext& tool, ErrorTrap& step, const std::string& path)
{
    std::vector<std::string> names;
    int first = 0;
    int last = -1;

    const KeyNames found =
        step.value({}, [&] { return enumRegistryKeys(tool, registryRoot::localMachine, path); });
    step([&] {
        first = found.lowerBound();
        last = found.upperBound();
    });
    for (int index = first; index <= last; ++index) names.push_back(found.at(index));
    return names;
}

} // namespace

ppgGatherLogs01Step::ppgGatherLogs01Step(ToolContext& tool,
                                         std::shared_ptr<classTraceObject> shared)
    : WizardPage(tool, pageName, std::move(shared))
{
    declare("lblStepTitle", ControlRole::title, lblStepTitle);
    declare("lblStepDescription", ControlRole::description, lblStepDescription);
    declare("treeviewLogsToGather", ControlRole::mainTree, treeviewLogsToGather);
    treeviewLogsToGather.setCheckBoxes(true);
    treeviewLogsToGather.onNodeCheck = [this](TreeNode& node) {
        treeviewLogsToGather_NodeCheck(node);
    };
}

void ppgGatherLogs01Step::ppgGatherLogs01Step_Auto_Init()
{
    setCaptions({{lblStepTitle, TextId::selectLogsToGather},
                 {lblStepDescription, TextId::logSelectionDescription}});
}

void ppgGatherLogs01Step::IMMCPropertyPage_Initialize(ScopeItem*, PageSheet& sheet)
{
    ErrorTrap step{tool(), pageName, "IMMCPropertyPage_Initialize"};

    step.enterProc();
    step([&] { SelectedControls(0).m_PropertySheet(sheet); });
    step([&] { populateLogsToGather(); });
    step.exitProc();
}

void ppgGatherLogs01Step::IWizardPage_Activate(bool&, int& NextOrFinish, std::string&)
{
    applyFontToPage();
    ppgGatherLogs01Step_Auto_Init();
    NextOrFinish = nextButtonBeforeChoice();
    applyFontToControls();
}

/// The first root is never translated: the pipeline knows the server logs by its text.
void ppgGatherLogs01Step::populateLogsToGather()
{
    ErrorTrap step{tool(), pageName, "populateLogsToGather"};

    TreeNode& orvanLogs = treeviewLogsToGather.add(std::string(mdlLogs::orvanLogsBranch));
    for (const std::string& process : keyNames(tool(), step, logProcessesKey))
        addProcess(step, orvanLogs, process);

    TreeNode& windowsLogs =
        treeviewLogsToGather.add(myLoadResString(tool(), TextId::windowsEventLogs));
    for (const std::string& log : keyNames(tool(), step, eventLogsKey))
        step([&] { treeviewLogsToGather.addChild(windowsLogs, log).ensureVisible(); });
    step([&] { orvanLogs.ensureVisible(); });
}

void ppgGatherLogs01Step::addProcess(ErrorTrap& step, TreeNode& root, const std::string& process)
{
    TreeNode& node = treeviewLogsToGather.addChild(root, process);
    step([&] { node.ensureVisible(); });
    const StringArray logs = mdlLogs::getAllLogsForProcess(tool(), process);
    for (int index = 0; index <= logs.upperBound(); ++index)
        if (!logs.at(index).empty()) treeviewLogsToGather.addChild(node, logs.at(index));
}

void ppgGatherLogs01Step::treeviewLogsToGather_NodeCheck(TreeNode& node)
{
    if (node.children() > 0) setChildNodes(node.child(), node.checked());
    enableNextButtonAfterChoice();
}

/// The node, those behind it and all below them.
void ppgGatherLogs01Step::setChildNodes(TreeNode* node, bool checked)
{
    for (; node; node = node->next()) {
        node->setChecked(checked);
        node->ensureVisible();
        if (node->children() > 0) setChildNodes(node->child(), checked);
    }
}

void ppgGatherLogs01Step::IWizardPage_Next(int& NextPage)
{
    ErrorTrap step{tool(), pageName, "IWizardPage_Next"};

    step.enterProc();
    step([&] { determineSelectedLogs(); });
    NextPage = gatherPage::progress;
    step.exitProc();
}

void ppgGatherLogs01Step::determineSelectedLogs()
{
    ErrorTrap step{tool(), pageName, "determineSelectedLogs"};

    step.enterProc();
    step([&] { SelectedControls(0).clearOrvanLogs(); });
    step([&] { SelectedControls(0).clearWindowsLogs(); });
    const TreeNode* root = step.value(nullptr, [&] { return &treeviewLogsToGather.item(1); });
    if (root) {
        for (const TreeNode* process = root->child(); process; process = process->next())
            addTicked(step, *process, &classTraceObject::addOrvanLog);
        for (root = root->next(); root; root = root->next())
            addTicked(step, *root, &classTraceObject::addWindowsLog);
    }
    step.exitProc();
}

void ppgGatherLogs01Step::addTicked(ErrorTrap& step, const TreeNode& parent, AddLog add)
{
    for (const TreeNode* log = parent.child(); log; log = log->next())
        if (log->checked()) step([&] { (SelectedControls(0).*add)(log->text()); });
}
