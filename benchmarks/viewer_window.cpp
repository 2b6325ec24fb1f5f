// The viewer's window as a person sees it, up to a moment that is measured; then it ends.
//
//     viewer_window first SOURCE             prints "painted" when the first rows of a source are
//     viewer_window read SOURCE              prints "read" when all are read, counted and on show
//     viewer_window component NAME SOURCE    the microseconds from a filter by a component to a
//                                            painted screen of its rows, of eleven times
//     viewer_window pages SOURCE             the microseconds of a page down: the median and the
//                                            longest of many, from the top and at ten places
//                                            through all rows

#include "after_painting.h"

#include "hosts/viewer/run_viewer.h"
#include "hosts/viewer/window/main_window.h"

#include <QApplication>
#include <QKeyEvent>
#include <QTimer>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <functional>
#include <string>
#include <vector>

namespace viewer {

namespace {

using Clock = std::chrono::steady_clock;
using Times = std::vector<long long>; ///< microseconds

constexpr int filterings = 11;
constexpr int pagesAtTop = 500;
constexpr int places = 10;
constexpr int pagesAtPlace = 50;

long long microsecondsSince(Clock::time_point begin)
{
    return std::chrono::duration_cast<std::chrono::microseconds>(Clock::now() - begin).count();
}

void say(const std::string& text)
{
    std::puts(text.c_str());
    std::fflush(stdout);
}

void sayMiddleAndLongest(Times times)
{
    std::sort(times.begin(), times.end());
    say(std::to_string(times[times.size() / 2]) + ' ' + std::to_string(times.back()));
}

/// Handles events until something holds.
void waitUntil(const std::function<bool()>& holds)
{
    while (!holds()) QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
}

/// Waits for all rows to be read and counted.
void waitForAll(Document& document)
{
    waitUntil([&] {
        const RowCounts* counts = document.counts();
        return !document.state().busy && counts != nullptr &&
               std::all_of(counts->facets.begin(), counts->facets.end(),
                           [](const auto& facet) { return facet.has_value(); });
    });
}

void showFirst(MainWindow& window)
{
    new AfterPainting(
        *window.table().viewport(), [&window] { return window.model().rowCount() > 0; },
        [] {
            say("painted");
            QApplication::quit();
        });
}

/// Filters by the component, and back. Both are painted before the next turn.
void filter(MainWindow& window, const std::string& component)
{
    Document& document = window.document();
    RowFilter wished;
    wished.showOnly(timeline::Column::component, component);
    const auto shown = [&](const RowFilter& filter) {
        bool came = false;
        bool painted = false;
        const auto taken =
            QObject::connect(&document, &Document::viewChanged, [&came] { came = true; });
        document.setFilter(filter);
        new AfterPainting(
            *window.table().viewport(), [&] { return came && window.model().rowCount() > 0; },
            [&painted] { painted = true; });
        waitUntil([&painted] { return painted; });
        QObject::disconnect(taken);
    };
    Times times;
    for (int turn = 0; turn < filterings; ++turn) {
        const auto begin = Clock::now();
        shown(wished);
        times.push_back(microsecondsSince(begin));
        waitForAll(document);
        shown({});
        waitForAll(document);
    }
    sayMiddleAndLongest(std::move(times));
}

/// One page: the key, and all events until it is painted.
long long page(RowTable& table)
{
    const auto begin = Clock::now();
    QKeyEvent down(QEvent::KeyPress, Qt::Key_PageDown, Qt::NoModifier);
    QApplication::sendEvent(&table, &down);
    QCoreApplication::processEvents();
    return microsecondsSince(begin);
}

void pageThrough(MainWindow& window)
{
    RowTable& table = window.table();
    const std::size_t rows = window.document().rowCount();
    Times times;
    const auto pagesFrom = [&](std::size_t place, int pages) {
        table.goTo(place);
        for (int round = 0; round < 5; ++round) QCoreApplication::processEvents();
        for (int each = 0; each < pages; ++each) times.push_back(page(table));
    };
    pagesFrom(0, pagesAtTop);
    for (int place = 0; place < places; ++place)
        pagesFrom(rows / places * static_cast<std::size_t>(place), pagesAtPlace);
    sayMiddleAndLongest(std::move(times));
}

void measure(MainWindow& window, const std::string& what, const std::string& component)
{
    if (what == "first") return showFirst(window);
    QTimer::singleShot(0, &window, [&window, what, component] {
        waitForAll(window.document());
        if (what == "read") say("read");
        if (what == "component") filter(window, component);
        if (what == "pages") pageThrough(window);
        QApplication::quit();
    });
}

} // namespace

} // namespace viewer

int main(int argc, char** argv)
{
    const std::vector<std::string> given(argv + 1, argv + argc);
    const std::string what = given.empty() ? "" : given[0];
    const int own = what == "component" ? 2 : 1;
    if (argc <= own + 1) return 2;
    const std::string component = own == 2 ? given[1] : "";
    // The viewer sees its own words alone.
    argv[own] = argv[0];
    return viewer::runViewer(argc - own, argv + own, [&](viewer::MainWindow& window) {
        viewer::measure(window, what, component);
    });
}
