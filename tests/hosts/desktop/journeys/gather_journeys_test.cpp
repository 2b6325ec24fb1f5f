#include "backends/jet/outside_readers.h"
#include "end_to_end/program.h"
#include "hosts/desktop/sheets/sheet_dialog.h"
#include "hosts/desktop/support/open_program.h"
#include "hosts/desktop/support/outside_view.h"
#include "hosts/desktop/support/person.h"

#include <QAbstractButton>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTreeView>

#include <gmock/gmock.h>

#include <fstream>
#include <set>

namespace desktop {

namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::HasSubstr;

struct GatherJourney : testing::Test {
    OpenProgram shown{3000};
    OutsideView site{shown.server.site()};
    std::string target = shown.server.folder() / "gathered";

    /// Opens the wizard and has it write into the target.
    void begin()
    {
        fs::create_directories(target);
        shown.clickCard("5");
        person::pickNext(target);
        person::clickButton(shown.sheet(), "Browse...");
    }

    /// Waits until the wizard has come to its last page by itself, and ends it.
    std::string end()
    {
        EXPECT_TRUE(waitUntil([&] { return summary() != nullptr; }, 20'000));
        if (!summary()) return {};
        const std::string told = summary()->toPlainText().toStdString();
        person::clickButton(shown.sheet(), "Finish");
        EXPECT_EQ(nullptr, shown.pane().sheet());
        return told;
    }

    const QPlainTextEdit* summary()
    {
        const auto* text = shown.sheet().findChild<QPlainTextEdit*>();
        return text && text->isVisible() ? text : nullptr;
    }

    QTreeView& tree()
    {
        for (auto* view : shown.sheet().findChildren<QTreeView*>())
            if (view->isVisible()) return *view;
        throw std::runtime_error("no tree on the page");
    }

    void tick(const QStringList& names)
    {
        const QModelIndex row = rowAt(*tree().model(), names);
        ASSERT_TRUE(row.isValid()) << names.join('/').toStdString();
        for (QModelIndex above = row.parent(); above.isValid(); above = above.parent())
            tree().expand(above);
        person::clickTick(tree(), row);
    }

    std::set<std::string> files() const
    {
        std::set<std::string> names;
        for (const auto& entry : fs::directory_iterator(target))
            names.insert(entry.path().filename().string());
        return names;
    }

    /// The one file of an ending in the target.
    std::string only(const std::string& ending) const
    {
        std::vector<std::string> found;
        for (const std::string& name : files())
            if (fs::path(name).extension() == ending) found.push_back(target + "/" + name);
        EXPECT_EQ(1U, found.size()) << ending;
        return found.empty() ? "" : found.front();
    }

    static std::string formatted(std::string log) { return log.insert(log.find('.'), "_fmtd"); }

    static std::ptrdiff_t lines(const std::string& file)
    {
        std::ifstream stream(file, std::ios::binary);
        return std::count(std::istreambuf_iterator<char>(stream), {}, '\n');
    }
};

TEST_F(GatherJourney, StandardLogsByMouse)
{
    const std::string log = shown.server.currentLog("KoCSMgr");
    begin();
    person::clickButton(shown.sheet(), "Next >");
    EXPECT_THAT(end(), HasSubstr(target));
    EXPECT_THAT(files(), ElementsAre("Application.csv", "System.csv", formatted(log)));
    EXPECT_EQ(lines(shown.server.logs() + "/" + log), lines(target + "/" + formatted(log)));
}

TEST_F(GatherJourney, LogsPickedByHand)
{
    const std::string log = shown.server.currentLog("KoNotify");
    begin();
    person::clickButton(shown.sheet(), "Select logs");
    person::clickButton(shown.sheet(), "Next >");
    EXPECT_FALSE(person::button(shown.sheet(), "Next >").isEnabled());
    tick({"Orvan Logs", "KoNotify", QString::fromStdString(log)});
    tick({"Windows Event Logs", "Security"});
    tick({"Windows Event Logs", "System"});
    person::clickButton(shown.sheet(), "Next >");
    end();
    EXPECT_THAT(files(), ElementsAre("Security.csv", "System.csv", formatted(log)));
    std::ifstream events(target + "/Security.csv");
    std::string header;
    std::getline(events, header);
    EXPECT_EQ("Time,Type,Source,Event ID,Computer,Message\r", header);
    EXPECT_GT(lines(target + "/Security.csv"), 1);
}

TEST_F(GatherJourney, AProcessTickedAsAWholeByKeysGivesAllItsLogs)
{
    begin();
    // The second option, by its arrow; then down the tree to the first process.
    person::button(shown.sheet(), "Gather standard logs").setFocus();
    person::press(Qt::Key_Down);
    person::press(Qt::Key_Return);
    EXPECT_TRUE(tree().hasFocus());
    person::press(Qt::Key_Down);
    ASSERT_EQ(QStringLiteral("KoCSMgr"), tree().currentIndex().data().toString());
    person::press(Qt::Key_Space);
    person::press(Qt::Key_Return);
    end();
    std::set<std::string> expected;
    for (const auto& log : site.told({"logs", "KoCSMgr"}))
        expected.insert(formatted(log["fileName"]));
    EXPECT_GT(expected.size(), 1U);
    EXPECT_EQ(expected, files());
}

TEST_F(GatherJourney, ATimeFrameMakesADatabaseAndACabinetThatOthersCanRead)
{
    begin();
    person::clickButton(shown.sheet(), "Process logs over specified time frame");
    person::clickButton(shown.sheet(), "Next >");
    person::typeInto(OpenProgram::picker(shown.sheet(), MomentField::Part::date), "2/18/2025");
    person::typeInto(OpenProgram::picker(shown.sheet(), MomentField::Part::time), "8:00 AM");
    auto& hours = OpenProgram::field(shown.sheet(), "Duration (Hours):");
    person::click(hours);
    person::press(Qt::Key_Home);
    person::press(Qt::Key_Delete);
    person::type("24");
    EXPECT_EQ(QStringLiteral("24"), hours.text());
    person::clickButton(shown.sheet(), "Include Windows System Event Log");
    person::clickButton(shown.sheet(), "Next >");
    end();

    const std::string database = only(".mdb");
    const std::string cabinet = only(".cab");
    EXPECT_EQ(1U, files().count("Application.csv"));
    EXPECT_EQ(0U, files().count("System.csv"));
    EXPECT_THAT(runProgram({"mdb-tables", "-1", database}).out, HasSubstr("tblTraces\n"));
    const auto rows = exportedRows(database, "tblTraces");
    EXPECT_GT(rows.size(), 100U);
    EXPECT_FALSE(exportedRows(database, "tblUniqueFilters").empty());
    const Outcome listed = runProgram({"cabextract", "-l", cabinet});
    EXPECT_EQ(0, listed.status) << listed.err;
    EXPECT_THAT(listed.out, HasSubstr(fs::path(database).filename().string()));

    // The same gather from the command line holds the same rows.
    const std::string other = shown.server.folder() / "other";
    const auto gathered = site.told({"gather", "frame", "--from", "2025-02-18 08:00", "--hours",
                                     "24", "--no-system", "--to", other});
    EXPECT_EQ("", firstDifference(
                      exportedRows(gathered["database"].get<std::string>(), "tblTraces"), rows));
}

} // namespace

} // namespace desktop
