#include "shell/shell_fixture.h"

#include <gmock/gmock.h>

namespace {
using TaskPadView = ShellTest;
}

TEST_F(TaskPadView, ShowsItsTasksInWordsWithTheirSymbols)
{
    struct Case {
        const char* key;
        const char* text;
        const char* helpText;
        char symbol;
    };
    const Case cases[] = {
        {"1", "Configure Macro Traces",
         "Use this task to configure macro traces to help diagnose Orvan problems.", 'M'},
        {"2", "Configure Micro Traces",
         "Use this task to configure individual component traces and levels.", 'M'},
        {"3", "Reset to Default Traces",
         "Use this task to have Orvan disable all traces that are not normally enabled.", '\''},
        {"4", "Start New Log Files",
         "Use this task to have Orvan close current log files and start new ones.", '6'},
        {"5", "Gather Log Files",
         "Use this action to easily gather all necessary log files for diagnosing problems.", 'F'},
        {"6", "Configure Log Settings",
         "Use this action to configure various system wide diagnostic logging settings.", 'G'},
    };

    load();

    TaskPad& pad = view().selectedScopePaneItem().resultView().taskPad();
    EXPECT_EQ("Kelma Orvan Diagnostic Tasks", pad.title);
    EXPECT_EQ("Common diagnostics tasks for Kelma Orvan", pad.description);
    ASSERT_EQ(6, pad.taskCount()) << "opening a file and the language are menu items only";
    int position = 0;
    for (const auto& c : cases) {
        SCOPED_TRACE(c.key);
        const Task& task = pad.task(++position);
        EXPECT_EQ(c.key, task.key);
        EXPECT_EQ(c.text, task.text);
        EXPECT_EQ(c.helpText, task.helpText);
        EXPECT_EQ(c.symbol, task.symbol);
    }
    EXPECT_TRUE(tool.logged("Exiting [mdlSnapIn]populateTaskPadDefault_0"));
}
