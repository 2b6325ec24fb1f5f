#include "shell/task_pad_view.h"

#include "console/result_view.h"
#include "core/error_trap.h"
#include "core/localisation.h"

namespace {

struct TaskTexts {
    TextId text;
    TextId helpText;
    char symbol;
};

/// By position on the task pad.
constexpr TaskTexts taskTexts[] = {
    {TextId::configureMacroTraces, TextId::macroTraceTaskHelp, 77},
    {TextId::configureMicroTraces, TextId::microTraceTaskHelp, 77},
    {TextId::resetToDefaultTraces, TextId::resetTaskHelp, 39},
    {TextId::startNewLogFiles, TextId::startNewLogFilesTaskHelp, 54},
    {TextId::gatherLogFiles, TextId::gatherActionHelp, 70},
    {TextId::configureLogSettings, TextId::logSettingsActionHelp, 71}};

} // namespace

void mdlSnapIn::populateTaskPadDefault(ToolContext& tool, ResultView& resultView)
{
    ErrorTrap step{tool, "mdlSnapIn", "populateTaskPadDefault"};

    step.enterProc();
    step([&] { resultView.taskPad().title = myLoadResString(tool, TextId::taskPadTitle); });
    step([&] {
        resultView.taskPad().description = myLoadResString(tool, TextId::taskPadDescription);
    });
    int position = 0;
    for (const TaskTexts& texts : taskTexts) {
        ++position;
        step([&] { resultView.taskPad().task(position).text = myLoadResString(tool, texts.text); });
        step([&] {
            resultView.taskPad().task(position).helpText = myLoadResString(tool, texts.helpText);
        });
        step([&] { resultView.taskPad().task(position).symbol = texts.symbol; });
    }
    step.exitProc();
}
