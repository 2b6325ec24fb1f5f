#include "wizards/gather_time_frame.h"

#include "core/error_trap.h"
#include "core/localisation.h"
#include "platform/clock.h"
#include "runtime/numbers.h"
#include "wizards/gather_pages.h"

#include <utility>

namespace {

constexpr const char* pageName = "ppgGatherLogs02Step";
constexpr int shortestDuration = 1;  ///< hours
constexpr int longestDuration = 999; ///< hours
constexpr int clockInterval = 1000;  ///< milliseconds

/// Lets the digits through, and nothing else.
int digitKey(int code)
{
    return code >= '0' && code <= '9' ? code : 0;
}

} // namespace

ppgGatherLogs02Step::ppgGatherLogs02Step(ToolContext& tool,
                                         std::shared_ptr<classTraceObject> shared)
    : WizardPage(tool, pageName, std::move(shared)), dtpickerDate(PickerKind::date),
      dtpickerTime(PickerKind::time), updownDuration(shortestDuration, longestDuration),
      timerUpdateTime(clockInterval)
{
    declare("lblStepTitle", ControlRole::title, lblStepTitle);
    declare("lblStepDescription", ControlRole::description, lblStepDescription);
    declare("Frame2", ControlRole::frame, Frame2);
    declare("lblCurrentTime", ControlRole::body, lblCurrentTime);
    declare("lblStartTime", ControlRole::fieldLabel, lblStartTime);
    declare("dtpickerDate", ControlRole::field, dtpickerDate);
    declare("dtpickerTime", ControlRole::field, dtpickerTime);
    declare("lblDuration", ControlRole::fieldLabel, lblDuration);
    declare("txtDuration", ControlRole::field, txtDuration);
    declare("updownDuration", ControlRole::field, updownDuration);
    declare("chkWindowsEventLogs_Application", ControlRole::choice,
            chkWindowsEventLogs_Application);
    declare("chkWindowsEventLogs_System", ControlRole::choice, chkWindowsEventLogs_System);
    declare("timerUpdateTime", ControlRole::timer, timerUpdateTime);

    txtDuration.setText("1");
    txtDuration.onKeyPress = digitKey;
    txtDuration.onChange = [this] { txtDuration_Change(); };
    updownDuration.onChange = [this] { updownDuration_Change(); };
    dtpickerDate.onChange = [this] { dtpickerDate_Change(); };
    dtpickerTime.onChange = [this] { dtpickerTime_Change(); };
    timerUpdateTime.onTick = [this] { timerUpdateTime_Timer(); };
}

void ppgGatherLogs02Step::ppgGatherLogs02Step_ControlInit()
{
    setCaptions({{lblStepTitle, TextId::timeFrameTitle},
                 {lblStepDescription, TextId::timeFrameDescription},
                 {Frame2, TextId::currentTime},
                 {lblStartTime, TextId::startTime},
                 {lblDuration, TextId::durationInHours},
                 {chkWindowsEventLogs_Application, TextId::includeApplicationEvents},
                 {chkWindowsEventLogs_System, TextId::includeSystemEvents}});
}

void ppgGatherLogs02Step::IMMCPropertyPage_Initialize(ScopeItem*, PageSheet& sheet)
{
    ErrorTrap step{tool(), pageName, "IMMCPropertyPage_Initialize"};

    step.enterProc();
    step([&] { SelectedControls(0).m_PropertySheet(sheet); });
    step([&] { populateDefaultTimeRange(); });
    step([&] { chkWindowsEventLogs_Application.setChecked(true); });
    step([&] { chkWindowsEventLogs_System.setChecked(true); });
    step.exitProc();
}

void ppgGatherLogs02Step::IWizardPage_Activate(bool&, int&, std::string&)
{
    FontTarget* const targets[] = {&lblStepTitle, &lblStepDescription, &lblStartTime,
                                   &lblDuration,  &dtpickerDate,       &dtpickerTime,
                                   &Frame2,       &lblCurrentTime};
    for (FontTarget* target : targets) applyLanguageFont(tool(), *target);
    ppgGatherLogs02Step_ControlInit();
}

void ppgGatherLogs02Step::IWizardPage_Back(int& NextPage)
{
    NextPage = gatherPage::welcome;
}

void ppgGatherLogs02Step::IWizardPage_Next(int&)
{
    ErrorTrap step{tool(), pageName, "IWizardPage_Next"};

    step.enterProc();
    step(
        [&] { determineSelectedLogsFromTimeFrame(tool(), choice(), frame_, SelectedControls(0)); });
    step([&] { SelectedControls(0).m_dateStart = frame_.start; });
    step([&] { SelectedControls(0).m_dateEnd = frame_.end; });
    step.exitProc();
}

void ppgGatherLogs02Step::populateDefaultTimeRange()
{
    dtpickerDate.setValue(addHours(tool().platform.clock.now(), -1));
    dtpickerTime.setValue(addHours(tool().platform.clock.now(), -1));
    computeTimeFrame(choice(), frame_);
}

TimeFrameChoice ppgGatherLogs02Step::choice() const
{
    return {dtpickerDate.value(), dtpickerTime.value(), txtDuration.text(),
            chkWindowsEventLogs_Application.checked(), chkWindowsEventLogs_System.checked()};
}

bool ppgGatherLogs02Step::startsInTheFuture()
{
    computeTimeFrame(choice(), frame_);
    return frame_.start > tool().platform.clock.now();
}

void ppgGatherLogs02Step::dtpickerTime_Change()
{
    if (startsInTheFuture()) dtpickerTime.setValue(tool().platform.clock.now());
}

void ppgGatherLogs02Step::dtpickerDate_Change()
{
    if (!startsInTheFuture()) return;
    dtpickerTime.setValue(tool().platform.clock.now());
    dtpickerDate.setValue(tool().platform.clock.now());
}

/// A text that is put back changes the field anew, so this runs again inside.
void ppgGatherLogs02Step::txtDuration_Change()
{
    const double typed = leadingNumber(txtDuration.text());
    if (typed > updownDuration.maximum() || typed < updownDuration.minimum())
        txtDuration.setText(acceptedDuration_);
    updownDuration.setValue(toInteger32(leadingNumber(txtDuration.text())));
    acceptedDuration_ = txtDuration.text();
}

void ppgGatherLogs02Step::updownDuration_Change()
{
    txtDuration.setText(numberText(std::int64_t{updownDuration.value()}));
}

void ppgGatherLogs02Step::timerUpdateTime_Timer()
{
    const Date now = tool().platform.clock.now();
    lblCurrentTime.setCaption(longDate(now) + " " + mediumTime(now));
    lblCurrentTime.refresh();
}
