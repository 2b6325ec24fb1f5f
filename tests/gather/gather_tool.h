#pragma once

#include "controls/label.h"
#include "controls/progress_bar.h"
#include "controls/tree_view.h"
#include "gather/cancel.h"
#include "gather/importers/diagnostic_copy.h"
#include "gather/pipeline.h"
#include "support/test_tool.h"

#include <string>
#include <vector>

/// A tool on a server with a log folder, and the controls that the progress page lends.
struct GatherTool : TestTool {
    GatherTool()
    {
        context.g_strLogFolder = "C:\\Logs";
        files.withFolder("C:\\Logs").withFolder("C:\\Out");
        steps.add("Orvan Logs");
        steps.add("Windows Event Logs");
        label.setCaption("Processing");
    }

    TreeView steps;
    Label label;
    ProgressBar current;
    ProgressBar overall;

    GatherTool& withServerLog(const std::string& name)
    {
        steps.addChild(steps.item(1), name);
        return *this;
    }

    GatherTool& withEventLog(const std::string& name)
    {
        steps.addChild(steps.item(2), name);
        return *this;
    }

    /// Runs the pipeline without a time frame.
    std::string gather(const std::string& destination = "C:\\Out")
    {
        return mdlLogs::processLogs(context, steps, label, current, overall, destination, Date{},
                                    Date{});
    }

    void copyLog(const std::string& name)
    {
        mdlLogs::processOrvanLogFile(context, name, "C:\\Out", current, label);
    }
};

/// Remembers the captions that a label was given, oldest first.
class CaptionRecorder final : public ControlObserver {
public:
    explicit CaptionRecorder(Label& label) : label_(label) { label.observe(this); }
    ~CaptionRecorder() override { label_.observe(nullptr); }

    void changed(Control&) override { captions.push_back(label_.caption()); }
    void refreshed(Control&) override { ++refreshes; }

    std::vector<std::string> captions;
    int refreshes = 0;

private:
    Label& label_;
};

/// A log of `count` raw lines of 40 bytes, each with its number at the end.
inline std::string logOf(int count)
{
    std::string log;
    for (int number = 1; number <= count; ++number) {
        std::string digits = std::to_string(number);
        digits.insert(0, 6 - digits.size(), '0');
        log += "15:23:07:123,Conv,1234,CallFlow,7," + digits + "\r\n";
    }
    return log;
}

/// The formatted copy of `logOf(count)`.
inline std::string copyOf(int count)
{
    std::string log;
    for (int number = 1; number <= count; ++number) {
        std::string digits = std::to_string(number);
        digits.insert(0, 6 - digits.size(), '0');
        log += "15:23:07:123 (Conv,1234,CallFlow,7) " + digits + " \r\n";
    }
    return log;
}
