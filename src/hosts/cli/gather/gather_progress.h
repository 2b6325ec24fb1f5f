#pragma once

#include "controls/controls.h"
#include "hosts/cli/terminal/progress_line.h"

namespace cli {

/// Draws a gather's controls as one line: all logs as the bar, the current one as its caption.
class GatherProgress final : public ControlObserver {
public:
    /// Follows the controls until it goes; they outlive it.
    GatherProgress(Label& step, ProgressBar& current, ProgressBar& overall);
    ~GatherProgress() override;

    void changed(Control& control) override;

    /// Takes the line away, so that a message can be written.
    void clear() { line_.clear(); }

private:
    Label& step_;
    ProgressBar& current_;
    ProgressBar& overall_;
    ProgressLine line_;
};

} // namespace cli
