#include "wizards/macro_trace_step.h"

#include "core/error_trap.h"
#include "runtime/required_object.h"
#include "runtime/run_time_error.h"
#include "traces/counted_walk.h"
#include "traces/macro_trace_operations.h"

#include <utility>
#include <vector>

namespace {

constexpr const char* pageName = "ppgMacroTrace1";

/// "group - macro trace". Raises 91 for a node of the first level.
std::string statusKey(const TreeNode& node)
{
    return required(node.parent()).text() + " - " + node.text();
}

} // namespace

ppgMacroTrace1::ppgMacroTrace1(ToolContext& tool, std::shared_ptr<classTraceObject> shared)
    : WizardPage(tool, pageName, std::move(shared))
{
    declare("lblStepTitle", ControlRole::title, lblStepTitle);
    declare("lblStepDescription", ControlRole::description, lblStepDescription);
    declare("treeviewMacroTrace", ControlRole::mainTree, treeviewMacroTrace);
    treeviewMacroTrace.setCheckBoxes(true);
    treeviewMacroTrace.onNodeCheck = [this](TreeNode& node) { treeviewMacroTrace_NodeCheck(node); };
    treeviewMacroTrace.onMouseMove = [this](int x, int y) { treeviewMacroTrace_MouseMove(x, y); };
}

void ppgMacroTrace1::ppgMacroTrace1_Auto_Init()
{
    setCaptions({{lblStepDescription, TextId::macroTraceStepDescription},
                 {lblStepTitle, TextId::configureMacroTraces}});
}

void ppgMacroTrace1::IMMCPropertyPage_Initialize(ScopeItem*, PageSheet& sheet)
{
    ErrorTrap step{tool(), pageName, "IMMCPropertyPage_Initialize"};

    step.enterProc();
    step([&] { SelectedControls(0).m_PropertySheet(sheet); });
    step([&] { populateMacroTracesTreeview(); });
    step.exitProc();
}

void ppgMacroTrace1::IWizardPage_Activate(bool&, int& NextOrFinish, std::string&)
{
    applyFontToPage();
    ppgMacroTrace1_Auto_Init();
    NextOrFinish = nextButtonBeforeChoice();
    applyFontToControls();
}

void ppgMacroTrace1::IWizardPage_Next(int&)
{
    ErrorTrap step{tool(), pageName, "IWizardPage_Next"};

    step.enterProc();
    step([&] { SelectedControls(0).dictStatus = status(); });
    step([&] { mdlTraces::configureMacroTrace(tool(), treeviewMacroTrace); });
    step.exitProc();
}

void ppgMacroTrace1::populateMacroTracesTreeview()
{
    ErrorTrap step{tool(), pageName, "populateMacroTracesTreeview", countedTrap};
    std::vector<XmlElementPtr> groups;

    step.body([&] {
        step.enterProc();
        step([&] { treeviewMacroTrace.clear(); });
        step([&] { groups = required(tool().g_domMacroTraces).getElementsByTagName("GA"); });
        countedWalk(step, 0, static_cast<int>(groups.size()) - 1, [&](int index) {
            const XmlElementPtr& group = groups[static_cast<std::size_t>(index)];
            if (!group->attribute("DONTSHOW")) addGroup(step, group);
        });
        step([&] { treeviewMacroTrace.item(1).ensureVisible(); });
        step.exitProc();
    });
}

/// A group may do without a description.
void ppgMacroTrace1::addGroup(ErrorTrap& step, const XmlElementPtr& group)
{
    TreeNode& node = treeviewMacroTrace.add();

    step([&] { name_ = requiredAttribute(group, "NAME"); });
    const XmlElementPtr description =
        step.value(nullptr, [&] { return group->selectSingleNode("DESCRIPTION"); });
    step([&] { node.setExpanded(false); });
    step([&] { node.setText(name_); });
    if (description)
        step([&] { node.setKey(name_ + " - " + description->text()); });
    else
        step([&] { node.setKey(name_); });
    step([&] { node.setBold(true); });
    const auto traces = step.value({}, [&] { return group->selectNodes("TRACE"); });
    countedWalk(step, 0, static_cast<int>(traces.size()) - 1, [&](int index) {
        addMacroTrace(step, node, traces[static_cast<std::size_t>(index)]);
    });
}

/// A macro trace may not: its node stays without a key, and without a tool tip.
void ppgMacroTrace1::addMacroTrace(ErrorTrap& step, TreeNode& groupNode, const XmlElementPtr& trace)
{

    step([&] { name_ = requiredAttribute(trace, "NAME"); });
    const XmlElementPtr description =
        step.value(nullptr, [&] { return trace->selectSingleNode("DESCRIPTION"); });
    TreeNode& node = treeviewMacroTrace.addChild(groupNode);
    step([&] { node.setExpanded(false); });
    step([&] { node.setText(name_); });
    step([&] { node.setKey(name_ + " - " + required(description).text()); });
    if (trace->attribute("Enabled") == "1") {
        step([&] { node.setChecked(true); });
        step([&] { node.ensureVisible(); });
    }
}

void ppgMacroTrace1::treeviewMacroTrace_NodeCheck(TreeNode& node)
{
    if (node.children() < 1)
        status()->item(statusKey(node)) = node.checked();
    else
        setChildNodes(node.child(), node.checked());
    enableNextButtonAfterChoice();
}

void ppgMacroTrace1::treeviewMacroTrace_MouseMove(int x, int y)
{
    if (const TreeNode* node = treeviewMacroTrace.hitTest(x, y))
        treeviewMacroTrace.setToolTip(node->key());
}

/// The node, those behind it and all below them.
void ppgMacroTrace1::setChildNodes(TreeNode* node, bool ticked)
{
    for (; node; node = node->next()) {
        node->setChecked(ticked);
        status()->item(statusKey(*node)) = ticked;
        node->ensureVisible();
        if (node->child()) setChildNodes(node->child(), ticked);
    }
}

const std::shared_ptr<Dictionary<bool>>& ppgMacroTrace1::status()
{
    if (!status_) status_ = std::make_shared<Dictionary<bool>>();
    return status_;
}
