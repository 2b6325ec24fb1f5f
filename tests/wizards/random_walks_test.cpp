#include "wizards/gather_wizard_fixture.h"
#include "wizards/macro_trace_pages.h"
#include "wizards/macro_trace_step.h"
#include "wizards/micro_trace_wizard.h"
#include "wizards/reset_wizard.h"
#include "wizards/wizard_walker.h"
#include "wizards/wizards_fixture.h"

#include <algorithm>

namespace {

constexpr int actions = 1000;

/// Work of these wizards is what the log manager is told of.
struct RandomWalks : WizardTest {
    WalkedWizard walked;

    RandomWalks()
    {
        tool.database.withComponent("A", 1, 1).withComponent("B", 2, 0);
        for (const char* group : {"Calls", "Mail"}) {
            const std::string name = group;
            withFile("HT" + name + ".xml",
                     "<GA NAME='" + name + "'><TRACE NAME='" + name +
                         "1'><DESCRIPTION/><DIAG GROUP='A'><FLAG ID='3'/></DIAG></TRACE><TRACE "
                         "NAME='" +
                         name +
                         "2'><DESCRIPTION/><DIAG GROUP='B'><FLAG ID='4'/></DIAG></TRACE></GA>");
        }
        walked.workDone = [this] { return signalsSent(); };
        walked.check = [](SheetPage&) {};
    }

    /// The one macro trace that a line of the summary stands for, counted.
    static int timesListed(const std::string& summary, const std::string& line)
    {
        const std::string listed = "\r\n        " + line + "\r\n";
        const std::string whole = summary + "\r\n";
        int times = 0;
        for (auto at = whole.find(listed); at != std::string::npos; at = whole.find(listed, at + 1))
            ++times;
        return times;
    }

    template <typename... Pages>
    void makes()
    {
        walked.make = [this] {
            sheet = std::make_shared<WizardSheet>("Wizard");
            (add<Pages>(), ...);
            return sheet;
        };
    }

    void walk(std::uint32_t seed, const std::vector<std::string>& pages)
    {
        WizardWalker walker(walked, seed);
        walker.walk(actions);
        for (const auto& page : pages)
            EXPECT_GT(walker.arrivals().count(page), 5u) << page << " is hardly ever reached";
    }
};

} // namespace

TEST_F(RandomWalks, OfTheMacroTraceWizard)
{
    makes<ppgMacroTrace0Welcome, ppgMacroTrace1, ppgMacroTrace3Final>();
    walked.waitForChoice = {"ppgMacroTrace1"};
    walked.works = [](const SheetPage& page, Press press) {
        return press == Press::next && page.name() == "ppgMacroTrace1";
    };
    walked.check = [this](SheetPage& page) {
        const auto& tree = dynamic_cast<ppgMacroTrace1&>(sheet->page(2)).treeviewMacroTrace;
        EXPECT_EQ(6, tree.count()) << "the tree is filled once";
        if (page.name() != "ppgMacroTrace3Final") return;
        const std::string summary = captionOf(page, "lblSummary");
        EXPECT_NE("", summary) << "only a change leads here";
        for (const auto& key : shared->dictStatus->keys())
            EXPECT_EQ(1, timesListed(summary, key)) << summary;
        EXPECT_EQ(shared->dictStatus->count(),
                  static_cast<std::size_t>(std::count(summary.begin(), summary.end(), '-')));
        for (int number = 1; number <= tree.count(); ++number) {
            const TreeNode& node = tree.item(number);
            if (!node.parent()) continue;
            const bool on =
                tool.registry.number(recordKey(node.parent()->text(), node.text()), "Enabled") == 1;
            EXPECT_EQ(node.checked(), on) << node.text();
        }
        EXPECT_EQ(1, flags("A") & 1) << "a default flag";
    };
    walk(1, {"ppgMacroTrace0Welcome", "ppgMacroTrace1", "ppgMacroTrace3Final"});
}

