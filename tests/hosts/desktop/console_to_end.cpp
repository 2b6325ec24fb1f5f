// The window as a process of its own, in which a person does something until the test ends it.
//
//   console_to_end WHAT WINDOW-ARGUMENT...
//
// WHAT is "idle", "box" or "gather". The program says "ready" on standard output when it is to be
// ended: with nothing at work, with a box open, or in the middle of a gather.
#include "hosts/desktop/console_pane.h"
#include "hosts/desktop/program.h"
#include "hosts/desktop/run_console.h"
#include "hosts/desktop/sheet_dialog.h"

#include <QAbstractButton>
#include <QAction>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QTimer>

#include <cstdio>
#include <string>

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

} // namespace

int main(int argc, char** argv)
{
    const std::string what = argc > 1 ? argv[1] : "";
    argv[1] = argv[0];
    return runConsole(argc - 1, argv + 1, [what](Program& program) {
        if (what == "gather") return QTimer::singleShot(0, qApp, [&program] { gather(program); });
        QTimer::singleShot(0, qApp, [what, &program] {
            QTimer::singleShot(50, qApp, sayReady);
            // Both are modal, with an event loop of their own.
            if (what == "box") program.window().run(Command::about);
        });
    });
}
