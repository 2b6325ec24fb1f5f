#include "wizards/micro_trace_wizard.h"

#include "core/error_trap.h"
#include "runtime/numbers.h"
#include "runtime/text.h"
#include "server/diagnostic_grid.h"
#include "server/diagnostic_grid_catalogue.h"
#include "traces/micro_traces.h"

#include <utility>
#include <vector>

namespace {
constexpr const char* pageName = "ppgMicroTrace01Step";
}

ppgMicroTrace00Welcome::ppgMicroTrace00Welcome(ToolContext& tool,
                                               std::shared_ptr<classTraceObject> shared)
    : WizardPage(tool, "ppgMicroTrace00Welcome", std::move(shared))
{
    declare("lblWelcome", ControlRole::title, lblWelcome);
    declare("lblPurpose", ControlRole::description, lblPurpose);
    declare("lblDefinitions", ControlRole::body, lblDefinitions);
}

void ppgMicroTrace00Welcome::ppgMicroTrace00Welcome_Auto_Init()
{
    setCaptions({{lblDefinitions, TextId::whatAMicroTraceIs},
                 {lblPurpose, TextId::microTraceWizardPurpose},
                 {lblWelcome, TextId::microTraceWelcome}});
}

void ppgMicroTrace00Welcome::IWizardPage_Activate(bool& EnableBack, int& NextOrFinish, std::string&)
{
    applyFontToPage();
    ppgMicroTrace00Welcome_Auto_Init();
    EnableBack = false;
    NextOrFinish = wizardButton::nextEnabled;
    applyFontToControls();
}

ppgMicroTrace01Step::ppgMicroTrace01Step(ToolContext& tool,
                                         std::shared_ptr<classTraceObject> shared)
    : WizardPage(tool, pageName, std::move(shared))
{
    declare("lblStepTitle", ControlRole::title, lblStepTitle);
    declare("lblStepDescription", ControlRole::description, lblStepDescription);
    declare("treeviewMicroTraces", ControlRole::mainTree, treeviewMicroTraces);
    treeviewMicroTraces.setCheckBoxes(true);
    treeviewMicroTraces.onNodeCheck = [this](TreeNode& node) {
        treeviewMicroTraces_NodeCheck(node);
    };
}

void ppgMicroTrace01Step::ppgMicroTrace01Step_Auto_Init()
{
    setCaptions({{lblStepDescription, TextId::microTraceStepDescription},
                 {lblStepTitle, TextId::configureMicroTraces}});
}

void ppgMicroTrace01Step::IMMCPropertyPage_Initialize(ScopeItem*, PageSheet& sheet)
{
    ErrorTrap step{tool(), pageName, "IMMCPropertyPage_Initialize"};

    step.enterProc();
    step([&] { SelectedControls(0).m_PropertySheet(sheet); });
    step([&] { populateMicroTracesTreeview(); });
    step.exitProc();
}

void ppgMicroTrace01Step::IWizardPage_Activate(bool&, int& NextOrFinish, std::string&)
{
    applyFontToPage();
    ppgMicroTrace01Step_Auto_Init();
    NextOrFinish = nextButtonBeforeChoice();
    applyFontToControls();
}

void ppgMicroTrace01Step::IWizardPage_Next(int&)
{
    mdlTraces::configureMicroTrace(tool(), treeviewMicroTraces);
}

/// Has no trap: the first error goes to the caller, and the tree stays hidden with what it holds.
/// Its exit is logged though its entry is not.
void ppgMicroTrace01Step::populateMicroTracesTreeview()
{
    treeviewMicroTraces.setVisible(false);
    treeviewMicroTraces.clear();
    MemoryRecordset components = mdlOrvanDatabase::EnumComponents(tool());
    for (components.moveFirst(); !components.atEnd(); components.moveNext()) {
        TreeNode& component = treeviewMicroTraces.add();
        component.setExpanded(false);
        component.setText(std::string(trim(components.field("fullName"))));
        const std::string name(trim(components.field("name")));
        component.setKey(name);
        addLevels(component, name);
    }
    treeviewMicroTraces.item(1).ensureVisible();
    treeviewMicroTraces.setVisible(true);
    tool().g_log->exitProc("[ppgMicroTrace01Step]populateMicroTracesTreeview");
}

void ppgMicroTrace01Step::addLevels(TreeNode& component, const std::string& name)
{
    const std::vector<std::string> levels = mdlDiagnosticGrids::EnumDiagnosticLevels(tool(), name);
    if (levels.empty()) throw RunTimeError(runTimeErrors::subscriptOutOfRange);
    const Integer16 last = static_cast<int>(levels.size()) - 1;
    for (int level = 0; level <= last; ++level) {
        const std::string& text = levels[static_cast<std::size_t>(level)];
        if (isPlaceholderLevel(text)) continue;
        TreeNode& node = treeviewMicroTraces.addChild(component);
        const std::string shown = levelNodeText(level, text);
        node.setText(shown);
        node.setKey(name + " - " + shown);
        if (mdlTraces::isTraceLevelSet(tool(), level, name)) {
            node.setChecked(true);
            node.ensureVisible();
        }
    }
}

void ppgMicroTrace01Step::treeviewMicroTraces_NodeCheck(TreeNode& node)
{
    if (node.child()) setChildNodes(node.child(), node.checked());
    enableNextButtonAfterChoice();
}

/// The node, those behind it and all below them.
void ppgMicroTrace01Step::setChildNodes(TreeNode* node, bool ticked)
{
    for (; node; node = node->next()) {
        node->setChecked(ticked);
        node->ensureVisible();
        if (node->child()) setChildNodes(node->child(), ticked);
    }
}

ppgMicroTrace99Final::ppgMicroTrace99Final(ToolContext& tool,
                                           std::shared_ptr<classTraceObject> shared)
    : WizardPage(tool, "ppgMicroTrace99Final", std::move(shared))
{
    declare("lblCompletionTitle", ControlRole::title, lblCompletionTitle);
    declare("lblCompletionStatment", ControlRole::description, lblCompletionStatment);
}

void ppgMicroTrace99Final::ppgMicroTrace99Final_Auto_Init()
{
    setCaptions({{lblCompletionStatment, TextId::microTracesAreInForce},
                 {lblCompletionTitle, TextId::microTraceCompletionTitle}});
}

void ppgMicroTrace99Final::IWizardPage_Activate(bool&, int& NextOrFinish, std::string&)
{
    applyFontToPage();
    ppgMicroTrace99Final_Auto_Init();
    NextOrFinish = wizardButton::finishEnabled;
    applyFontToControls();
}

bool isPlaceholderLevel(std::string_view text)
{
    return equalIgnoringCase(text, "reserved") ||
           equalIgnoringCase(text.substr(0, 13), "not available") ||
           equalIgnoringCase(text.substr(0, 11), "not defined");
}

std::string levelNodeText(int level, const std::string& text)
{
    return (level < 10 ? "0" : "") + numberText(std::int64_t{level}) + "  " + text;
}
