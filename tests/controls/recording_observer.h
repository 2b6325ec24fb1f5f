#pragma once

#include "controls/control.h"
#include "runtime/run_time_error.h"

/// Counts what it hears of a control.
class RecordingObserver final : public ControlObserver {
public:
    void changed(Control& control) override
    {
        ++changes;
        last = &control;
    }
    void refreshed(Control& control) override
    {
        ++refreshes;
        last = &control;
    }

    int changes = 0;
    int refreshes = 0;
    Control* last = nullptr;
};

/// The number of the error that `statement` raises; 0 for none.
template <typename Statement>
int errorNumberOf(Statement&& statement)
{
    try {
        statement();
    } catch (const RunTimeError& error) {
        return error.number();
    }
    return 0;
}
