#include "hosts/desktop/log/log_growth.h"

#include "hosts/desktop/log/filter_bar.h"
#include "hosts/desktop/log/growth_bar.h"
#include "hosts/desktop/log/list_table.h"
#include "hosts/desktop/log/log_view.h"
#include "hosts/desktop/log/too_large_pane.h"
#include "hosts/desktop/support/test_window.h"
#include "shell/diag_log_view.h"

#include <QPushButton>

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

namespace desktop {

namespace {

TEST(LogGrowth, CountsTheLinesThatTheToolWouldShow)
{
    TemporaryFolder folder;
    const std::string file = folder.write("a.txt", "one\r\n\r\ntwo\r\nth");
    LogGrowth growth;
    growth.watch(QString::fromStdString(file), 3);
    EXPECT_EQ(0, growth.newLines()) << "an empty line is no row, one without an end is";

    std::ofstream(file, std::ios::app) << "ree\r\n\r\nfour\r\nfive\n";
    growth.look();
    EXPECT_EQ(2, growth.newLines());
    EXPECT_FALSE(growth.begunAnew());

    folder.write("a.txt", "another\n");
    growth.look();
    EXPECT_TRUE(growth.begunAnew());
    EXPECT_EQ(1, growth.newLines());

    growth.watch({}, 0);
    EXPECT_EQ(0, growth.newLines());
    EXPECT_FALSE(growth.begunAnew());
}

TEST(LogGrowth, CountsNothingOfAFileThatIsNotThere)
{
    LogGrowth growth;
    growth.watch(QStringLiteral("/nowhere/a.txt"), 0);
    growth.look();
    EXPECT_EQ(0, growth.newLines());
    EXPECT_EQ(0, growth.size());
}

/// A log on show, which grows.
struct GrowingLog : TestWindow {
    explicit GrowingLog(const char* process = "KoCSMgr")
        : file(server.logs() + "/" + server.currentLog(process))
    {
        showLog(process);
        log().growthBar(); // made with the view
    }

    void grow(int lines)
    {
        std::ofstream stream(file, std::ios::app);
        for (int line = 0; line < lines; ++line)
            stream << "16:00:00:" << 100 + line << ",Conv,1,Late,2,late line\r\n";
        stream.close();
    }

    bool says(const QString& sentence)
    {
        return waitUntil([&] { return log().growthBar().said() == sentence; });
    }

    int rows() { return log().model().rowCount(); }
    int currentRow() { return log().table().currentIndex().row(); }

    std::string file;
};

TEST(GrowingLogs, TellHowManyLinesCameAndAreReadWhenAsked)
{
    GrowingLog shown;
    const int before = shown.rows();
    EXPECT_FALSE(shown.log().growthBar().isVisible());
    shown.grow(3);
    EXPECT_TRUE(shown.says(QStringLiteral("3 new lines")));
    EXPECT_TRUE(shown.log().growthBar().isVisible());
    EXPECT_EQ(before, shown.rows()) << "nothing is read unasked";

    emit shown.log().growthBar().readAsked();
    settle();
    EXPECT_EQ(before + 3, shown.rows());
    EXPECT_FALSE(shown.log().growthBar().isVisible());
}

TEST(GrowingLogs, AreFollowedWhileTheLastLineIsTheCurrentOne)
{
    GrowingLog shown;
    EXPECT_FALSE(shown.log().following()) << "unless a person asks for it";
    shown.log().setFollowing(true);
    settle();
    const int before = shown.rows();
    EXPECT_EQ(before - 1, shown.currentRow());
    EXPECT_TRUE(shown.window->action(Command::follow).isChecked());

    shown.grow(2);
    ASSERT_TRUE(waitUntil([&] { return shown.rows() == before + 2; }));
    EXPECT_EQ(before + 1, shown.currentRow());

    shown.log().table().goTo(10);
    shown.grow(4);
    EXPECT_TRUE(shown.says(QStringLiteral("4 new lines wait. Go to the last line to see them.")));
    EXPECT_EQ(before + 2, shown.rows());
    EXPECT_EQ(10, shown.currentRow());

    shown.log().table().goTo(before + 1);
    ASSERT_TRUE(waitUntil([&] { return shown.rows() == before + 6; }));
    EXPECT_EQ(before + 5, shown.currentRow());
    shown.log().setFollowing(false);
    EXPECT_FALSE(shown.log().growthBar().isVisible());
}

TEST(GrowingLogs, ThatGrowPastWhatTheToolShowsAreFollowedNoFurther)
{
    GrowingLog shown;
    shown.log().setFollowing(true);
    settle();
    const int before = shown.rows();
    QString asked;
    QObject::connect(shown.window.get(), &MainWindow::viewerAsked,
                     [&](const QString& path) { asked = path; });
    std::ofstream(shown.file, std::ios::app)
        << std::string(static_cast<std::size_t>(mdlSnapIn::largestShownLog), 'x') << "\r\n";
    EXPECT_TRUE(shown.says(
        QStringLiteral("This log has grown past the 2,500,000 bytes that the tool shows.")));
    EXPECT_EQ(before, shown.rows());
    EXPECT_TRUE(shown.desktop.messages().empty()) << "the tool was not asked";
    emit shown.log().growthBar().viewerAsked();
    EXPECT_EQ(shown.file, asked.toStdString());
}

TEST(TooLargeLogs, GiveTheToolsBoxAndThenOpenInTheViewerByOneClick)
{
    TestWindow shown;
    const std::string file = shown.server.logs() + "/" + shown.server.currentLog("KoCSMgr");
    std::filesystem::resize_file(file, mdlSnapIn::largestShownLog + 1);
    QString asked;
    QObject::connect(shown.window.get(), &MainWindow::viewerAsked,
                     [&](const QString& path) { asked = path; });
    shown.showLog("KoCSMgr");
    EXPECT_EQ(1U, shown.desktop.messages().size());
    TooLargePane& pane = shown.log().tooLarge();
    EXPECT_TRUE(pane.isVisible());
    EXPECT_FALSE(shown.log().table().isVisible());
    pane.viewer().click();
    EXPECT_EQ(file, asked.toStdString());

    shown.showLog("KoNotify");
    EXPECT_FALSE(pane.isVisible());
    EXPECT_TRUE(shown.log().table().isVisible());
}

} // namespace

} // namespace desktop
