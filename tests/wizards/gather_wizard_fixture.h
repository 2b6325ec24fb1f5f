#pragma once

#include "wizards/gather_completion.h"
#include "wizards/gather_log_selection.h"
#include "wizards/gather_progress.h"
#include "wizards/gather_time_frame.h"
#include "wizards/gather_welcome.h"
#include "wizards/wizards_fixture.h"

#include <string>
#include <vector>

/// The texts of a job's list from index 1 on.
inline std::vector<std::string> textsOf(const StringArray& list)
{
    std::vector<std::string> texts;
    for (int index = 1; index <= list.upperBound(); ++index) texts.push_back(list.at(index));
    return texts;
}

/// The gather wizard on a server whose logs lie in C:\Logs, not yet shown.
struct GatherWizardTest : WizardTest {
    ppgGatherLogs00Welcome* welcome = nullptr;
    ppgGatherLogs01Step* selection = nullptr;
    ppgGatherLogs02Step* frame = nullptr;
    ppgGatherLogs03Step* progress = nullptr;
    ppgGatherLogs99Final* last = nullptr;

    GatherWizardTest()
    {
        tool.context.g_strLogFolder = "C:\\Logs";
        tool.files.withFolder("C:\\Logs").withFolder("C:\\Out");
        tool.eventLogExporter.with("Application", "a").with("System", "s");
        shared->m_LogDestinationDirectory = "C:\\Out";
        makeSheet();
    }

    void makeSheet()
    {
        sheet = std::make_shared<WizardSheet>("GatherLogFiles");
        welcome = &add<ppgGatherLogs00Welcome>();
        selection = &add<ppgGatherLogs01Step>();
        frame = &add<ppgGatherLogs02Step>();
        progress = &add<ppgGatherLogs03Step>();
        last = &add<ppgGatherLogs99Final>();
    }

    static std::string processKey(const std::string& process)
    {
        return std::string(logManagerKey) + "\\Process\\" + process;
    }

    void withProcess(const std::string& process) { tool.registry.withKey(processKey(process)); }

    void withEventLog(const std::string& name)
    {
        tool.registry.withKey("System\\CurrentControlSet\\Services\\Eventlog\\" + name);
    }

    void withLog(const std::string& name, const std::string& content = "")
    {
        tool.files.with("C:\\Logs\\" + name, content);
    }

    /// A log with the moments of its first and last line.
    void withLog(const std::string& name, Date created, Date modified)
    {
        withLog(name);
        tool.files.created("C:\\Logs\\" + name, created).modified("C:\\Logs\\" + name, modified);
    }

    void withCurrentLog(const std::string& process, const std::string& name,
                        const std::string& content = "")
    {
        withLog(name, content);
        tool.registry.withText(processKey(process), "CurrentLogFile", "C:\\Logs\\" + name);
    }

    std::string onShow() const { return sheet->currentPage().name(); }

    /// Opens the sheet, selects a way to gather and goes on.
    void start(int option)
    {
        sheet->show();
        welcome->optGatherLogs.click(option);
        ASSERT_TRUE(sheet->next());
    }

    /// The delay before a run is over.
    void runStarts() { sheet->tick(progress->tmrDelayStart); }

    std::vector<std::string> serverLogs() const { return textsOf(shared->getOrvanLogs()); }
    std::vector<std::string> eventLogs() const { return textsOf(shared->getWindowsLogs()); }
};

/// A raw log of so many lines.
inline std::string rawLog(int lines)
{
    std::string log;
    for (int number = 0; number < lines; ++number) log += "15:23:07:123,Conv,1234,Call,7,x\r\n";
    return log;
}
