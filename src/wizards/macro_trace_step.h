#pragma once

#include "platform/xml.h"
#include "runtime/dictionary.h"
#include "wizards/wizard_page.h"

#include <memory>
#include <string>

class ErrorTrap;

/// Page 2 of the macro trace wizard: the tree of groups and macro traces, filled once; Next applies
/// its ticks.
class ppgMacroTrace1 final : public WizardPage, public IMMCPropertyPage {
public:
    ppgMacroTrace1(ToolContext& tool, std::shared_ptr<classTraceObject> shared);

    IMMCPropertyPage* propertyPage() override { return this; }

    void IMMCPropertyPage_Initialize(ScopeItem* Data, PageSheet& sheet) override;
    void IWizardPage_Activate(bool& EnableBack, int& NextOrFinish,
                              std::string& FinishText) override;
    void IWizardPage_Next(int& NextPage) override;

    Label lblStepTitle;
    Label lblStepDescription;

    /// Groups at the first level, below each its macro traces, ticked when they are on. A tick of a
    /// group without macro traces raises 91.
    TreeView treeviewMacroTrace;

private:
    void ppgMacroTrace1_Auto_Init();
    void populateMacroTracesTreeview();
    void addGroup(ErrorTrap& step, const XmlElementPtr& group);
    void addMacroTrace(ErrorTrap& step, TreeNode& groupNode, const XmlElementPtr& trace);
    void treeviewMacroTrace_NodeCheck(TreeNode& node);
    void treeviewMacroTrace_MouseMove(int x, int y);
    void setChildNodes(TreeNode* node, bool ticked);
    const std::shared_ptr<Dictionary<bool>>& status();

    /// "group - macro trace" to the tick that the person gave it last; made on first use.
    std::shared_ptr<Dictionary<bool>> status_;

    std::string name_; ///< of the element that was read last
};
