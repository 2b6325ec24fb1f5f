#pragma once

#include "controls/timer.h"

struct ToolContext;

/// A hidden form whose timer shows the help once the console's own call has returned.
class frmHelp {
public:
    explicit frmHelp(ToolContext& tool);

    /// At rest. Each time that it is switched on, help is shown once.
    Timer Timer1;

private:
    void Timer1_Timer();

    ToolContext& tool_;
};
