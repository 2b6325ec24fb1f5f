#include "backends/jet/outside_readers.h"
#include "hosts/desktop/sheets/sheet_dialog.h"
#include "hosts/desktop/support/open_program.h"
#include "hosts/desktop/support/person.h"

#include <QAbstractButton>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QProgressBar>
#include <QStatusBar>
#include <QTimer>
#include <QTreeView>

#include <gmock/gmock.h>

#include <fstream>
#include <set>

namespace desktop {

namespace {

namespace fs = std::filesystem;
using testing::HasSubstr;

/// Tells of each painting of the widgets that it watches.
class PaintWatcher final : public QObject {
public:
    std::function<void(QWidget& widget)> painted;

private:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::Paint && painted) painted(static_cast<QWidget&>(*watched));
        return false;
    }
};

/// A gather of large logs, with what a person does in the middle of it.
struct GatherAtWork : testing::Test {
    OpenProgram shown{60'000};
    std::string target = shown.server.folder() / "gathered";
    PaintWatcher watcher;
    QPointer<SheetDialog> dialog;
    int interruptions = 0;

    void begin()
    {
        fs::create_directories(target);
        person::press(QKeySequence("Ctrl+5"));
        person::pickNext(target);
        person::clickButton(shown.sheet(), "Browse...");
        dialog = &shown.sheet();
    }

    QTreeView& tree()
    {
        for (auto* view : shown.sheet().findChildren<QTreeView*>())
            if (view->isVisible()) return *view;
        throw std::runtime_error("no tree on the page");
    }

    /// Has all logs of a process gathered, formatted.
    void gatherProcess(const QString& process)
    {
        begin();
        person::clickButton(shown.sheet(), "Select logs");
        person::clickButton(shown.sheet(), "Next >");
        person::clickTick(tree(), rowAt(*tree().model(), {"Orvan Logs", process}));
        person::clickButton(shown.sheet(), "Next >");
        watchProgress();
    }

    /// Has a time frame over all of the sample's days gathered, without event logs.
    void gatherAllDays()
    {
        begin();
        person::clickButton(shown.sheet(), "Process logs over specified time frame");
        person::clickButton(shown.sheet(), "Next >");
        person::typeInto(OpenProgram::picker(shown.sheet(), MomentField::Part::date), "2/17/2025");
        person::typeInto(OpenProgram::picker(shown.sheet(), MomentField::Part::time), "0:00:00");
        person::click(OpenProgram::field(shown.sheet(), "Duration (Hours):"));
        person::press(Qt::Key_Home);
        person::press(Qt::Key_Delete);
        person::type("999");
        person::clickButton(shown.sheet(), "Include Windows Application Event Log");
        person::clickButton(shown.sheet(), "Include Windows System Event Log");
        person::clickButton(shown.sheet(), "Next >");
        watchProgress();
    }

    void watchProgress()
    {
        for (auto* label : dialog->findChildren<QLabel*>()) label->installEventFilter(&watcher);
        for (auto* bar : dialog->findChildren<QProgressBar*>()) bar->installEventFilter(&watcher);
    }

    /// Does something once, at the next turn of the events behind the painting of a progress bar
    /// that has come to `part` of a log.
    void interruptAt(double part, std::function<void()> act)
    {
        watcher.painted = [this, part, act = std::move(act)](QWidget& widget) {
            const auto* bar = qobject_cast<QProgressBar*>(&widget);
            const bool reading = shown.pane().sheetAtWork();
            if (!bar || !reading || bar->value() < part * bar->maximum() || interruptions > 0)
                return;
            ++interruptions;
            QTimer::singleShot(0, [act] { act(); });
        };
    }

    /// Whether the wizard has come to its last page.
    bool ended() const
    {
        for (auto* button : dialog->findChildren<QAbstractButton*>())
            if (button->isVisible() && QString(button->text()).remove('&') == "Finish") return true;
        return false;
    }

    bool wound()
    {
        return waitUntil([&] { return dialog.isNull(); }, 20'000);
    }

    std::set<std::string> files() const
    {
        std::set<std::string> names;
        for (const auto& entry : fs::directory_iterator(target))
            names.insert(entry.path().filename().string());
        return names;
    }

    static std::ptrdiff_t lines(const std::string& file)
    {
        std::ifstream stream(file, std::ios::binary);
        return std::count(std::istreambuf_iterator<char>(stream), {}, '\n');
    }

    /// The formatted copies in the target hold a first part of the process's logs, and not all.
    void expectPartOf(const std::string& process)
    {
        const auto copies = files();
        ASSERT_EQ(1U, copies.size());
        std::string log = *copies.begin();
        log.erase(log.find("_fmtd"), 5);
        EXPECT_THAT(log, HasSubstr(process));
        const auto copied = lines(target + "/" + *copies.begin());
        EXPECT_GT(copied, 500);
        EXPECT_LT(copied, lines(shown.server.logs() + "/" + log));
    }
};

TEST_F(GatherAtWork, ThePagePaintsAndSaysWhatItReads)
{
    std::set<std::string> said;
    std::set<int> shares;
    int paints = 0;
    gatherProcess("KoCSMgr");
    watcher.painted = [&](QWidget& widget) {
        ++paints;
        if (const auto* label = qobject_cast<QLabel*>(&widget))
            said.insert(label->text().toStdString());
        if (const auto* bar = qobject_cast<QProgressBar*>(&widget)) shares.insert(bar->value());
    };
    ASSERT_TRUE(waitUntil([&] { return ended(); }, 20'000));
    EXPECT_GT(paints, 30);
    EXPECT_GT(shares.size(), 10U) << "a bar that moves";
    int processing = 0;
    for (const auto& text : said) processing += text.rfind("Processing diag_KoCSMgr_", 0) == 0;
    EXPECT_GE(processing, 2) << testing::PrintToString(said);
    person::clickButton(*dialog, "Finish");
}

TEST_F(GatherAtWork, CancelActsAtOnceAndKeepsWhatWasRead)
{
    for (const bool byKey : {false, true}) {
        SCOPED_TRACE(byKey ? "Escape" : "Cancel");
        interruptions = 0;
        gatherProcess("KoCSMgr");
        bool gone = false;
        interruptAt(0.2, [&] {
            if (byKey)
                person::press(Qt::Key_Escape);
            else
                person::clickButton(*dialog, "Cancel");
            gone = !shown.pane().sheet() && shown.pane().sheetAtWork();
        });
        EXPECT_TRUE(wound());
        EXPECT_TRUE(gone) << "the dialog goes while the tool winds down";
        EXPECT_FALSE(shown.pane().sheetAtWork());
        expectPartOf("KoCSMgr");
        fs::remove_all(target);
    }
}

TEST_F(GatherAtWork, ACancelledTimeFrameStillGivesADatabaseAndACabinet)
{
    gatherAllDays();
    interruptAt(0.2, [&] { person::press(Qt::Key_Escape); });
    EXPECT_TRUE(wound());
    EXPECT_EQ(1, interruptions);
    std::string database;
    bool cabinet = false;
    for (const auto& name : files()) {
        if (fs::path(name).extension() == ".mdb") database = target + "/" + name;
        cabinet = cabinet || fs::path(name).extension() == ".cab";
    }
    EXPECT_TRUE(cabinet);
    const auto rows = exportedRows(database, "tblTraces");
    EXPECT_GT(rows.size(), 500U);
    EXPECT_LT(rows.size(), 50'000U);
}

TEST_F(GatherAtWork, NothingElseBeginsWhileACancelledGatherWindsDown)
{
    gatherProcess("KoCSMgr");
    QString said;
    QString saidOfSite;
    interruptAt(0.2, [&] {
        person::press(Qt::Key_Escape);
        shown.window().statusBar()->clearMessage();
        person::press(QKeySequence("Ctrl+5"));
        said = shown.window().statusBar()->currentMessage();
        EXPECT_EQ(nullptr, shown.pane().sheet());
        shown.window().statusBar()->clearMessage();
        person::press(QKeySequence("Ctrl+Shift+O"));
        saidOfSite = shown.window().statusBar()->currentMessage();
    });
    EXPECT_TRUE(wound());
    EXPECT_THAT(said.toStdString(), HasSubstr("still finishing"));
    EXPECT_THAT(saidOfSite.toStdString(), HasSubstr("being ended"));

    // And now the next gather runs to its end.
    watcher.painted = nullptr;
    fs::remove_all(target);
    begin();
    person::clickButton(shown.sheet(), "Next >");
    ASSERT_TRUE(waitUntil([&] { return files().count("System.csv") == 1; }, 20'000));
    EXPECT_EQ(3U, files().size());
}

TEST_F(GatherAtWork, AWindowClosedMeanwhileGoesWhenTheWorkHasEnded)
{
    struct Case {
        const char* because;
        std::function<void()> before;
    };
    const Case cases[] = {
        {"with the sheet on show", [] {}},
        {"cancelled first", [] { person::press(Qt::Key_Escape); }},
        {"on the page before, which does not know of the work",
         [this] { person::clickButton(*dialog, "< Back"); }},
        {"cancelled on that page, and the work goes on",
         [this] {
             person::clickButton(*dialog, "< Back");
             person::press(Qt::Key_Escape);
         }},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.because);
        shown.window().show();
        interruptions = 0;
        gatherProcess("KoCSMgr");
        bool stayed = false;
        interruptAt(0.2, [&] {
            c.before();
            shown.window().close();
            stayed = shown.window().isVisible() && !shown.pane().sheet();
        });
        EXPECT_TRUE(waitUntil([&] { return !shown.window().isVisible(); }, 20'000));
        EXPECT_TRUE(stayed);
        EXPECT_FALSE(shown.pane().sheetAtWork());
        expectPartOf("KoCSMgr");
        fs::remove_all(target);
    }
    shown.program.close();
    EXPECT_EQ(nullptr, shown.window().pane());
}

TEST_F(GatherAtWork, ALogThatShrinksWhileItIsReadEndsWhereItEnds)
{
    gatherProcess("KoCSMgr");
    interruptAt(0.2, [&] {
        for (const auto& entry : fs::directory_iterator(shown.server.logs()))
            if (entry.path().filename().string().rfind("diag_KoCSMgr_", 0) == 0)
                fs::resize_file(entry.path(), 3000);
    });
    ASSERT_TRUE(waitUntil([&] { return ended(); }, 20'000));
    EXPECT_EQ(1, interruptions);
    EXPECT_GT(files().size(), 1U);
    for (const auto& name : files()) EXPECT_GT(lines(target + "/" + name), 5) << name;
    EXPECT_TRUE(shown.window().problem().isEmpty()) << shown.window().problem().toStdString();
    person::clickButton(*dialog, "Finish");
}

TEST_F(GatherAtWork, LogsThatAreGoneWhenTheirTurnComesAreSaidAndTheOthersAreKept)
{
    gatherProcess("KoCSMgr");
    int boxes = 0;
    std::function<void(QWidget&)> close = [&](QWidget& box) {
        ++boxes;
        EXPECT_NE(nullptr, dynamic_cast<QMessageBox*>(&box));
        person::answerNextDialog(close);
        person::press(Qt::Key_Return);
    };
    interruptAt(0.2, [&] {
        for (const auto& entry : fs::directory_iterator(shown.server.logs()))
            if (entry.path().filename().string().rfind("diag_KoCSMgr_", 0) == 0)
                fs::remove(entry.path());
        person::answerNextDialog(close);
    });
    ASSERT_TRUE(waitUntil([&] { return ended(); }, 20'000));
    EXPECT_GE(boxes, 1);
    EXPECT_GE(files().size(), 1U);
    person::clickButton(*dialog, "Finish");
}

} // namespace

} // namespace desktop
