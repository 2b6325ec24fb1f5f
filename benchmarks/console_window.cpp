// The console's window as a person sees it, up to a moment that is measured; then it ends.
//
//     console_window tree [OPTION...]           prints "painted" when the tree is
//     console_window processes [OPTION...]      the same with the node of the processes opened
//     console_window log NAME [OPTION...]       the microseconds from the selection of a log's node
//                                               to its lines on the screen
//     console_window lines NAME [OPTION...]     the same without a window: the tool's own work
//     console_window scroll NAME [OPTION...]    the microseconds that each page of the log takes
//
// The options are those of orvandiag-console.

#include "after_painting.h"
#include "page_through.h"

#include "console/console.h"
#include "hosts/desktop/log/list_table.h"
#include "hosts/desktop/log/log_view.h"
#include "hosts/desktop/program.h"
#include "hosts/desktop/run_console.h"
#include "hosts/desktop/window/console_pane.h"
#include "hosts/desktop/window/scope_model.h"

#include <QApplication>
#include <QTreeView>

#include <chrono>
#include <cstdio>
#include <functional>
#include <stdexcept>
#include <string>
#include <vector>

namespace desktop {

namespace {

using Clock = std::chrono::steady_clock;

long long microseconds(Clock::duration took)
{
    return std::chrono::duration_cast<std::chrono::microseconds>(took).count();
}

void say(const std::string& text)
{
    std::puts(text.c_str());
    std::fflush(stdout);
}

QAbstractItemModel& nodes(Program& program)
{
    return *program.window().pane()->tree().model();
}

/// The node of the processes, the first below the root.
QModelIndex processes(Program& program)
{
    return nodes(program).index(0, 0, nodes(program).index(0, 0));
}

void afterTree(Program& program, const std::function<void()>& then)
{
    const auto filled = [&program] { return processes(program).isValid(); };
    new AfterPainting(*program.window().pane()->tree().viewport(), filled, then);
}

void showTree(Program& program)
{
    afterTree(program, [] {
        say("painted");
        QApplication::quit();
    });
}

void showProcesses(Program& program)
{
    program.window().pane()->tree().expand(processes(program));
    const auto filled = [&program] { return nodes(program).rowCount(processes(program)) > 0; };
    new AfterPainting(*program.window().pane()->tree().viewport(), filled, [] {
        say("painted");
        QApplication::quit();
    });
}

/// The node of a log, its process opened for it.
ScopeItem& nodeOf(Program& program, const std::string& log)
{
    ScopeItem* node = nullptr;
    program.window().pane()->perform([&](Console& console) {
        ScopeTree& tree = console.scopeItems();
        for (int at = 1; !tree.find(log) && at <= tree.count(); ++at) console.expand(tree.item(at));
        node = tree.find(log);
    });
    if (!node) throw std::runtime_error("no node for the log " + log);
    return *node;
}

/// As a click on the node does it.
void selectNode(Program& program, ScopeItem& node)
{
    QTreeView& tree = program.window().pane()->tree();
    tree.setCurrentIndex(static_cast<ScopeModel*>(tree.model())->indexOf(node));
}

void afterLog(Program& program, const std::string& log, const std::function<void()>& then)
{
    ScopeItem& node = nodeOf(program, log);
    afterTree(program, [&program, &node, then] {
        const auto shown = [&program] {
            return program.window().pane()->log().model().rowCount() > 0 &&
                   program.window().statusText() == QLatin1String("Format Completed.");
        };
        QWidget* lines = program.window().pane()->log().table().viewport();
        const auto begin = Clock::now();
        new AfterPainting(*lines, shown, [begin, then] {
            const auto took = Clock::now() - begin;
            say(std::to_string(microseconds(took)));
            then();
        });
        selectNode(program, node);
    });
}

void readLines(Program& program, const std::string& log)
{
    ScopeItem& node = nodeOf(program, log);
    OpenTool& tool = *program.tool();
    program.window().setTool(nullptr);
    const auto begin = Clock::now();
    tool.console().currentView().select(node);
    say(std::to_string(microseconds(Clock::now() - begin)));
    QTimer::singleShot(0, [] { QApplication::quit(); });
}

void scroll(Program& program)
{
    pageThrough(program.window().pane()->log(), say);
    QApplication::quit();
}

void measure(Program& program, const std::string& what, const std::string& log)
{
    if (what == "tree") return showTree(program);
    if (what == "processes") return showProcesses(program);
    if (what == "lines") return readLines(program, log);
    if (what == "scroll") return afterLog(program, log, [&program] { scroll(program); });
    afterLog(program, log, [] { QApplication::quit(); });
}

} // namespace

} // namespace desktop

int main(int argc, char** argv)
{
    const std::vector<std::string> given(argv + 1, argv + argc);
    const std::string what = given.empty() ? "" : given[0];
    const bool ofTree = what == "tree" || what == "processes";
    const std::string log = ofTree || given.size() < 2 ? "" : given[1];
    // The console sees its own options alone.
    const int own = ofTree ? 1 : 2;
    if (argc <= own) return 2;
    argv[own] = argv[0];
    return desktop::runConsole(argc - own, argv + own, [&](desktop::Program& program) {
        desktop::measure(program, what, log);
    });
}