TEST_F(RandomWalks, OfTheMicroTraceWizard)
{
    makes<ppgMicroTrace00Welcome, ppgMicroTrace01Step, ppgMicroTrace99Final>();
    walked.waitForChoice = {"ppgMicroTrace01Step"};
    walked.works = [](const SheetPage& page, Press press) {
        return press == Press::next && page.name() == "ppgMicroTrace01Step";
    };
    walked.check = [this](SheetPage& page) {
        const auto& tree = dynamic_cast<ppgMicroTrace01Step&>(sheet->page(2)).treeviewMicroTraces;
        EXPECT_EQ(6, tree.count()) << "the tree is filled once";
        if (page.name() != "ppgMicroTrace99Final") return;
        for (const int root : {1, 4}) {
            std::int32_t ticks = 0;
            for (const int level : {0, 1})
                if (tree.item(root + 1 + level).checked()) ticks |= 1 << level;
            const std::string name = tree.item(root).key();
            EXPECT_EQ(ticks | (name == "A" ? 1 : 0), flags(name)) << name;
        }
    };
    walk(2, {"ppgMicroTrace00Welcome", "ppgMicroTrace01Step", "ppgMicroTrace99Final"});
}

TEST_F(RandomWalks, OfTheResetWizard)
{
    makes<ppgDisableAllTraces0>();
    walked.waitForChoice = {"ppgDisableAllTraces0"};
    walked.works = [](const SheetPage& page, Press press) {
        return press == Press::finish &&
               dynamic_cast<const CheckBox&>(*page.control("chkDisableAllTraces")).checked();
    };
    walk(3, {"ppgDisableAllTraces0"});
}

namespace {

/// Work of the gather wizard is what its runs capture and pack; only a timer begins one.
struct GatherWalk : GatherWizardTest {
    WalkedWizard walked;

    GatherWalk()
    {
        withCurrentLog("KoCSMgr", "diag_KoCSMgr_20051008_120000.txt", rawLog(3));
        withProcess("KoIdle");
        withEventLog("Application");
        withEventLog("System");
        tool.files.with("C:\\OrvanDiagnostics\\blankWPNDB.mdb", "blank");
        walked.make = [this] {
            makeSheet();
            return sheet;
        };
        walked.waitForChoice = {"ppgGatherLogs01Step", "ppgGatherLogs03Step"};
        walked.workDone = [this] {
            return static_cast<int>(tool.eventLogExporter.exports().size());
        };
        walked.works = [](const SheetPage&, Press) { return false; };
        walked.check = [this](SheetPage& page) { check(page); };
    }

    void check(SheetPage& page)
    {
        EXPECT_FALSE(shared->m_bStandardLogs && shared->m_bTimeFrameLogs) << "one way at a time";
        EXPECT_NE("", shared->m_LogDestinationDirectory);
        EXPECT_EQ(7, selection->treeviewLogsToGather.count()) << "the tree is filled once";
        EXPECT_LE(frame->dtpickerDate.value(), tool.clock.now()) << "no frame begins in the future";
        if (page.name() == "ppgGatherLogs03Step") checkSteps();
        if (page.name() == "ppgGatherLogs99Final") {
            EXPECT_TRUE(tool.files.folderExists(shared->m_LogDestinationDirectory));
            EXPECT_EQ(!tool.context.g_strTraceDatabase.empty(), last->cmdLaunchQRV.enabled());
        }
    }

    /// The steps are the lists of the job, and a run that has not begun is about to.
    void checkSteps()
    {
        std::vector<std::string> rows{"Orvan Logs"};
        for (const auto& log : serverLogs()) rows.push_back("  " + log);
        rows.push_back("Windows Event Logs");
        for (const auto& log : eventLogs()) rows.push_back("  " + log);
        EXPECT_EQ(rows, rowsOf(progress->treeviewSteps));
        EXPECT_TRUE(progress->tmrDelayStart.running());
    }
};

} // namespace

TEST_F(GatherWalk, OfTheGatherWizard)
{
    WizardWalker walker(walked, 5);
    walker.walk(3 * actions);
    for (const char* page : {"ppgGatherLogs00Welcome", "ppgGatherLogs01Step", "ppgGatherLogs02Step",
                             "ppgGatherLogs03Step", "ppgGatherLogs99Final"})
        EXPECT_GT(walker.arrivals().count(page), 5u) << page << " is hardly ever reached";
}
