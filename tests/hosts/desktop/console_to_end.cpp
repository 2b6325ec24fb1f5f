// The window as a process of its own, in which a person does something until the test ends it.
//
//   console_to_end WHAT WINDOW-ARGUMENT...
//
// WHAT is "idle", "box", "gather", "refused:FOLDER" or "wait". The program says "ready" on standard
// output when it is to be ended: with nothing at work, with a box open, in the middle of a gather,
// with a gather on show that is refused, or while it waits for its turn to change the site.
#include "hosts/common/look/notice_bar.h"
#include "hosts/desktop/program.h"
#include "hosts/desktop/run_console.h"
#include "hosts/desktop/sheets/sheet_dialog.h"
#include "hosts/desktop/window/console_pane.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QFileDialog>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QTimer>

#include <cstdio>
#include <string>

namespace desktop {

namespace {

void sayReady()
{
    std::puts("ready");
    std::fflush(stdout);
}

/// Looks again and again until what is waited for is there.
void when(std::function<bool()> there, std::function<void()> act)
{
    QTimer::singleShot(5, qApp, [=] { there() ? act() : when(there, act); });
}

void pressDefault(QWidget& sheet)
{
    for (auto* button : sheet.findChildren<QPushButton*>())
        if (button->isVisible() && button->isDefault()) return button->click();
}

bool reads(SheetDialog& sheet)
{
    for (auto* bar : sheet.findChildren<QProgressBar*>())
        if (bar->isVisible() && bar->value() > bar->maximum() / 10) return true;
    return false;
}

void gather(Program& program)
{
    ConsolePane& pane = *program.window().pane();
    program.window().consoleAction("mnuGatherLogFiles")->trigger();
    when([&pane] { return pane.sheet() != nullptr; },
         [&pane] {
             pressDefault(*pane.sheet());
             when([&pane] { return pane.sheet() && reads(*pane.sheet()); }, sayReady);
         });
}

/// A gather into a folder, which something in it forbids.
void gatherWhereItIsRefused(Program& program, const std::string& target)
{
    ConsolePane& pane = *program.window().pane();
    when([] { return qobject_cast<QFileDialog*>(QApplication::activeModalWidget()) != nullptr; },
         [target] {
             auto* picker = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
             picker->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))
                 ->setText(QString::fromStdString(target));
             QMetaObject::invokeMethod(picker, "accept");
         });
    program.window().consoleAction("mnuGatherLogFiles")->trigger();
    for (auto* button : pane.sheet()->findChildren<QPushButton*>())
        if (button->isVisible() && button->text().contains(QStringLiteral("rowse")))
            button->click();
    for (auto* choice : pane.sheet()->findChildren<QRadioButton*>())
        if (choice->text().contains(QStringLiteral("time frame"))) choice->click();
    pressDefault(*pane.sheet());
    pressDefault(*pane.sheet());
    when([&pane] { return !pane.sheet()->findChild<NoticeBar*>()->sentence().isEmpty(); },
         sayReady);
}

void waitForTheTurn(Program& program)
{
    when([] { return QApplication::activeModalWidget() != nullptr; }, sayReady);
    program.window().consoleAction("mnuStartNewLogFiles")->trigger();
}

void begin(const std::string& what, Program& program)
{
    if (what == "gather") return QTimer::singleShot(0, qApp, [&program] { gather(program); });
    if (what == "wait") return QTimer::singleShot(0, qApp, [&program] { waitForTheTurn(program); });
    if (what.rfind("refused:", 0) == 0)
        return QTimer::singleShot(0, qApp, [&program, target = what.substr(8)] {
            gatherWhereItIsRefused(program, target);
        });
    QTimer::singleShot(0, qApp, [what, &program] {
        QTimer::singleShot(50, qApp, sayReady);
        // Both are modal, with an event loop of their own.
        if (what == "box") program.window().run(Command::about);
    });
}

} // namespace

} // namespace desktop

int main(int argc, char** argv)
{
    const std::string what = argc > 1 ? argv[1] : "";
    argv[1] = argv[0];
    return desktop::runConsole(
        argc - 1, argv + 1, [what](desktop::Program& program) { desktop::begin(what, program); });
}
