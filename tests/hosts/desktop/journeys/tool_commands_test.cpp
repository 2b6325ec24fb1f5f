#include "console/console.h"
#include "hosts/desktop/log/list_table.h"
#include "hosts/desktop/log/log_view.h"
#include "hosts/desktop/sheets/sheet_dialog.h"
#include "hosts/desktop/support/open_program.h"
#include "hosts/desktop/support/person.h"

#include <QAction>

#include <gtest/gtest.h>

#include <set>

namespace desktop {

namespace {

using Check = std::function<void()>;

/// A menu item that the tool declares and its task card, with what makes the window ready for the
/// command and gives the look at what came of it.
struct Row {
    const char* item;
    const char* card; ///< null for an item without
    Check (*ready)(OpenProgram& shown);
};

std::string signalTime(const OpenProgram& shown)
{
    const std::string registry = shown.server.folder().read("site/registry.reg");
    const auto at = registry.find("\"Cycle Diag File Time Set\"=");
    return registry.substr(at, registry.find('\n', at) - at);
}

Check expectSheet(OpenProgram& shown, const char* title)
{
    return [&shown, title] {
        EXPECT_EQ(QLatin1String(title), shown.sheet().windowTitle());
        EXPECT_TRUE(shown.sheet().isActiveWindow());
        person::press(Qt::Key_Escape);
        EXPECT_EQ(nullptr, shown.pane().sheet());
    };
}

const Row toolRows[] = {
    {"mnuConfigureMacroTrace", "1",
     [](OpenProgram& shown) { return expectSheet(shown, "Configure Macro Traces Wizard"); }},
    {"mnuConfigureMicroTraces", "2",
     [](OpenProgram& shown) { return expectSheet(shown, "Configure Micro Traces Wizard"); }},
    {"mnuDisableAllTraces", "3",
     [](OpenProgram& shown) { return expectSheet(shown, "Reset to Default Traces Wizard"); }},
    {"mnuStartNewLogFiles", "4",
     [](OpenProgram& shown) -> Check {
         const std::string before = signalTime(shown);
         return [&shown, before] {
             EXPECT_NE(before, signalTime(shown));
             EXPECT_EQ(QStringLiteral("New log files started."), shown.window().statusText());
         };
     }},
    {"mnuGatherLogFiles", "5",
     [](OpenProgram& shown) { return expectSheet(shown, "Gather Logs Wizard"); }},
    {"mnuConfigureLogSettings", "6",
     [](OpenProgram& shown) { return expectSheet(shown, "Log Settings"); }},
    {"mnuOpenLogFile", nullptr,
     [](OpenProgram& shown) -> Check {
         const std::string log = shown.server.currentLog("KoNotify");
         person::pickNext(shown.server.logs() + '/' + log);
         return [&shown, log] {
             EXPECT_EQ("C:\\KelmaOrvan\\Logs\\" + log, shown.pane().selectedName().toStdString());
             EXPECT_TRUE(shown.pane().logShown());
             EXPECT_GT(shown.log().model().rowCount(), 3);
         };
     }},
    {"mnuChangeLanguage", nullptr,
     [](OpenProgram& shown) { return expectSheet(shown, "Event Log Language"); }},
};

class EveryToolCommand : public testing::TestWithParam<Row> {
protected:
    OpenProgram shown;
};

TEST_P(EveryToolCommand, DoesItsWorkByItsMenuEntry)
{
    const Check check = GetParam().ready(shown);
    person::choose(shown.window(), *shown.window().consoleAction(GetParam().item));
    check();
}

TEST_P(EveryToolCommand, DoesItsWorkByItsKey)
{
    const Check check = GetParam().ready(shown);
    person::press(keyOfConsoleItem(GetParam().item));
    check();
}

class EveryTaskCard : public EveryToolCommand {};

TEST_P(EveryTaskCard, DoesItsWorkByAClick)
{
    const Check check = GetParam().ready(shown);
    shown.clickCard(GetParam().card);
    check();
}

std::string nameOfRow(const testing::TestParamInfo<Row>& row)
{
    return row.param.item;
}

INSTANTIATE_TEST_SUITE_P(Tool, EveryToolCommand, testing::ValuesIn(toolRows), nameOfRow);
INSTANTIATE_TEST_SUITE_P(Tool, EveryTaskCard,
                         testing::ValuesIn(std::begin(toolRows), std::begin(toolRows) + 6),
                         nameOfRow);

TEST(ToolCommands, AreAllInTheTable)
{
    OpenProgram shown;
    std::multiset<std::string> declared;
    shown.pane().perform([&](Console& console) {
        const ContextMenu taskMenu = console.taskMenu();
        const ContextMenu topMenu = console.topMenu();
        for (const auto& entry : taskMenu.entries()) declared.insert(entry.name);
        for (const auto& entry : topMenu.entries()) declared.insert(entry.name);
    });
    std::multiset<std::string> rows;
    for (const Row& row : toolRows) rows.insert(row.item);
    EXPECT_EQ(declared, rows);
}

} // namespace

} // namespace desktop
