#include "hosts/desktop/sheets/gather_additions.h"

#include "hosts/desktop/sheets/page_addition.h"
#include "hosts/desktop/support/test_window.h"
#include "runtime/run_time_error.h"
#include "wizards/gather_completion.h"

#include <QLabel>

#include <gtest/gtest.h>

namespace desktop {

namespace {

/// The last page of a gather into C:\Temp, on a machine where that is /machine/Temp.
struct GatherAdditions : testing::Test {
    TestWindow shown{100};
    std::shared_ptr<classTraceObject> job = std::make_shared<classTraceObject>();
    ppgGatherLogs99Final page{shown.tool->context(), job};
    MachinePath machinePath = [](const std::string& path) {
        return path == "C:\\Temp" ? "/machine/Temp" : path;
    };

    GatherSurroundings surroundings{shown.tool->site().files(),
                                    shown.tool->context().g_strLogFolder, machinePath};

    GatherAdditions() { job->m_LogDestinationDirectory = "C:\\Temp"; }
};

TEST_F(GatherAdditions, TellWhereTheResultsLieOnThisMachine)
{
    const std::unique_ptr<PageAddition> place(gatherAddition(page, surroundings));
    ASSERT_NE(nullptr, place);
    place->renew();
    auto* label = place->findChild<QLabel*>();
    EXPECT_EQ(QStringLiteral("On this machine: /machine/Temp"), label->text());
    EXPECT_TRUE(label->isVisibleTo(place.get()));
    EXPECT_TRUE(label->textInteractionFlags() & Qt::TextSelectableByMouse);

    job->m_LogDestinationDirectory = "/home/results";
    place->renew();
    EXPECT_FALSE(label->isVisibleTo(place.get())) << "the tool's own path tells it";
}

TEST_F(GatherAdditions, TellThatNoFileManagerWasFound)
{
    const auto explained = gatherExplanation(page, RunTimeError(53), machinePath);
    ASSERT_TRUE(explained);
    EXPECT_EQ(QStringLiteral("No file manager was found on this machine. The results are in "
                             "/machine/Temp."),
              explained());
    EXPECT_FALSE(gatherExplanation(page, RunTimeError(76), machinePath)) << "the folder has gone";
}

TEST_F(GatherAdditions, TellNothingOnAPageWithoutAGather)
{
    ppgGatherLogs99Final withoutJob(shown.tool->context(), nullptr);
    const std::unique_ptr<PageAddition> place(gatherAddition(withoutJob, surroundings));
    place->renew();
    EXPECT_FALSE(place->findChild<QLabel*>()->isVisibleTo(place.get()));
}

} // namespace

} // namespace desktop
