#include "hosts/desktop/sheets/page_widget.h"

#include "hosts/desktop/sheets/moment_field.h"
#include "hosts/desktop/support/every_kind_page.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QProgressBar>
#include <QRadioButton>
#include <QTest>
#include <QToolButton>
#include <QTreeView>

#include <gmock/gmock.h>

#include <set>

namespace desktop {

namespace {

/// Types over what is in a field, and ends with Enter.
void typeInto(MomentField& field, const char* text)
{
    field.selectAll();
    QTest::keyClicks(&field, text);
    QTest::keyClick(&field, Qt::Key_Return);
}

TEST(ControlWidgets, EveryKindShowsItsStateAndCarriesThePersonsActionsBack)
{
    ShownSheet<WizardSheet> shown;
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

TEST(ControlWidgets, AListThatTakesTheFocusChoosesNothing)
{
    ShownSheet<WizardSheet> shown;
    int clicks = 0;
    shown.page().list.onClick = [&] { ++clicks; };
    auto& list = shown.only<QListWidget>();

    QFocusEvent focus(QEvent::FocusIn, Qt::TabFocusReason);
    QCoreApplication::sendEvent(&list, &focus);
    settle();
    EXPECT_EQ(-1, shown.page().list.selectedIndex());
    EXPECT_TRUE(list.selectedItems().isEmpty());

    QTest::keyClick(&list, Qt::Key_Down);
    EXPECT_EQ(1, clicks) << "a key chooses";
    settle();
    ASSERT_EQ(1, list.selectedItems().size());
    EXPECT_EQ(shown.page().list.text(), list.selectedItems().front()->text().toStdString());

    const QPoint chosen = list.visualItemRect(list.selectedItems().front()).center();
    QTest::mouseClick(list.viewport(), Qt::LeftButton, Qt::ControlModifier, chosen);
    EXPECT_EQ(1, list.selectedItems().size()) << "what is chosen stays on show";
}

TEST(ControlWidgets, AnEntryOfAListThatIsClickedIsChosenAndAPageMayTakeTheChoiceBack)
{
    ShownSheet<WizardSheet> shown;
    auto& list = shown.only<QListWidget>();
    const QPoint first = list.visualItemRect(list.item(0)).center();
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, first);
    EXPECT_EQ("ENU", shown.page().list.text());

    shown.page().list.setSelectedIndex(-1);
    settle();
    EXPECT_TRUE(list.selectedItems().isEmpty());
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, first);
    EXPECT_EQ("ENU", shown.page().list.text());
}

TEST(ControlWidgets, TypingInTheMiddleOfAChoiceStaysThere)
{
    ShownSheet<WizardSheet> shown;
    shown.page().combo.setSelectedIndex(1);
    settle();
    auto* edit = shown.only<QComboBox>().lineEdit();
    edit->setCursorPosition(1);
    for (const auto key : {Qt::Key_X, Qt::Key_Y}) {
        QTest::keyClick(edit, key);
        settle();
    }
    EXPECT_EQ("txywo", shown.page().combo.text());
    EXPECT_EQ(QStringLiteral("txywo"), edit->text());
    EXPECT_EQ(3, edit->cursorPosition());
}

TEST(ControlWidgets, APickerKeepsTheOtherPartOfItsMoment)
{
    ShownSheet<WizardSheet> shown;
    const auto pickers = shown.dialog->findChildren<MomentField*>();
    ASSERT_EQ(2, pickers.size());
    EXPECT_EQ(QStringLiteral("2/20/2025"), pickers[0]->text());
    EXPECT_EQ(QStringLiteral("5:42:05 PM"), pickers[1]->text());
    typeInto(*pickers[0], "2/19/2025");
    EXPECT_EQ("2025-02-19 17:42:05", sortableDateTime(shown.page().date.value()));
    typeInto(*pickers[1], "8:01:00 AM");
    EXPECT_EQ("2025-02-20 08:01:00", sortableDateTime(shown.page().time.value()));
}

TEST(ControlWidgets, APickerKnowsTheHourThatTheMachinesOwnClockLeavesOut)
{
    qputenv("TZ", "America/Los_Angeles");
    tzset();
    {
        ShownSheet<WizardSheet> shown;
        const auto pickers = shown.dialog->findChildren<MomentField*>();
        ASSERT_EQ(2, pickers.size());
        shown.page().time.setValue(dateOf(2025, 3, 9, 2, 30, 0));
        settle();
        EXPECT_EQ(QStringLiteral("2:30:00 AM"), pickers[1]->text());
        typeInto(*pickers[1], "2:15:00 AM");
        EXPECT_EQ("2025-03-09 02:15:00", sortableDateTime(shown.page().time.value()))
            << "the server has a time zone of its own";
        for (const std::string end : {"00:00:00", "23:59:59"}) {
            typeInto(*pickers[1], end.c_str());
            EXPECT_EQ("2025-03-09 " + end, sortableDateTime(shown.page().time.value()));
        }
    }
    qunsetenv("TZ");
    tzset();
}

TEST(ControlWidgets, ATextBoxLetsThePageDropKeysAndEvenTheBackspace)
{
    ShownSheet<WizardSheet> shown;
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
    ShownSheet<WizardSheet> shown;
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
    ShownSheet<WizardSheet> shown;
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
    ShownSheet<WizardSheet> shown;
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

TEST(ControlWidgets, ALanguagesFontReachesTheWidgetAndTheNextLanguageGivesItsOwnBack)
{
    ShownSheet<WizardSheet> shown;
    EveryKindPage& page = shown.page();
    const auto fonts = [&] {
        std::vector<QFont> all;
        for (const auto* widget : shown.dialog->findChildren<QWidget*>())
            all.push_back(widget->font());
        return all;
    };
    const std::vector<QFont> own = fonts();

    for (const LanguageFont& font : {LanguageFont{128, "Noto Sans CJK JP"}, {129, "Gulim"}})
        for (const PageControl& declared : page.controls()) declared.control->setFont(font);
    settle();
    EXPECT_EQ(QStringLiteral("Gulim"), shown.only<QCheckBox>().font().family());
    EXPECT_NE(own, fonts());

    for (const PageControl& declared : page.controls()) declared.control->setFont({1, ""});
    settle();
    EXPECT_EQ(own, fonts());
}

TEST(PageWidget, LettersAreUniqueOnAPageAndBesideTheSheetsButtons)
{
    for (const bool wizard : {true, false}) {
        ShownSheet<WizardSheet> inWizard;
        ShownSheet<PlainSheet> inSheet;
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
    ShownSheet<WizardSheet> shown;
    int empty = 0;
    for (auto* label : shown.dialog->findChildren<QLabel*>())
        if (label->isVisible() && label->text().isEmpty() && label->pixmap().isNull()) ++empty;
    EXPECT_EQ(1, empty) << "the text of the progress, which keeps its place";
}

} // namespace

} // namespace desktop
