#include "hosts/viewer/support/test_logs.h"
#include "hosts/viewer/window/main_window.h"
#include "support/windows/test_application.h"

#include <QMenu>
#include <QMenuBar>
#include <QSettings>

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
