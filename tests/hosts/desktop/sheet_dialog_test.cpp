#include "hosts/desktop/sheet_dialog.h"

#include "hosts/desktop/page_widget.h"
#include "hosts/desktop/test_window.h"
#include "platform/console.h"
#include "platform/controls.h"
#include "platform/pages.h"
#include "platform/plain_sheet.h"
#include "platform/wizard_sheet.h"
#include "runtime/run_time_error.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDateTimeEdit>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>
#include <QToolButton>
#include <QTreeView>

#include <gmock/gmock.h>

#include <set>

namespace {

/// A page with a control of every kind.
class EveryKindPage final : public SheetPage, public IWizardPage, public IMMCPropertyPage {
public:
    EveryKindPage() : SheetPage("ppgEveryKind")
    {
        declare("lblTitle", ControlRole::title, title);
        declare("lblDescription", ControlRole::description, description);
        declare("lblBody", ControlRole::body, body);
        declare("Frame1", ControlRole::frame, frame);
        declare("lblInFrame", ControlRole::body, framed);
        declare("lblText", ControlRole::fieldLabel, textLabel);
        declare("txtText", ControlRole::field, text);
        declare("updown", ControlRole::field, spin);
        declare("lblCombo", ControlRole::fieldLabel, comboLabel);
        declare("combo", ControlRole::field, combo);
        declare("lblDate", ControlRole::fieldLabel, dateLabel);
        declare("dtDate", ControlRole::field, date);
        declare("dtTime", ControlRole::field, time);
        declare("lstList", ControlRole::field, list);
        declare("opt", ControlRole::choice, options);
        declare("chk", ControlRole::choice, check);
        declare("cmd", ControlRole::action, button);
        declare("tree", ControlRole::mainTree, tree);
        declare("lblProgress", ControlRole::progress, progressText);
        declare("bar", ControlRole::progress, bar);
        declare("tmr", ControlRole::timer, timer);

        title.setCaption("Title");
        description.setCaption("What the page is for");
        frame.setCaption("Frame");
        framed.setCaption("In the frame");
        textLabel.setCaption("Text:");
        comboLabel.setCaption("Choice:");
        dateLabel.setCaption("Date:");
        options.setCaption(0, "First");
        options.setCaption(1, "Second");
        options.setOptionToolTip(1, "The second one");
        check.setCaption("Check");
        button.setCaption("&Browse...");
        combo.addItem("one");
        combo.addItem("two");
        list.addItem("ENU");
        list.addItem("FRA");
        tree.setCheckBoxes(true);
        fillTree();
        date.setValue(dateOf(2025, 2, 20, 17, 42, 5));
        time.setValue(dateOf(2025, 2, 20, 17, 42, 5));
    }

    void fillTree()
    {
        tree.clear();
        TreeNode& group = tree.add("Group", "Group");
        group.setBold(true);
        tree.addChild(group, "Leaf one", "Group - Leaf one");
        tree.addChild(group, "Leaf two", "Group - Leaf two").ensureVisible();
    }

    IWizardPage* wizardPage() override { return this; }
    IMMCPropertyPage* propertyPage() override { return this; }
    void PropertyPage_ApplyChanges() override { ++applied; }
    void IMMCPropertyPage_QueryCancel(bool& allow) override { allow = allowCancel; }
    void IWizardPage_Next(int&) override
    {
        if (failing) throw RunTimeError(runTimeErrors::permissionDenied);
    }

