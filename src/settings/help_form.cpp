#include "settings/help_form.h"

#include "settings/help.h"

namespace {
constexpr int untilTheCallHasReturned = 100; ///< milliseconds
}

frmHelp::frmHelp(ToolContext& tool) : Timer1(untilTheCallHasReturned, false), tool_(tool)
{
    Timer1.onTick = [this] { Timer1_Timer(); };
}

void frmHelp::Timer1_Timer()
{
    mdlHTMLHelp::showCHMHelp(tool_, mdlHTMLHelp::getHelpFileName(tool_));
    Timer1.setEnabled(false);
}
