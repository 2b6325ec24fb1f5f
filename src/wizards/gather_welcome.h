#pragma once

#include "wizards/wizard_page.h"

/// Page 1 of the gather wizard: where to gather, and which of the three ways.
class ppgGatherLogs00Welcome final : public WizardPage {
public:
    ppgGatherLogs00Welcome(ToolContext& tool, std::shared_ptr<classTraceObject> shared);

    void IWizardPage_Activate(bool& EnableBack, int& NextOrFinish,
                              std::string& FinishText) override;

    /// Fills the job's lists anew for the way that is selected, and shows that way's page.
    void IWizardPage_Next(int& NextPage) override;

    Label lblWelcomeTitle;
    Label lblPurpose;
    Label lblWarnings;
    Label lblDestinationDirectory; ///< a line of caption, and the folder below it
    Button cmdChangeDestinationDirectory;
    OptionButtonGroup optGatherLogs; ///< one of `gatherOption`

private:
    void ppgGatherLogs00Welcome_Auto_Init();
    void updateDestinationDirectory();
    void cmdChangeDestinationDirectory_Click();
};

/// The process whose current log is a standard one.
constexpr const char* standardGatherProcess = "KoCSMgr";

/// The ways to gather.
namespace gatherOption {
constexpr int standard = 0;
constexpr int byHand = 1;
constexpr int timeFrame = 2;
constexpr int count = 3;
} // namespace gatherOption
