#pragma once

#include "wizards/wizard_page.h"

#include <string_view>

/// Page 1 of the micro trace wizard: tells what a micro trace is.
class ppgMicroTrace00Welcome final : public WizardPage {
public:
    ppgMicroTrace00Welcome(ToolContext& tool, std::shared_ptr<classTraceObject> shared);

    void IWizardPage_Activate(bool& EnableBack, int& NextOrFinish,
                              std::string& FinishText) override;

    Label lblWelcome;
    Label lblPurpose;
    Label lblDefinitions;

private:
    void ppgMicroTrace00Welcome_Auto_Init();
};

/// Page 2 of the micro trace wizard: the tree of components and their levels, filled once; Next
/// applies its ticks.
class ppgMicroTrace01Step final : public WizardPage, public IMMCPropertyPage {
public:
    ppgMicroTrace01Step(ToolContext& tool, std::shared_ptr<classTraceObject> shared);

    IMMCPropertyPage* propertyPage() override { return this; }

    void IMMCPropertyPage_Initialize(ScopeItem* Data, PageSheet& sheet) override;
    void IWizardPage_Activate(bool& EnableBack, int& NextOrFinish,
                              std::string& FinishText) override;
    void IWizardPage_Next(int& NextPage) override;

    Label lblStepTitle;
    Label lblStepDescription;

    /// Components at the first level, whose keys are their names; below each its levels, ticked
    /// when they are on. Hidden when it could not be filled to the end.
    TreeView treeviewMicroTraces;

private:
    void ppgMicroTrace01Step_Auto_Init();
    void populateMicroTracesTreeview();
    void addLevels(TreeNode& component, const std::string& name);
    void treeviewMicroTraces_NodeCheck(TreeNode& node);
    void setChildNodes(TreeNode* node, bool ticked);
};

/// Page 3 of the micro trace wizard: tells that the choice was applied.
class ppgMicroTrace99Final final : public WizardPage {
public:
    ppgMicroTrace99Final(ToolContext& tool, std::shared_ptr<classTraceObject> shared);

    void IWizardPage_Activate(bool& EnableBack, int& NextOrFinish,
                              std::string& FinishText) override;

    Label lblCompletionTitle;
    Label lblCompletionStatment;

private:
    void ppgMicroTrace99Final_Auto_Init();
};

/// Whether the text of a level says that the level is not in use.
bool isPlaceholderLevel(std::string_view text);

/// "07  Call progress": what a level's node shows, and what tells the level when it is applied.
std::string levelNodeText(int level, const std::string& text);
