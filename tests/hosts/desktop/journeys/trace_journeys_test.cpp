#include "hosts/desktop/sheets/sheet_dialog.h"
#include "hosts/desktop/support/open_program.h"
#include "hosts/desktop/support/outside_view.h"
#include "hosts/desktop/support/person.h"
#include "system/file_descriptor.h"

#include <QAbstractButton>
#include <QLabel>
#include <QPlainTextEdit>
#include <QTreeView>

#include <gmock/gmock.h>

#include <fcntl.h>
#include <sys/file.h>

namespace desktop {

namespace {

using testing::HasSubstr;

constexpr const char* group = "Call Flow";
constexpr const char* macroTrace = "Transfers";

struct TraceJourney : testing::Test {
    OpenProgram shown;
    OutsideView site{shown.server.site()};

    QTreeView& tree()
    {
        for (auto* view : shown.sheet().findChildren<QTreeView*>())
            if (view->isVisible()) return *view;
        throw std::runtime_error("no tree on the page");
    }

    std::string summary()
    {
        const auto* text = shown.sheet().findChild<QPlainTextEdit*>();
        return text ? text->toPlainText().toStdString() : "";
    }

    /// Through the macro trace wizard by mouse, turning one macro trace on or off.
    std::string turnMacroTrace()
    {
        shown.clickCard("1");
        person::clickButton(shown.sheet(), "Next >");
        EXPECT_FALSE(person::button(shown.sheet(), "Next >").isEnabled());
        const QModelIndex trace = rowAt(*tree().model(), {group, macroTrace});
        tree().expand(trace.parent());
        person::clickTick(tree(), trace);
        EXPECT_TRUE(person::button(shown.sheet(), "Next >").isEnabled());
        person::clickButton(shown.sheet(), "Next >");
        const std::string told = summary();
        person::clickButton(shown.sheet(), "Finish");
        EXPECT_EQ(nullptr, shown.pane().sheet());
        return told;
    }

    void reset()
    {
        shown.clickCard("3");
        EXPECT_FALSE(person::button(shown.sheet(), "Finish").isEnabled());
        person::clickButton(shown.sheet(), "Reset to Default Traces");
        person::clickButton(shown.sheet(), "Finish");
        EXPECT_EQ(nullptr, shown.pane().sheet());
    }

    bool told(const std::string& name)
    {
        for (const auto& trace : site.told({"macro"}))
            if (trace["trace"] == name) return trace["enabled"];
        return false;
    }

