#include "wizards/gather_welcome.h"

#include "core/error_trap.h"
#include "core/localisation.h"
#include "core/utility.h"
#include "gather/destination.h"
#include "gather/log_choice.h"
#include "logreader/log_file_names.h"
#include "runtime/text.h"
#include "wizards/gather_pages.h"

#include <utility>

namespace {
constexpr const char* pageName = "ppgGatherLogs00Welcome";
} // namespace

ppgGatherLogs00Welcome::ppgGatherLogs00Welcome(ToolContext& tool,
                                               std::shared_ptr<classTraceObject> shared)
    : WizardPage(tool, pageName, std::move(shared)), optGatherLogs(gatherOption::count)
{
    declare("lblWelcomeTitle", ControlRole::title, lblWelcomeTitle);
    declare("lblPurpose", ControlRole::description, lblPurpose);
    declare("optGatherLogs", ControlRole::choice, optGatherLogs);
    declare("lblDestinationDirectory", ControlRole::body, lblDestinationDirectory);
    declare("cmdChangeDestinationDirectory", ControlRole::action, cmdChangeDestinationDirectory);
    declare("lblWarnings", ControlRole::body, lblWarnings);
    optGatherLogs.select(gatherOption::standard);
    cmdChangeDestinationDirectory.onClick = [this] { cmdChangeDestinationDirectory_Click(); };
}

void ppgGatherLogs00Welcome::ppgGatherLogs00Welcome_Auto_Init()
{
    struct OptionTexts {
        int option;
        TextId caption;
        TextId toolTip;
    };
    constexpr OptionTexts optionTexts[] = {
        {gatherOption::standard, TextId::gatherStandardLogs, TextId::whatTheStandardLogsAre},
        {gatherOption::byHand, TextId::selectLogs, TextId::handSelectOptionHelp},
        {gatherOption::timeFrame, TextId::processLogsOverTimeFrame, TextId::timeFrameOptionHelp},
    };

    setCaptions({{lblWelcomeTitle, TextId::gatherWelcome},
                 {lblPurpose, TextId::gatherWizardPurpose},
                 {lblWarnings, TextId::gatherMayTakeMinutes},
                 {cmdChangeDestinationDirectory, TextId::browseWithKey}});
    for (const OptionTexts& texts : optionTexts) {
        optGatherLogs.setCaption(texts.option, myLoadResString(tool(), texts.caption));
        optGatherLogs.setOptionToolTip(texts.option, myLoadResString(tool(), texts.toolTip));
    }
}

/// The standard logs are asked for so that the registry has them from the first gather on.
void ppgGatherLogs00Welcome::IWizardPage_Activate(bool& EnableBack, int& NextOrFinish, std::string&)
{
    applyFontToPage();
    ppgGatherLogs00Welcome_Auto_Init();
    EnableBack = false;
    NextOrFinish = wizardButton::nextEnabled;
    mdlLogs::defineStandardLogs(tool());
    applyFontToControls();
    updateDestinationDirectory();
}

void ppgGatherLogs00Welcome::updateDestinationDirectory()
{
    ErrorTrap step{tool(), pageName, "updateDestinationDirectory"};

    const bool unknown =
        step.value(false, [&] { return SelectedControls(0).m_LogDestinationDirectory.empty(); });
    if (unknown) {
        step([&] {
            SelectedControls(0).m_LogDestinationDirectory =
                mdlLogs::getLogFileDestinationDirectory(tool());
        });
    }
    step([&] {
        lblDestinationDirectory.setCaption(myLoadResString(tool(), TextId::destinationDirectory) +
                                           std::string(lineBreak) +
                                           SelectedControls(0).m_LogDestinationDirectory);
    });
}

/// A cancelled picker gives no folder, so the next step makes a new one.
void ppgGatherLogs00Welcome::cmdChangeDestinationDirectory_Click()
{
    ErrorTrap step{tool(), pageName, "cmdChangeDestinationDirectory_Click"};

    step([&] { SelectedControls(0).m_LogDestinationDirectory = selectDirectory(tool()); });
    step([&] { updateDestinationDirectory(); });
}

void ppgGatherLogs00Welcome::IWizardPage_Next(int& NextPage)
{
    ErrorTrap step{tool(), pageName, "IWizardPage_Next"};

    step.enterProc();
    step([&] { SelectedControls(0).clearOrvanLogs(); });
    step([&] { SelectedControls(0).clearWindowsLogs(); });
    if (optGatherLogs.isSelected(gatherOption::standard)) {
        step([&] { SelectedControls(0).m_bStandardLogs = true; });
        step([&] { SelectedControls(0).m_bTimeFrameLogs = false; });
        const std::string currentLog = step.value("", [&] {
            return mdlDiagnostics::getCurrentDiagnosticFile(tool(), standardGatherProcess);
        });
        step([&] { SelectedControls(0).addOrvanLog(currentLog); });
        step([&] { SelectedControls(0).addWindowsLog("Application"); });
        step([&] { SelectedControls(0).addWindowsLog("System"); });
        NextPage = gatherPage::progress;
    } else if (optGatherLogs.isSelected(gatherOption::byHand)) {
        step([&] { SelectedControls(0).m_bStandardLogs = false; });
        step([&] { SelectedControls(0).m_bTimeFrameLogs = false; });
    } else if (optGatherLogs.isSelected(gatherOption::timeFrame)) {
        step([&] { SelectedControls(0).m_bStandardLogs = false; });
        step([&] { SelectedControls(0).m_bTimeFrameLogs = true; });
        NextPage = gatherPage::timeFrame;
    }
    step.exitProc();
}
