#include "hosts/common/look/help_window.h"
#include "hosts/desktop/sheets/sheet_dialog.h"
#include "hosts/desktop/support/open_program.h"
#include "hosts/desktop/support/outside_view.h"
#include "hosts/desktop/support/person.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QMessageBox>

#include <gmock/gmock.h>

namespace desktop {

namespace {

using testing::EndsWith;
using testing::HasSubstr;

struct SettingsJourney : testing::Test {
    OpenProgram shown;
    OutsideView site{shown.server.site()};

    std::string configured(const std::string& name) const
    {
        return site.sql("SELECT trim(Value) FROM vw_ConfigurationValue WHERE FullName='" + name +
                        "'");
    }
    std::string megabytes() const
    {
        return configured("System.LogMgr.MaxDiagnosticMegabytesSaved");
    }
    std::string folder() const { return site.registryValue("RoLogMgr", "Output Path"); }

    QComboBox& space()
    {
        for (auto* combo : shown.sheet().findChildren<QComboBox*>())
            if (combo->isVisible()) return *combo;
        throw std::runtime_error("no list of sizes");
    }
    QLineEdit& location() { return OpenProgram::field(shown.sheet(), "Location of Log Files"); }

    /// Waits for the box that asks for a restart and closes it.
    std::shared_ptr<int> countRestartBoxes()
    {
        auto boxes = std::make_shared<int>(0);
        person::answerNextDialog([boxes](QWidget& dialog) {
            auto& box = dynamic_cast<QMessageBox&>(dialog);
            EXPECT_EQ(QStringLiteral("Reboot Required"), box.windowTitle());
            EXPECT_TRUE(box.text().startsWith("You must reboot this server"));
            ++*boxes;
            person::press(Qt::Key_Return);
        });
        return boxes;
    }
};

TEST_F(SettingsJourney, ApplyWritesTheSizeAndKeepsTheSheet)
{
    shown.clickCard("6");
    const std::string before = folder();
    const std::string set = configured("System.LogMgr.Broadcast.WritingEnabledTimeSet");
    space().setFocus();
    person::press(Qt::Key_Down);
    const std::string wanted = space().currentText().trimmed().toStdString();
    ASSERT_NE(megabytes(), wanted);
    person::clickButton(shown.sheet(), "Apply");
    EXPECT_EQ(wanted, megabytes());
    EXPECT_EQ(before, folder());
    EXPECT_NE(set, configured("System.LogMgr.Broadcast.WritingEnabledTimeSet"));
    EXPECT_FALSE(person::button(shown.sheet(), "Apply").isEnabled());

    space().setFocus();
    person::press(Qt::Key_Down);
    const std::string next = space().currentText().trimmed().toStdString();
    ASSERT_NE(wanted, next);
    person::clickButton(shown.sheet(), "OK");
    EXPECT_EQ(nullptr, shown.pane().sheet());
    EXPECT_EQ(next, megabytes());
    EXPECT_EQ(std::stoi(next), site.told({"settings"})["maxMegabytes"].get<int>());
}

TEST_F(SettingsJourney, OkWritesATypedFolderAndAsksForARestartOnce)
{
    shown.clickCard("6");
    person::click(location());
    person::press(QKeySequence("Ctrl+A"));
    person::type("D:\\Logs");
    const auto boxes = countRestartBoxes();
    person::clickButton(shown.sheet(), "OK");
    EXPECT_EQ(1, *boxes);
    EXPECT_EQ(nullptr, shown.pane().sheet());
    EXPECT_EQ("\"D:\\\\Logs\"", folder());
    EXPECT_EQ("D:\\Logs", site.told({"settings"})["logFolder"]);
}

TEST_F(SettingsJourney, TheFolderIsPickedInADialog)
{
    const std::string picked = shown.server.site() + "/drive_c/Other";
    std::filesystem::create_directories(picked);
    shown.clickCard("6");
    person::pickNext(picked);
    person::clickButton(shown.sheet(), "Browse...");
    EXPECT_EQ(QStringLiteral("C:\\Other"), location().text());
    const auto boxes = countRestartBoxes();
    person::clickButton(shown.sheet(), "Apply");
    EXPECT_EQ(1, *boxes);
    EXPECT_EQ("\"C:\\\\Other\"", folder());
}

TEST_F(SettingsJourney, TheManualIsReadBesideTheSheetAndClosesBeforeIt)
{
    shown.clickCard("6");
    person::press(Qt::Key_F1);
    HelpWindow* manual = nullptr;
    for (auto* window : QApplication::topLevelWidgets())
        if (auto* help = qobject_cast<HelpWindow*>(window); help && help->isVisible())
            manual = help;
    ASSERT_NE(nullptr, manual);
    EXPECT_EQ(QStringLiteral("log_settings.html"), manual->shownPage());
    manual->activateWindow();
    settle();
    person::press(Qt::Key_Escape);
    EXPECT_FALSE(manual->isVisible());
    EXPECT_TRUE(shown.sheet().isVisible());
    shown.sheet().activateWindow();
    settle();
    person::press(Qt::Key_Escape);
    EXPECT_EQ(nullptr, shown.pane().sheet());
}

TEST_F(SettingsJourney, CancelAndEscapeWriteNothing)
{
    const std::string size = megabytes();
    for (const bool byKey : {false, true}) {
        shown.clickCard("6");
        space().setFocus();
        person::press(Qt::Key_Down);
        if (byKey)
            person::press(Qt::Key_Escape);
        else
            person::clickButton(shown.sheet(), "Cancel");
        EXPECT_EQ(nullptr, shown.pane().sheet());
        EXPECT_EQ(size, megabytes());
    }
}

struct EventLanguageJourney : SettingsJourney {
    std::string messageFile() const
    {
        return site.registryValue("EventLog\\Application\\KoCSMgr", "EventMessageFile");
    }

    void choose(const char* language)
    {
        auto* list = shown.sheet().findChild<QListWidget*>();
        const auto found = list->findItems(language, Qt::MatchExactly);
        ASSERT_EQ(1, found.size());
        person::clickRow(*list, list->model()->index(list->row(found.front()), 0));
    }
};

TEST_F(EventLanguageJourney, TheChoiceIsAppliedAndTheFirstOneComesBackWhenTheWindowCloses)
{
    ASSERT_THAT(messageFile(), HasSubstr("\\ENU\\"));
    person::press(QKeySequence("Ctrl+7"));
    EXPECT_EQ(QStringLiteral("ENU"),
              OpenProgram::field(shown.sheet(), "Current Orvan Event Log Language").text());
    choose("JPN");
    person::clickButton(shown.sheet(), "Apply");
    EXPECT_EQ(QStringLiteral("JPN"),
              OpenProgram::field(shown.sheet(), "Current Orvan Event Log Language").text());
    EXPECT_THAT(messageFile(), HasSubstr("\\JPN\\"));
    choose("FRA");
    person::clickButton(shown.sheet(), "OK");
    EXPECT_EQ(nullptr, shown.pane().sheet());
    EXPECT_THAT(messageFile(), HasSubstr("\\FRA\\"));
    EXPECT_EQ("\"ENU\"", site.registryValue("OrvanDiagnostics", "OriginalEventLogLanguage"));

    shown.program.close();
    EXPECT_THAT(messageFile(), HasSubstr("\\ENU\\"));
}

} // namespace

} // namespace desktop
