#pragma once

#include "core/error_trap.h"
#include "hosts/common/gather/gather_report.h"
#include "hosts/common/gather/gather_watch.h"
#include "support/temporary_folder.h"
#include "wizards/gather_wizard_fixture.h"

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

/// A gather whose page is on show: a test plays what the run does, and asks what came of it.
struct GatherWatchTest : GatherWizardTest {
    TemporaryFolder machine;
    std::string out = machine.makeFolder("Out");
    GatherReport report;

    /// Goes to the progress page with a job of its own.
    void job(std::vector<std::string> logs, std::vector<std::string> windowsLogs)
    {
        sheet->show();
        shared->clearOrvanLogs();
        shared->clearWindowsLogs();
        for (const auto& log : logs) shared->addOrvanLog(log);
        for (const auto& log : windowsLogs) shared->addWindowsLog(log);
        int button = 0;
        bool back = false;
        std::string text;
        progress->IWizardPage_Activate(back, button, text);
    }

    GatherWatch watch()
    {
        return GatherWatch(tool.context, report, *progress, [this](const std::string& path) {
            std::string below = path.substr(3);
            std::replace(below.begin(), below.end(), '\\', '/');
            return machine.path() + "/" + below;
        });
    }

    /// An error in a routine of the pipeline, while a log is being gathered or between them.
    void fail(const RunTimeError& error, const char* routine, const std::string& log = {})
    {
        const auto mark = [&](bool bold) {
            auto& steps = progress->treeviewSteps;
            for (int index = 1; index <= steps.count(); ++index)
                if (!log.empty() && steps.item(index).text() == log)
                    steps.item(index).setBold(bold);
        };
        mark(true);
        ErrorTrap step{tool.context, "mdlLogs", routine};
        step([&] { throw error; });
        mark(false);
    }

    void fail(int error, const char* routine = "processLogs", const std::string& log = {})
    {
        fail(RunTimeError(error), routine, log);
    }

    static std::vector<std::string> texts(const std::vector<Sentence>& sentences)
    {
        std::vector<std::string> all;
        for (const auto& sentence : sentences) all.push_back(sentence.text());
        return all;
    }
};

/// A gather of a frame without logs, whose database and cabinet a test writes.
struct FrameGatherTest : GatherWatchTest {
    FrameGatherTest()
    {
        job({}, {});
        shared->m_bTimeFrameLogs = true;
        tool.context.g_strTraceDatabase = "C:\\Out\\PC_WPN_1.mdb";
        tool.context.g_strLogFolder = "C:\\Logs";
        tool.files.withFolder("C:\\Logs").with("C:\\OrvanDiagnostics\\cabmaker.exe", "x");
    }

    /// Runs the cabinet maker to its end, of which so much is known then.
    void runCabinetMaker(ProcessReport known)
    {
        tool.processes.reporting(std::move(known));
        tool.processes.wait(tool.processes.start("cabmaker.exe", WindowStyle::hidden), -1);
    }

    std::string lastMissing(const GatherWatch& watched)
    {
        machine.write("Out/PC_WPN_1.mdb");
        const auto missing = texts(watched.outcome().missing);
        return missing.empty() ? "" : missing.back();
    }
};

/// A cabinet that holds files of these names, as far as its head.
inline std::string cabinetOf(const std::vector<std::string>& names)
{
    constexpr std::size_t headSize = 36;
    std::string head(headSize, '\0');
    head.replace(0, 4, "MSCF");
    head[16] = static_cast<char>(headSize);
    head[28] = static_cast<char>(names.size());
    for (const auto& name : names) head += std::string(16, '\1') + name + '\0';
    return head;
}