    std::string recorded()
    {
        return site.registryValue(std::string("OrvanDiagnostics\\") + group + "\\" + macroTrace,
                                  "Enabled");
    }
};

TEST_F(TraceJourney, AMacroTraceGoesOnAndOffAgain)
{
    const std::string signal =
        site.registryValue("RoLogMgr\\BroadCast", "Diagnostic Grid Time Set");
    // Off by default: switching off flips, so a level that was on before would go with it.
    reset();
    const auto before = site.flags();
    EXPECT_THAT(turnMacroTrace(), HasSubstr("enabled:\n        Call Flow - Transfers"));
    EXPECT_EQ("dword:00000001", recorded());
    EXPECT_TRUE(told(macroTrace));
    const auto on = site.flags();
    int changed = 0;
    for (const auto& [component, word] : before) {
        EXPECT_EQ(word, on.at(component) & word) << component << " lost a level";
        changed += on.at(component) != word;
    }
    EXPECT_GT(changed, 0);
    EXPECT_EQ(1, site.events(10004));
    EXPECT_NE(signal, site.registryValue("RoLogMgr\\BroadCast", "Diagnostic Grid Time Set"));

    EXPECT_THAT(turnMacroTrace(), HasSubstr("disabled:\n        Call Flow - Transfers"));
    EXPECT_EQ("dword:00000000", recorded());
    EXPECT_FALSE(told(macroTrace));
    EXPECT_EQ(before, site.flags());
}

TEST_F(TraceJourney, AGroupIsTickedByKeysAlone)
{
    reset();
    person::press(QKeySequence("Ctrl+1"));
    person::press(Qt::Key_Return);
    QTreeView& choices = tree();
    EXPECT_TRUE(choices.hasFocus());
    ASSERT_EQ(QLatin1String(group), choices.currentIndex().data().toString());
    person::press(Qt::Key_Space);
    person::press(Qt::Key_Return);
    const std::string told = summary();
    person::press(Qt::Key_Return);
    EXPECT_EQ(nullptr, shown.pane().sheet());
    int inGroup = 0;
    for (const auto& trace : site.told({"macro"})) {
        const std::string name = trace["trace"];
        EXPECT_EQ(trace["group"] == group, trace["enabled"].get<bool>()) << name;
        if (trace["group"] != group) continue;
        ++inGroup;
        EXPECT_THAT(told, HasSubstr("Call Flow - " + name));
    }
    EXPECT_GT(inGroup, 3);
}

TEST_F(TraceJourney, AMicroTraceSetsItsBitAlone)
{
    const auto before = site.flags();
    shown.clickCard("2");
    person::clickButton(shown.sheet(), "Next >");
    QModelIndex component;
    const QAbstractItemModel& model = *tree().model();
    for (int row = 0; row < model.rowCount(); ++row)
        if (model.index(row, 0).data().toString().contains("(AddressBook)"))
            component = model.index(row, 0);
    ASSERT_TRUE(component.isValid());
    tree().expand(component);
    QModelIndex level;
    for (int row = 0; row < model.rowCount(component); ++row)
        if (model.index(row, 0, component).data().toString().startsWith("04  "))
            level = model.index(row, 0, component);
    ASSERT_TRUE(level.isValid());
    ASSERT_EQ(Qt::Unchecked, level.data(Qt::CheckStateRole).toInt());
    person::clickTick(tree(), level);
    person::clickButton(shown.sheet(), "Next >");
    person::clickButton(shown.sheet(), "Finish");
    EXPECT_EQ(nullptr, shown.pane().sheet());

    auto expected = before;
    expected["AddressBook"] |= 1 << 4;
    // The sign bit never shows as ticked, so the wizard drops it.
    ASSERT_LT(expected["PortControl"], 0);
    expected["PortControl"] &= 0x7fff'ffff;
    EXPECT_EQ(expected, site.flags());
    EXPECT_GT(site.events(10006), 0);
}

TEST_F(TraceJourney, ResetBringsTheDefaultsBackAndTurnsMacroTracesOff)
{
    turnMacroTrace();
    ASSERT_NE(site.defaultFlags(), site.flags());
    reset();
    EXPECT_EQ(site.defaultFlags(), site.flags());
    EXPECT_FALSE(told(macroTrace));
    EXPECT_EQ("dword:00000000", recorded());
}

TEST_F(TraceJourney, AChangeIsMadeOnceNoOtherProgramChangesTheSite)
{
    shown.clickCard("1");
    person::clickButton(shown.sheet(), "Next >");
    const QModelIndex trace = rowAt(*tree().model(), {group, macroTrace});
    tree().expand(trace.parent());
    person::clickTick(tree(), trace);
    const auto before = site.flags();
    {
        const FileDescriptor turn(
            ::open((shown.server.site() + "/changes.lock").c_str(), O_RDWR | O_CREAT, 0666));
        ASSERT_EQ(0, ::flock(turn.get(), LOCK_EX));
        person::clickButton(shown.sheet(), "Next >");
    }
    EXPECT_EQ(before, site.flags());
    EXPECT_EQ("", recorded());
    bool said = false;
    for (const auto* label : shown.sheet().findChildren<QLabel*>())
        said = said || label->text().contains(QStringLiteral("is changing the site"));
    EXPECT_TRUE(said);
    person::clickButton(shown.sheet(), "Next >");
    EXPECT_EQ("dword:00000001", recorded());
    person::clickButton(shown.sheet(), "Finish");
}

TEST_F(TraceJourney, ACancelledWizardChangesNothing)
{
    const auto before = site.flags();
    shown.clickCard("1");
    person::clickButton(shown.sheet(), "Next >");
    const QModelIndex trace = rowAt(*tree().model(), {group, macroTrace});
    tree().expand(trace.parent());
    person::clickTick(tree(), trace);
    person::clickButton(shown.sheet(), "Cancel");
    EXPECT_EQ(nullptr, shown.pane().sheet());
    EXPECT_EQ(before, site.flags());
    EXPECT_EQ("", recorded());
}

} // namespace

} // namespace desktop
