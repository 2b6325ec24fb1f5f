#include "hosts/desktop/support/window_tour.h"

#include "console/console.h"
#include "hosts/common/look/help_window.h"
#include "hosts/common/look/key_list.h"
#include "hosts/desktop/log/filter_button.h"
#include "hosts/desktop/log/list_table.h"
#include "hosts/desktop/log/log_view.h"
#include "hosts/desktop/sheets/sheet_dialog.h"
#include "hosts/desktop/support/sheet_walk.h"
#include "hosts/desktop/window/about_dialog.h"
#include "hosts/desktop/window/pane_keys.h"
#include "settings/about_box.h"
#include "support/places.h"

#include <QAction>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QTest>

#include <algorithm>
#include <filesystem>

namespace desktop {

namespace {

/// Types a text that the sample has into the field of a bar, which must be on show.
void type(QWidget& window, const char* fieldName, const QString& text)
{
    for (auto* field : window.findChildren<QLineEdit*>())
        if (field->objectName() == QLatin1String(fieldName)) return field->setText(text);
    throw std::runtime_error(fieldName);
}

void tourLog(TestWindow& shown, const Visit& visit)
{
    MainWindow& window = *shown.window;
    shown.showLog("KoCSMgr");
    shown.log().table().goTo(30);
    settle();
    visit("log", window);

    window.run(Command::find);
    type(window, "findText", QStringLiteral("call"));
    settle();
    visit("log-find", window);
    window.run(Command::filter);
    shown.log().table().goTo(2);
    settle();
    visit("log-find-and-filter", window);

    auto* column = window.findChild<FilterButton*>();
    if (!column) throw std::runtime_error("the filter has no columns");
    column->menu()->popup(window.mapToGlobal(QPoint(300, 200)));
    settle();
    visit("log-filter-values", *column->menu());
    column->menu()->hide();
    shown.log().closeBars();
    shown.log().closeBars();
    settle();
}

void tourMacroWizard(TestWindow& shown, const Visit& visit)
{
    SheetWalk wizard(shown, "mnuConfigureMacroTrace");
    visit("macro-1-welcome", wizard.dialog());
    wizard.forward();
    visit("macro-2-selection", wizard.dialog());
    wizard.tickALeaf();
    wizard.forward();
    visit("macro-3-completion", wizard.dialog());
}

void tourMicroWizard(TestWindow& shown, const Visit& visit)
{
    SheetWalk wizard(shown, "mnuConfigureMicroTraces");
    visit("micro-1-welcome", wizard.dialog());
    wizard.forward();
    wizard.openFirstGroup();
    visit("micro-2-selection", wizard.dialog());
    wizard.tickALeaf();
    wizard.forward();
    visit("micro-3-completion", wizard.dialog());
}

void tourGatherWizard(TestWindow& shown, const Visit& visit)
{
    constexpr int byHand = 1;
    constexpr int timeFrame = 2;
    constexpr int completion = 5;
    constexpr int clockTick = 1100; ///< milliseconds
    SheetWalk wizard(shown, "mnuGatherLogFiles");
    visit("gather-1-welcome", wizard.dialog());
    wizard.choose(byHand);
    wizard.forward();
    visit("gather-2-logs", wizard.dialog());
    wizard.back();
    wizard.choose(timeFrame);
    wizard.forward();
    wizard.setStart(QDateTime(QDate(2025, 2, 20), QTime(15, 0)));
    // The clock of the page tells the time with its first tick.
    QTest::qWait(clockTick);
    visit("gather-3-time-frame", wizard.dialog());

    bool seen = false;
    shown.desktop.onPump([&] {
        settle();
        if (seen || wizard.gathered() < 0.3) return;
        seen = true;
        visit("gather-4-progress", wizard.dialog());
    });
    wizard.forward();
    wizard.waitFor(completion);
    shown.desktop.onPump(nullptr);
    if (!seen) throw std::runtime_error("the gather was never seen at work");
    visit("gather-5-completion", wizard.dialog());
}

} // namespace

void tourViews(TestWindow& shown, const Visit& visit)
{
    MainWindow& window = *shown.window;
    const auto node = [&](const char* key, const char* name) {
        if (!window.showNode(key)) throw std::runtime_error(key);
        settle();
        visit(name, window);
    };
    node("Static Node", "task-pad");
    node("Processes", "processes");
    node("KoCSMgr", "logs");
    tourLog(shown, visit);
    window.showNode("Static Node");
    // As the window itself says it, in its language.
    const QString site = QString::fromStdString(shown.server.site());
    window.showProblem([site] {
        return MainWindow::tr("The site %1 is no longer there. Put the folder back and press F5, "
                              "or open another site with Ctrl+Shift+O.")
            .arg(site);
    });
    settle();
    visit("notice", window);
    window.showProblem([] { return QString(); });
}

void tourMenus(TestWindow& shown, const Visit& visit)
{
    MainWindow& window = *shown.window;
    shown.showLog("KoCSMgr");
    int number = 0;
    for (const QAction* title : window.menuBar()->actions()) {
        title->menu()->popup(window.mapToGlobal(QPoint(20, 40)));
        settle();
        visit("menu-" + std::to_string(++number), *title->menu());
        title->menu()->hide();
        settle();
    }
}

void tourBoxes(TestWindow& shown, const Visit& visit)
{
    AboutDialog about(shown.tool->snapIn().showAbout(), shown.window.get());
    about.show();
    settle();
    visit("about", about);
    about.reject();

    KeyList keys(*shown.window, PaneKeys::groups(), shown.window.get());
    keys.show();
    settle();
    visit("keys", keys);
    keys.hide();

    HelpWindow help(shown.window.get());
    if (!help.open(QString::fromUtf8(built::data) + QStringLiteral("/help"), 0))
        throw std::runtime_error("there is no manual");
    settle();
    visit("help", help);
    help.hide();
    settle();
}

void tourWizards(TestWindow& shown, const Visit& visit)
{
    tourMacroWizard(shown, visit);
    tourMicroWizard(shown, visit);
    {
        SheetWalk reset(shown, "mnuDisableAllTraces");
        visit("reset-1", reset.dialog());
    }
    tourGatherWizard(shown, visit);
}

void tourSheets(TestWindow& shown, const Visit& visit)
{
    {
        SheetWalk settings(shown, "mnuConfigureLogSettings");
        visit("log-settings", settings.dialog());
    }
    SheetWalk language(shown, "mnuChangeLanguage");
    visit("event-log-language", language.dialog());
}

void tourWindow(TestWindow& shown, const Visit& visit)
{
    tourViews(shown, visit);
    tourMenus(shown, visit);
    tourBoxes(shown, visit);
    tourSheets(shown, visit);
    tourWizards(shown, visit);
}

std::vector<std::string> toolLanguages()
{
    static const std::string prefix = "ZMKbrandingres_";
    std::vector<std::string> codes;
    for (const auto& entry : std::filesystem::directory_iterator(built::data)) {
        const std::string name = entry.path().filename().string();
        if (name.rfind(prefix, 0) == 0) codes.push_back(entry.path().stem().string().substr(15));
    }
    std::sort(codes.begin(), codes.end());
    return codes;
}

} // namespace desktop
