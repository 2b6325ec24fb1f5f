#include "hosts/common/look/reason.h"
#include "hosts/viewer/facets/facet_pane.h"
#include "hosts/viewer/marks/notes_file.h"
#include "hosts/viewer/support/test_logs.h"
#include "hosts/viewer/table/time_text.h"
#include "hosts/viewer/window/filter_bar.h"
#include "hosts/viewer/window/main_window.h"
#include "runtime/run_time_error.h"
#include "support/windows/test_application.h"

#include <QMenu>
#include <QMenuBar>
#include <QSettings>
#include <QTreeWidget>

#include <gtest/gtest.h>

namespace viewer {
namespace {

class ViewerLanguage : public testing::Test {
protected:
    ViewerLanguage()
        : settings((testApplication(), logs.folder() + "/viewer.ini"), QSettings::IniFormat)
    {}

    static QString firstMenu(MainWindow& window)
    {
        settle();
        return window.menuBar()->actions().front()->text();
    }

    TestLogs logs;
    QSettings settings;
};

TEST_F(ViewerLanguage, IsChosenByACommandAndTakenAtOnce)
{
    MainWindow window(settings);
    window.show();
    const struct {
        Command command;
        const char* file;
        const char* process;
    } languages[] = {
        {Command::german, "&Datei", "Prozess"},     {Command::spanish, "&Archivo", "Proceso"},
        {Command::french, "&Fichier", "Processus"}, {Command::japanese, "ファイル(&F)", "プロセス"},
        {Command::english, "&File", "Process"},
    };
    const int process = static_cast<int>(RowColumn::process);
    for (const auto& language : languages) {
        window.run(language.command);
        EXPECT_EQ(QString::fromUtf8(language.file), firstMenu(window));
        EXPECT_EQ(QString::fromUtf8(language.process),
                  window.model().headerData(process, Qt::Horizontal).toString());
        EXPECT_TRUE(window.action(language.command).isChecked());
    }
    EXPECT_FALSE(window.action(Command::german).isChecked());
}

TEST_F(ViewerLanguage, NamesTheColumnsOfAFilterAsTheTableDoes)
{
    MainWindow window(settings);
    window.show();
    window.document().open({logs.writeRows("KoCSMgr", 40, 0, 1000)});
    ASSERT_TRUE(waitForRows(window.document()));
    RowFilter filter;
    filter.showOnly(timeline::Column::level, "0");
    filter.show(timeline::Column::traceNumber, "7", false);
    window.document().setFilter(filter);
    settle();
    EXPECT_EQ("Level is 0, Number is not 7", window.filterBar().said());
    window.run(Command::german);
    settle();
    EXPECT_EQ("Stufe ist 0, Nummer ist nicht 7", window.filterBar().said());
    for (const RowColumn column : {RowColumn::level, RowColumn::number})
        EXPECT_TRUE(window.filterBar().said().contains(
            window.model().headerData(static_cast<int>(column), Qt::Horizontal).toString()));
    window.run(Command::english);
}

TEST_F(ViewerLanguage, TellsDaysAndWhatHasNoValue)
{
    MainWindow window(settings);
    window.show();
    window.document().open({logs.write("KoCSMgr", "00:00:01:000,,12,CallFlow,3,no source\r\n" +
                                                      rawLine(2000, "CallFlow", 3, "one"))});
    ASSERT_TRUE(waitForRows(window.document()));
    const auto none = [&] {
        const QTreeWidgetItem* item = window.facets().item(timeline::Column::source, {});
        return item == nullptr ? QString() : item->text(0);
    };
    ASSERT_TRUE(waitUntil([&] { return none() == "(none)"; }));
    constexpr timeline::Moment threeHours = 3 * 3'600'000;
    const timeline::Moment later = 2 * timeline::millisecondsPerDay + threeHours;
    EXPECT_EQ("+2 d 3:00:00.000", differenceText(0, later));
    window.run(Command::french);
    settle();
    EXPECT_EQ(QString::fromUtf8("(aucun)"), none());
    EXPECT_EQ("+2 j 3:00:00.000", differenceText(0, later));
    window.run(Command::english);
    settle();
    EXPECT_EQ("(none)", none());
}

TEST_F(ViewerLanguage, TellsReasonsInsideItsSentences)
{
    MainWindow window(settings);
    window.show();
    window.run(Command::german);
    const std::string log = logs.files().write("log.txt", "a line\n");
    logs.files().write("log.txt.notes.json", "no notes at all");
    const NotesFile notes(log, logs.files() / "own");
    ASSERT_EQ(1, notes.read().sentences.size());
    EXPECT_TRUE(notes.read().sentences[0].endsWith("sie ist keine Datei mit Notizen"))
        << notes.read().sentences[0].toStdString();

    window.saveFilter("../errors");
    window.takeFilter(QString::fromStdString(log));
    settle();
    EXPECT_TRUE(window.notice().contains("kann kein Name eines Filters sein"));
    EXPECT_TRUE(window.notice().contains("log.txt ist kein Filter"));
    EXPECT_EQ(QString::fromUtf8("Zugriff verweigert"),
              reasonOf(RunTimeError(runTimeErrors::permissionDenied)));
    EXPECT_EQ("as it came", reasonOf(RunTimeError(runTimeErrors::permissionDenied, "as it came")));
    window.run(Command::english);
    EXPECT_EQ("Permission denied", reasonOf(RunTimeError(runTimeErrors::permissionDenied)));
}

TEST_F(ViewerLanguage, IsRemembered)
{
    {
        MainWindow window(settings);
        window.run(Command::french);
    }
    MainWindow window(settings);
    window.show();
    EXPECT_EQ("&Fichier", firstMenu(window));
    EXPECT_TRUE(window.action(Command::french).isChecked());
}

} // namespace
} // namespace viewer
