// What a screen reader is told, through the interfaces that it asks.
#include "hosts/desktop/log/find_bar.h"
#include "hosts/desktop/log/list_table.h"
#include "hosts/desktop/log/log_view.h"
#include "hosts/desktop/support/test_window.h"

#include <QAccessible>
#include <QLabel>
#include <QLineEdit>
#include <QTest>

#include <gmock/gmock.h>

#include <fstream>

namespace desktop {

namespace {

using testing::AllOf;
using testing::HasSubstr;
using testing::Not;

/// The interface of the visible widget of a name below another one. Raises std::runtime_error.
QAccessibleInterface& interfaceNamed(QAccessibleInterface& top, const QString& name)
{
    std::function<QAccessibleInterface*(QAccessibleInterface&)> find =
        [&](QAccessibleInterface& at) -> QAccessibleInterface* {
        if (at.text(QAccessible::Name) == name && !at.text(QAccessible::Value).isEmpty())
            return &at;
        const bool table = at.tableInterface() != nullptr;
        for (int child = 0; !table && child < at.childCount(); ++child)
            if (auto* below = at.child(child))
                if (auto* found = find(*below)) return found;
        return nullptr;
    };
    auto* found = find(top);
    if (!found) throw std::runtime_error("nothing is called " + name.toStdString());
    return *found;
}

struct AccessibleText : testing::Test {
    AccessibleText()
    {
        // The sample's server has no errors.
        std::ofstream log(shown.server.logs() + "/" + shown.server.currentLog("KoCSMgr"),
                          std::ios::binary | std::ios::app);
        log << "23:59:59:000,Log,2402,LogManager,0,The disk is full\r\n";
        log.close();
        shown.showLog("KoCSMgr");
    }

    QAccessibleInterface& window()
    {
        return *QAccessible::queryAccessibleInterface(shown.window.get());
    }
    std::string value(const char* name)
    {
        return interfaceNamed(window(), QString::fromLatin1(name))
            .text(QAccessible::Value)
            .toStdString();
    }
    std::string cell(int row, int column)
    {
        auto* table = QAccessible::queryAccessibleInterface(&log().table())->tableInterface();
        // The headers are rows and columns of their own for a screen reader.
        return table->cellAt(row, column - 1)->text(QAccessible::Name).toStdString();
    }
    LogView& log() { return shown.log(); }

    TestWindow shown;
};

TEST_F(AccessibleText, TellsTheHits)
{
    shown.window->action(Command::find).trigger();
    for (auto* edit : log().findBar().findChildren<QLineEdit*>())
        if (edit->accessibleName() == QLatin1String("Text to find"))
            QTest::keyClicks(edit, "ruleEngine");
    EXPECT_THAT(value("Hits"), testing::MatchesRegex("1 of [0-9,.]+"));
    log().goToTime(QStringLiteral("never"));
    EXPECT_EQ("Type a time such as 15:23", value("Hits"));
}

TEST_F(AccessibleText, TellsTheFieldsOfTheLineWithoutMarkup)
{
    log().table().goTo(7);
    const std::string fields = value("Fields of the line");
    EXPECT_THAT(fields, AllOf(HasSubstr(log().model().text(7, 2).toStdString()),
                              HasSubstr(log().model().text(7, 5).toStdString())));
    EXPECT_THAT(fields, AllOf(Not(HasSubstr("<")), Not(HasSubstr("&nbsp;"))));
}

TEST_F(AccessibleText, TellsTheStatus)
{
    ASSERT_FALSE(shown.window->statusText().isEmpty());
    EXPECT_EQ(shown.window->statusText().toStdString(), value("Status"));
}

TEST_F(AccessibleText, TellsTheSignOfALevelAndABookmark)
{
    ListModel& model = log().model();
    int errors = 0;
    int warnings = 0;
    for (int row = 0; row < model.rowCount(); ++row) {
        const std::string level = model.text(row, 6).trimmed().toStdString();
        if (model.bytes(row, 5).empty()) continue;
        errors += level == "0";
        warnings += level == "1";
        const std::string sign = level == "0" ? ", error" : level == "1" ? ", warning" : "";
        if (row < 50 || level == "0") {
            EXPECT_EQ(level + sign, cell(row, 6));
        }
    }
    EXPECT_GT(errors, 0);
    EXPECT_GT(warnings, 0);

    log().table().goTo(4);
    const std::string before = cell(4, 1);
    shown.window->action(Command::toggleBookmark).trigger();
    EXPECT_EQ(log().model().text(4, 1).trimmed().toStdString() + ", bookmark", cell(4, 1));
    shown.window->action(Command::toggleBookmark).trigger();
    EXPECT_EQ(before, cell(4, 1));
}

} // namespace

} // namespace desktop
