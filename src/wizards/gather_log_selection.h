#pragma once

#include "wizards/wizard_page.h"

class ErrorTrap;

/// Page 2 of the gather wizard: the logs to choose from, listed once for the life of the sheet;
/// Next takes those that are ticked.
class ppgGatherLogs01Step final : public WizardPage, public IMMCPropertyPage {
public:
    ppgGatherLogs01Step(ToolContext& tool, std::shared_ptr<classTraceObject> shared);

    IMMCPropertyPage* propertyPage() override { return this; }

    void IMMCPropertyPage_Initialize(ScopeItem* Data, PageSheet& sheet) override;
    void IWizardPage_Activate(bool& EnableBack, int& NextOrFinish,
                              std::string& FinishText) override;
    void IWizardPage_Next(int& NextPage) override;

    /// Raises 424 when there is none.
    const classTraceObject& job() const { return SelectedControls(0); }

    Label lblStepTitle;
    Label lblStepDescription;

    /// Two roots: below the first the processes with their log files, below the second the
    /// Windows event logs.
    TreeView treeviewLogsToGather;

private:
    using AddLog = void (classTraceObject::*)(const std::string& name);

    void ppgGatherLogs01Step_Auto_Init();
    void populateLogsToGather();
    void addProcess(ErrorTrap& step, TreeNode& root, const std::string& process);
    void treeviewLogsToGather_NodeCheck(TreeNode& node);
    void setChildNodes(TreeNode* node, bool checked);
    void determineSelectedLogs();
    void addTicked(ErrorTrap& step, const TreeNode& parent, AddLog add);
};
