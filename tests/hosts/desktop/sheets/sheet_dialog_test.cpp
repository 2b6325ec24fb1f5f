#include "hosts/desktop/sheets/sheet_dialog.h"

#include "console/console.h"
#include "hosts/desktop/sheets/page_widget.h"
#include "hosts/desktop/support/every_kind_page.h"

#include <QLabel>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QTest>
#include <QTreeView>

#include <gmock/gmock.h>

#include <set>

namespace desktop {

namespace {

TEST(SheetDialog, AWizardGoesForthAndBackAndFinishes)
{
    ShownSheet<WizardSheet> shown(2);
    EXPECT_EQ(QStringLiteral("Page title"), shown.dialog->windowTitle());
    EXPECT_FALSE(shown.push("< Back").isEnabled());
    shown.push("Next >").click();
    EXPECT_EQ(2, shown.sheet->currentPosition());
    EXPECT_TRUE(shown.push("Finish").isVisible());
    EXPECT_FALSE(shown.push("Next >").isVisible());
    shown.push("< Back").click();
    EXPECT_EQ(1, shown.sheet->currentPosition());
    shown.push("Next >").click();
    shown.push("Finish").click();
    EXPECT_TRUE(shown.sheet->closed());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(shown.dialog.isNull());
}

TEST(SheetDialog, ButtonsFollowThePage)
{
    ShownSheet<WizardSheet> shown(2);
    shown.sheet->SetWizardButtons(true, wizardButton::nextDisabled);
    EXPECT_FALSE(shown.push("Next >").isEnabled());
    shown.sheet->SetWizardButtons(true, wizardButton::nextEnabled);
    EXPECT_TRUE(shown.push("Next >").isEnabled());
}

TEST(SheetDialog, EscapeAsksThePage)
{
    ShownSheet<WizardSheet> shown;
    shown.page().allowCancel = false;
    QTest::keyClick(shown.dialog, Qt::Key_Escape);
    EXPECT_TRUE(shown.dialog->isVisible());
    shown.dialog->close();
    EXPECT_TRUE(shown.dialog->isVisible());
    shown.page().allowCancel = true;
    QTest::keyClick(shown.dialog, Qt::Key_Escape);
    EXPECT_TRUE(shown.sheet->closed());
    EXPECT_FALSE(shown.dialog && shown.dialog->isVisible());
}

TEST(SheetDialog, APlainSheetAppliesAndCloses)
{
    ShownSheet<PlainSheet> shown;
    EXPECT_FALSE(shown.push("Apply").isEnabled());
    shown.page().Changed(true);
    EXPECT_TRUE(shown.push("Apply").isEnabled());
    shown.push("Apply").click();
    EXPECT_EQ(2, shown.page().applied) << "the console delivers an apply twice";
    EXPECT_FALSE(shown.push("Apply").isEnabled());
    shown.push("OK").click();
    EXPECT_TRUE(shown.sheet->closed());
}

TEST(SheetDialog, SaysWhatAPageRaisesAndStays)
{
    ShownSheet<WizardSheet> shown(2);
    shown.page().failing = true;
    shown.push("Next >").click();
    bool said = false;
    for (auto* label : shown.dialog->findChildren<QLabel*>())
        said = said || label->text().contains("Permission denied");
    EXPECT_TRUE(said);
    EXPECT_TRUE(shown.dialog->isVisible());
}

TEST(SheetDialog, MakesChangesInTheWayThatItsOwnerGivesIt)
{
    ShownSheet<WizardSheet> wizard(2);
    ShownSheet<PlainSheet> plain;
    int changes = 0;
    for (SheetDialog* dialog : {wizard.dialog.data(), plain.dialog.data()})
        dialog->aroundChange = [&changes](const std::function<void()>& run) {
            ++changes;
            run();
        };
    wizard.push("Next >").click();
    EXPECT_EQ(1, changes);
    wizard.push("< Back").click();
    EXPECT_EQ(1, changes) << "nothing is changed by going back";
    wizard.push("Next >").click();
    wizard.push("Finish").click();
    EXPECT_TRUE(wizard.sheet->closed());
    EXPECT_EQ(3, changes);
    plain.page().Changed(true);
    plain.push("Apply").click();
    EXPECT_EQ(4, changes);
    plain.push("OK").click();
    EXPECT_EQ(5, changes);
}

TEST(SheetDialog, RunsTheTimersOfThePageOnShow)
{
    ShownSheet<WizardSheet> shown(2);
    int ticks = 0;
    shown.page().timer.onTick = [&] {
        if (++ticks == 3) shown.page().timer.setEnabled(false);
    };
    shown.page().button.onClick = [&] { shown.page().timer.setEnabled(true); };
    shown.push("Browse...").click();
    QTest::qWait(200);
    EXPECT_EQ(3, ticks) << "the page stopped its timer";
}

TEST(SheetDialog, StaysAliveAndCanBeCancelledDuringLongWork)
{
    ShownSheet<WizardSheet> shown(2);
    EveryKindPage& page = shown.page();
    int shownValue = -1;
    bool finished = false;
    page.button.onClick = [&] {
        page.bar.setMaximum(10);
        page.bar.setValue(5);
        page.bar.refresh();
        shownValue = shown.only<QProgressBar>().value();
        // The pump is where a click of the person comes in.
        QMetaObject::invokeMethod(
            shown.dialog, [&] { shown.push("Cancel").click(); }, Qt::QueuedConnection);
        QCoreApplication::processEvents();
        EXPECT_TRUE(shown.sheet->closed());
        EXPECT_FALSE(shown.dialog.isNull()) << "its page is at work";
        page.bar.setValue(10);
        page.bar.refresh();
        finished = true;
    };
    shown.push("Browse...").click();
    EXPECT_EQ(500, shownValue);
    EXPECT_TRUE(finished);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(shown.dialog.isNull());
}

/// Every wizard and sheet that a command opens, by card or menu, cuts no text and names its fields.
TEST(Wizards, EveryOneOpensByItsCardAndItsMenuEntryAndIsReadable)
{
    struct Case {
        const char* item;
        const char* card;
        const char* title;
    };
    const Case cases[] = {
        {"mnuConfigureMacroTrace", "task-1", "Configure Macro Traces Wizard"},
        {"mnuConfigureMicroTraces", "task-2", "Configure Micro Traces Wizard"},
        {"mnuDisableAllTraces", "task-3", "Reset to Default Traces Wizard"},
        {"mnuGatherLogFiles", "task-5", "Gather Logs Wizard"},
        {"mnuConfigureLogSettings", "task-6", "Log Settings"},
        {"mnuChangeLanguage", nullptr, "Event Log Language"},
    };
    TestWindow window;
    for (const auto& c : cases) {
        SCOPED_TRACE(c.item);
        for (const bool byCard : {true, false}) {
            if (byCard && !c.card) continue;
            if (byCard)
                window.pane().findChild<QAbstractButton*>(c.card)->click();
            else
                window.window->consoleAction(c.item)->trigger();
            settle();
            SheetDialog* dialog = window.pane().sheet();
            ASSERT_NE(nullptr, dialog);
            EXPECT_EQ(QString::fromLatin1(c.title), dialog->windowTitle());
            for (auto* label : dialog->findChildren<QLabel*>()) {
                if (!label->isVisible() || label->text().isEmpty()) continue;
                if (label->wordWrap())
                    EXPECT_GE(label->height(), label->heightForWidth(label->width()))
                        << label->text().toStdString();
                else
                    EXPECT_GE(label->width(), label->sizeHint().width())
                        << label->text().toStdString();
            }
            dialog->reject();
            settle();
            EXPECT_EQ(nullptr, window.pane().sheet());
        }
    }
}

TEST(Wizards, AMacroTraceIsTurnedOnByKeysAlone)
{
    TestWindow window;
    window.window->consoleAction("mnuConfigureMacroTrace")->trigger();
    SheetDialog* dialog = window.pane().sheet();
    ASSERT_NE(nullptr, dialog);
    QTest::keyClick(dialog, Qt::Key_Return);
    settle();
    auto* tree = dialog->findChild<QTreeView*>();
    ASSERT_NE(nullptr, tree);
    ASSERT_GT(tree->model()->rowCount(), 2);
    EXPECT_EQ(tree, dialog->focusWidget());
    const QModelIndex group = tree->model()->index(0, 0);
    tree->setCurrentIndex(tree->model()->index(0, 0, group));
    const QString name = tree->currentIndex().data().toString();
    QTest::keyClick(tree, Qt::Key_Space);
    QTest::keyClick(dialog, Qt::Key_Return);
    settle();
    const auto* summary = dialog->findChild<QPlainTextEdit*>();
    ASSERT_NE(nullptr, summary);
    EXPECT_TRUE(summary->toPlainText().contains(name)) << summary->toPlainText().toStdString();
    QTest::keyClick(dialog, Qt::Key_Return);
    settle();
    EXPECT_EQ(nullptr, window.pane().sheet());
}

} // namespace

} // namespace desktop
