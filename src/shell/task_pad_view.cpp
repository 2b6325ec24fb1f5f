#include "console/result_view.h"
#include "core/error_trap.h"
#include "core/localisation.h"
#include "shell/snapin_routines.h"

namespace {

struct TaskTexts {
    int text;
    int helpText;
    char symbol;
};

/// By position on the task pad.
constexpr TaskTexts taskTexts[] = {{1024, 1117, 77}, {1026, 1116, 77}, {1036, 1119, 39},
                                   {1083, 1118, 54}, {1045, 1112, 70}, {1023, 1111, 71}};

} // namespace

void mdlSnapIn::populateTaskPadDefault(ToolContext& tool, ResultView& resultView)
{
    ErrorTrap step{tool, "mdlSnapIn", "populateTaskPadDefault"};

    step.enterProc();
    step([&] { resultView.taskPad().title = myLoadResString(tool, 1014); });
    step([&] { resultView.taskPad().description = myLoadResString(tool, 1018); });
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