    Label title, description, body, framed, textLabel, comboLabel, dateLabel, progressText;
    Frame frame;
    TextBox text;
    SpinControl spin{1, 999};
    ComboBox combo;
    DateTimePicker date{PickerKind::date};
    DateTimePicker time{PickerKind::time};
    ListBox list;
    OptionButtonGroup options{2};
    CheckBox check;
    Button button;
    TreeView tree;
    ProgressBar bar;
    Timer timer{10, false};
    bool allowCancel = true;
    bool failing = false;
    int applied = 0;
};

template <typename Sheet>
struct Shown {
    explicit Shown(int count = 1)
    {
        testApplication();
        for (int page = 0; page < count; ++page) {
            auto made = std::make_unique<EveryKindPage>();
            pages.push_back(made.get());
            sheet->addPage(std::move(made), "Page title", false);
        }
        sheet->show();
        dialog = new SheetDialog(sheet);
        dialog->show();
        settle();
    }
    ~Shown() { delete dialog.data(); }

    EveryKindPage& page() { return *pages.front(); }
    template <typename Widget>
    Widget& only()
    {
        const auto found = dialog->template findChildren<Widget*>();
        if (found.empty()) throw std::runtime_error("no such widget");
        return *found.front();
    }
    QPushButton& push(const char* text)
    {
        for (auto* button : dialog->template findChildren<QPushButton*>())
            if (QString(button->text()).remove('&') == QLatin1String(text)) return *button;
        throw std::runtime_error(text);
    }

