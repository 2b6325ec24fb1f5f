#pragma once

#include "controls/controls.h"
#include "hosts/cli/driving/wizard_driver.h"
#include "hosts/cli/gather/frame_arguments.h"
#include "wizards/time_frame_choice.h"

#include <optional>
#include <string>
#include <vector>

class ppgGatherLogs03Step;

namespace cli {

/// What a person answers on the pages of the gather wizard.
struct GatherAnswers {
    int option = 0;                     ///< one of `gatherOption`
    std::vector<std::string> logs;      ///< of a selection by hand, in any case
    std::vector<std::string> eventLogs; ///< the same
    std::optional<FrameEntry> frame;    ///< of a time frame; none for the page's own
    bool applicationLog = true;         ///< with a time frame
    bool systemLog = true;              ///< the same
    std::string destination;            ///< as the tool's path; empty for the wizard's own
};

/// The gather wizard at its progress page, about to run.
class GatherWizard {
public:
    /// Answers the pages before. Raises CommandFailure for a destination that can't be written
    /// to, and for what the pages don't offer.
    GatherWizard(OpenTool& tool, const GatherAnswers& answers);

    /// Where the results go, as the tool's path.
    const std::string& destination() const { return destination_; }

    /// The time frame that the page has taken; nothing where none was asked for.
    const std::optional<TimeFrame>& frame() const { return frame_; }

    /// The controls that the run reports to. They live as long as this.
    TreeView& steps() { return *steps_; }
    Label& currentStep() { return *currentStep_; }
    ProgressBar& current() { return *current_; }
    ProgressBar& overall() { return *overall_; }

    /// The page that runs the gather. It lives as long as this.
    const ppgGatherLogs03Step& progressPage() const { return *progressPage_; }

    /// Lets the delay before the run pass at once, as there is nothing to paint, and returns when
    /// the run has. Raises CommandFailure when the wizard did not go on by itself, but for a
    /// cancel.
    void run();

    /// The person's cancel, during the run: the wizard closes, and the run ends at its next look.
    void cancel() { driver_.sheet().cancel(); }

private:
    void chooseDestination(OpenTool& tool, const GatherAnswers& answers);
    void tickLogs(const GatherAnswers& answers);
    void enterFrame(const GatherAnswers& answers);

    WizardDriver driver_;
    std::string destination_;
    std::optional<TimeFrame> frame_;
    const ppgGatherLogs03Step* progressPage_ = nullptr;
    TreeView* steps_ = nullptr;
    Label* currentStep_ = nullptr;
    ProgressBar* current_ = nullptr;
    ProgressBar* overall_ = nullptr;
};

} // namespace cli
