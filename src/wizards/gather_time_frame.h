#pragma once

#include "wizards/time_frame_choice.h"
#include "wizards/wizard_page.h"

/// Page 3 of the gather wizard: when the frame starts, how long it is and which event logs belong
/// to it; Next takes the server's logs that touch it.
///
/// What a person enters is judged at once. A duration that is no number, which an emptied field is,
/// makes a picker's change raise 13; one out of a number's range makes its own change raise 6.
class ppgGatherLogs02Step final : public WizardPage, public IMMCPropertyPage {
public:
    ppgGatherLogs02Step(ToolContext& tool, std::shared_ptr<classTraceObject> shared);

    IMMCPropertyPage* propertyPage() override { return this; }

    void IMMCPropertyPage_Initialize(ScopeItem* Data, PageSheet& sheet) override;
    void IWizardPage_Activate(bool& EnableBack, int& NextOrFinish,
                              std::string& FinishText) override;
    void IWizardPage_Back(int& NextPage) override;
    void IWizardPage_Next(int& NextPage) override;

    /// What the person has entered so far.
    TimeFrameChoice choice() const;

    Label lblStepTitle;
    Label lblStepDescription;
    Frame Frame2; ///< around the clock
    Label lblCurrentTime;
    Label lblStartTime;
    DateTimePicker dtpickerDate;
    DateTimePicker dtpickerTime;
    Label lblDuration;
    TextBox txtDuration; ///< hours; its keys are the digits alone, so backspace does nothing
    SpinControl updownDuration;
    CheckBox chkWindowsEventLogs_Application;
    CheckBox chkWindowsEventLogs_System;
    Timer timerUpdateTime;

private:
    void ppgGatherLogs02Step_ControlInit();
    void populateDefaultTimeRange();
    bool startsInTheFuture();
    void dtpickerTime_Change();
    void dtpickerDate_Change();
    void txtDuration_Change();
    void updownDuration_Change();
    void timerUpdateTime_Timer();

    TimeFrame frame_;              ///< as last computed
    std::string acceptedDuration_; ///< text of `txtDuration` at the end of its last change
};