    std::shared_ptr<Sheet> sheet = std::make_shared<Sheet>("Title");
    std::vector<EveryKindPage*> pages;
    QPointer<SheetDialog> dialog;
};

TEST(ControlWidgets, EveryKindShowsItsStateAndCarriesThePersonsActionsBack)
{
    Shown<WizardSheet> shown;
    EveryKindPage& page = shown.page();

    auto& edit = *[&] {
        for (auto* made : shown.dialog->findChildren<QLineEdit*>())
            if (made->accessibleName() == "Text:") return made;
        throw std::runtime_error("text box");
    }();
    page.text.setText("from the page");
    settle();
    EXPECT_EQ(QStringLiteral("from the page"), edit.text());
    edit.selectAll();
    QTest::keyClicks(&edit, "typed");
    EXPECT_EQ("typed", page.text.text());

    auto& combo = shown.only<QComboBox>();
    EXPECT_EQ(2, combo.count());
    page.combo.setSelectedIndex(1);
    settle();
    EXPECT_EQ(QStringLiteral("two"), combo.currentText());
    QTest::keyClick(&combo, Qt::Key_Up);
    EXPECT_EQ(0, page.combo.selectedIndex());
    combo.lineEdit()->selectAll();
    QTest::keyClicks(combo.lineEdit(), "three");
    EXPECT_EQ("three", page.combo.text());
    EXPECT_EQ(-1, page.combo.selectedIndex());

    auto& list = shown.only<QListWidget>();
    list.setCurrentRow(1);
    EXPECT_EQ("FRA", page.list.text());

    const auto options = shown.dialog->findChildren<QRadioButton*>();
    ASSERT_EQ(2, options.size());
    options[1]->click();
    EXPECT_EQ(1, page.options.selected());
    EXPECT_EQ(QStringLiteral("The second one"), options[1]->toolTip());
    page.options.select(0);
    settle();
    EXPECT_TRUE(options[0]->isChecked());

    auto& check = shown.only<QCheckBox>();
    check.click();
    EXPECT_TRUE(page.check.checked());
    page.check.setChecked(false);
    settle();
    EXPECT_FALSE(check.isChecked());

    int clicks = 0;
    page.button.onClick = [&] { ++clicks; };
    shown.push("Browse...").click();
    EXPECT_EQ(1, clicks);
    page.button.setEnabled(false);
    settle();
    EXPECT_FALSE(shown.push("Browse...").isEnabled());

    page.spin.setValue(5);
    settle();
    for (auto* arrow : shown.dialog->findChildren<QToolButton*>())
        if (arrow->accessibleName() == "More") arrow->click();
    EXPECT_EQ(6, page.spin.value());

    page.bar.setMaximum(7);
    page.bar.setValue(3.5);
    settle();
    EXPECT_EQ(50, shown.only<QProgressBar>().value() * 100 / shown.only<QProgressBar>().maximum());
    EXPECT_EQ(QStringLiteral("Frame"), shown.only<QGroupBox>().title());
}

TEST(ControlWidgets, APickerKeepsTheOtherPartOfItsMoment)
{
    Shown<WizardSheet> shown;
    const auto pickers = shown.dialog->findChildren<QDateTimeEdit*>();
    ASSERT_EQ(2, pickers.size());
    EXPECT_EQ(QStringLiteral("2/20/2025"), pickers[0]->text());
    EXPECT_EQ(QStringLiteral("5:42:05 PM"), pickers[1]->text());
    pickers[0]->setDate(QDate(2025, 2, 19));
    EXPECT_EQ("2025-02-19 17:42:05", sortableDateTime(shown.page().date.value()));
    pickers[1]->setTime(QTime(8, 1, 0));
    EXPECT_EQ("2025-02-20 08:01:00", sortableDateTime(shown.page().time.value()));
}

TEST(ControlWidgets, ATextBoxLetsThePageDropKeysAndEvenTheBackspace)
{
    Shown<WizardSheet> shown;
    shown.page().text.onKeyPress = [](int code) { return code >= '0' && code <= '9' ? code : 0; };
    for (auto* edit : shown.dialog->findChildren<QLineEdit*>()) {
        if (edit->accessibleName() != "Text:") continue;
        QTest::keyClicks(edit, "1a2b");
        EXPECT_EQ("12", shown.page().text.text());
        QTest::keyClick(edit, Qt::Key_Backspace);
        EXPECT_EQ("12", shown.page().text.text());
        edit->home(false);
        QTest::keyClick(edit, Qt::Key_Delete);
        EXPECT_EQ("2", shown.page().text.text());
    }
}

TEST(ControlWidgets, ATreeShowsTicksWeightAndOpenNodesAndIsTickedByTheKeyboard)
{
    Shown<WizardSheet> shown;
    EveryKindPage& page = shown.page();
    auto& tree = shown.only<QTreeView>();
    const QAbstractItemModel& model = *tree.model();
    const QModelIndex group = model.index(0, 0);
    ASSERT_EQ(2, model.rowCount(group));
    EXPECT_TRUE(group.data(Qt::FontRole).value<QFont>().bold());
    EXPECT_TRUE(tree.isExpanded(group)) << "a leaf was asked to be in sight";

    std::vector<std::string> ticked;
    page.tree.onNodeCheck = [&](TreeNode& node) { ticked.push_back(node.text()); };
    tree.setCurrentIndex(model.index(1, 0, group));
    QTest::keyClick(&tree, Qt::Key_Space);
    EXPECT_EQ(std::vector<std::string>{"Leaf two"}, ticked);
    EXPECT_TRUE(page.tree.item(3).checked());

    tree.collapse(group);
    EXPECT_FALSE(page.tree.item(1).expanded());
}

TEST(ControlWidgets, ATreeThatIsFilledAnewLetsGoOfItsOldNodesAtOnce)
{
    Shown<WizardSheet> shown;
    auto& tree = shown.only<QTreeView>();
    shown.page().tree.clear();
    EXPECT_EQ(0, tree.model()->rowCount());
    shown.page().fillTree();
    settle();
    EXPECT_EQ(1, tree.model()->rowCount());
    EXPECT_EQ(QStringLiteral("Leaf one"),
              tree.model()->index(0, 0, tree.model()->index(0, 0)).data().toString());
}

TEST(ControlWidgets, ATreeAnswersWhichNodeIsUnderThePointer)
{
    Shown<WizardSheet> shown;
    auto& tree = shown.only<QTreeView>();
    const QPoint at = tree.visualRect(tree.model()->index(0, 0)).center();
    const TreeNode* hit = shown.page().tree.hitTest(at.x(), at.y());
    ASSERT_NE(nullptr, hit);
    EXPECT_EQ("Group", hit->text());
    int moves = 0;
    shown.page().tree.onMouseMove = [&](int, int) { ++moves; };
    QTest::mouseMove(tree.viewport(), at);
    settle();
    QTest::mouseMove(tree.viewport(), at + QPoint(3, 0));
    settle();
    EXPECT_GT(moves, 0);
}

TEST(ControlWidgets, ALanguagesFontReachesTheWidget)
{
    Shown<WizardSheet> shown;
    shown.page().check.setFont({128, "Noto Sans CJK JP"});
    settle();
    EXPECT_EQ(QStringLiteral("Noto Sans CJK JP"), shown.only<QCheckBox>().font().family());
}

TEST(PageWidget, LettersAreUniqueOnAPageAndBesideTheSheetsButtons)
{
    for (const bool wizard : {true, false}) {
        Shown<WizardSheet> inWizard;
        Shown<PlainSheet> inSheet;
        std::set<QChar> letters;
        QWidget& dialog = wizard ? static_cast<QWidget&>(*inWizard.dialog) : *inSheet.dialog;
        const auto check = [&](const QString& text) {
            const auto at = text.indexOf('&');
            if (at < 0) return;
            EXPECT_TRUE(letters.insert(text[at + 1].toLower()).second) << text.toStdString();
        };
        for (auto* button : dialog.findChildren<QAbstractButton*>())
            if (!qobject_cast<QToolButton*>(button)) check(button->text());
        for (auto* label : dialog.findChildren<QLabel*>())
            if (label->buddy()) check(label->text());
        EXPECT_GE(letters.size(), 8U);
    }
}

TEST(PageWidget, ABodyWithoutACaptionTakesNoRoom)
{
    Shown<WizardSheet> shown;
    int empty = 0;
    for (auto* label : shown.dialog->findChildren<QLabel*>())
        if (label->isVisible() && label->text().isEmpty() && label->pixmap().isNull()) ++empty;
    EXPECT_EQ(1, empty) << "the text of the progress, which keeps its place";
}

TEST(SheetDialog, AWizardGoesForthAndBackAndFinishes)
{
    Shown<WizardSheet> shown(2);
    EXPECT_EQ(QStringLiteral("Page title"), shown.dialog->windowTitle());
    EXPECT_FALSE(shown.push("< Back").isEnabled());
    shown.push("Next >").click();
    EXPECT_EQ(2, shown.sheet->currentPlace());
    EXPECT_TRUE(shown.push("Finish").isVisible());
    EXPECT_FALSE(shown.push("Next >").isVisible());
    shown.push("< Back").click();
    EXPECT_EQ(1, shown.sheet->currentPlace());
    shown.push("Next >").click();
    shown.push("Finish").click();
    EXPECT_TRUE(shown.sheet->closed());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(shown.dialog.isNull());
}

TEST(SheetDialog, ButtonsFollowThePage)
{
    Shown<WizardSheet> shown(2);
    shown.sheet->SetWizardButtons(true, wizardButton::nextDisabled);
    EXPECT_FALSE(shown.push("Next >").isEnabled());
    shown.sheet->SetWizardButtons(true, wizardButton::nextEnabled);
    EXPECT_TRUE(shown.push("Next >").isEnabled());
}

TEST(SheetDialog, EscapeAsksThePage)
{
    Shown<WizardSheet> shown;
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
    Shown<PlainSheet> shown;
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
    Shown<WizardSheet> shown(2);
    shown.page().failing = true;
    shown.push("Next >").click();
    bool said = false;
    for (auto* label : shown.dialog->findChildren<QLabel*>())
        said = said || label->text().contains("Permission denied");
    EXPECT_TRUE(said);
    EXPECT_TRUE(shown.dialog->isVisible());
}

TEST(SheetDialog, RunsTheTimersOfThePageOnShow)
{
    Shown<WizardSheet> shown(2);
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
    Shown<WizardSheet> shown(2);
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
