#include "hosts/viewer/window/commands.h"

namespace viewer {

const std::vector<MenuInfo>& Commands::menus()
{
    using M = CommandMenu;
    static const std::vector<MenuInfo> infos = {
        {M::file, M::file, QT_TR_NOOP("&File")},       {M::edit, M::edit, QT_TR_NOOP("&Edit")},
        {M::filter, M::filter, QT_TR_NOOP("Fi&lter")}, {M::only, M::filter, QT_TR_NOOP("&Only")},
        {M::hide, M::filter, QT_TR_NOOP("&Hide")},     {M::view, M::view, QT_TR_NOOP("&View")},
        {M::times, M::view, QT_TR_NOOP("T&imes")},     {M::theme, M::view, QT_TR_NOOP("&Theme")},
        {M::help, M::help, QT_TR_NOOP("&Help")},
    };
    return infos;
}

const std::vector<CommandInfo>& Commands::all()
{
    using C = Command;
    using M = CommandMenu;
    static const std::vector<CommandInfo> infos = {
        {C::openFiles, M::file, QT_TR_NOOP("&Open Files..."),
         QT_TR_NOOP("Add logs, trace databases or cabinets to what is on show"), "Ctrl+O",
         "open-log", false, false},
        {C::openFolder, M::file, QT_TR_NOOP("Open &Folder..."),
         QT_TR_NOOP("Add all logs of a folder to what is on show"), "Ctrl+Shift+O", "open-site",
         false, false},
        {C::stop, M::file, QT_TR_NOOP("&Stop Reading"),
         QT_TR_NOOP("End what is being opened or read; the rows so far stay"), "Ctrl+.", "", true,
         false},
        {C::quit, M::file, QT_TR_NOOP("&Quit"), QT_TR_NOOP("Close the viewer"), "Ctrl+Q", "", true,
         false},

        {C::copy, M::edit, QT_TR_NOOP("&Copy"),
         QT_TR_NOOP("Copy the selected rows as they are shown, one line each"), "Ctrl+C", "copy",
         false, false},
        {C::copyRaw, M::edit, QT_TR_NOOP("Copy &Lines"),
         QT_TR_NOOP("Copy the lines of the selected rows as they stand in their files"),
         "Ctrl+Alt+C", "", false, false},
        {C::copyCsv, M::edit, QT_TR_NOOP("Copy as CS&V"),
         QT_TR_NOOP("Copy the selected rows with their headers, for a spreadsheet"), "Ctrl+Shift+C",
         "", false, false},
        {C::selectAll, M::edit, QT_TR_NOOP("Select &All"), QT_TR_NOOP("Select every row on show"),
         "Ctrl+A", "", false, false},

        {C::filter, M::filter, QT_TR_NOOP("&Texts..."),
         QT_TR_NOOP("Show rows that have a text, or that have it not"), "Ctrl+L", "filter", false,
         false},
        {C::showAll, M::filter, QT_TR_NOOP("Show &All Rows"), QT_TR_NOOP("End the filter"),
         "Ctrl+Shift+A", "", false, false},
        {C::narrowTimes, M::filter, QT_TR_NOOP("&Narrow Times"),
         QT_TR_NOOP("Show half of the time, around the current row"), "Ctrl+Alt++", "", true,
         false},
        {C::widenTimes, M::filter, QT_TR_NOOP("&Widen Times"),
         QT_TR_NOOP("Show twice the time, around the current row"), "Ctrl+Alt+-", "", false, false},
        {C::allTimes, M::filter, QT_TR_NOOP("All T&imes"), QT_TR_NOOP("Show rows of all times"),
         "Ctrl+Alt+0", "", false, false},
        {C::onlyProcess, M::only, QT_TR_NOOP("This &Process"),
         QT_TR_NOOP("Show the rows of the current row's process alone"), "Ctrl+K, P", "", false,
         false},
        {C::onlyComponent, M::only, QT_TR_NOOP("This &Component"),
         QT_TR_NOOP("Show the rows of the current row's component alone"), "Ctrl+K, C", "", false,
         false},
        {C::onlySource, M::only, QT_TR_NOOP("This &Source"),
         QT_TR_NOOP("Show the rows of the current row's source alone"), "Ctrl+K, S", "", false,
         false},
        {C::onlyLevel, M::only, QT_TR_NOOP("This &Level"),
         QT_TR_NOOP("Show the rows of the current row's level alone"), "Ctrl+K, L", "", false,
         false},
        {C::onlyCall, M::only, QT_TR_NOOP("This C&all"),
         QT_TR_NOOP("Show the rows of the current row's call alone, in all processes"), "Ctrl+K, A",
         "", false, false},
        {C::onlyPort, M::only, QT_TR_NOOP("This P&ort"),
         QT_TR_NOOP("Show the rows of the current row's port alone"), "Ctrl+K, O", "", false,
         false},
        {C::onlyThread, M::only, QT_TR_NOOP("This &Thread"),
         QT_TR_NOOP("Show the rows of the current row's thread alone"), "Ctrl+K, T", "", false,
         false},
        {C::hideProcess, M::hide, QT_TR_NOOP("This &Process"),
         QT_TR_NOOP("Hide the rows of the current row's process"), "Ctrl+H, P", "", false, false},
        {C::hideComponent, M::hide, QT_TR_NOOP("This &Component"),
         QT_TR_NOOP("Hide the rows of the current row's component"), "Ctrl+H, C", "", false, false},
        {C::hideSource, M::hide, QT_TR_NOOP("This &Source"),
         QT_TR_NOOP("Hide the rows of the current row's source"), "Ctrl+H, S", "", false, false},
        {C::hideLevel, M::hide, QT_TR_NOOP("This &Level"),
         QT_TR_NOOP("Hide the rows of the current row's level"), "Ctrl+H, L", "", false, false},

        {C::values, M::view, QT_TR_NOOP("&Values"),
         QT_TR_NOOP("Show the values of processes, components, sources and levels beside the rows"),
         "Ctrl+Shift+V", "", false, true},
        {C::otherPane, M::view, QT_TR_NOOP("&Other Pane"),
         QT_TR_NOOP("Go from the rows to the values, or back"), "F6", "", false, false},
        {C::columns, M::view, QT_TR_NOOP("&Columns..."),
         QT_TR_NOOP("Show or hide columns of the table"), "Ctrl+Shift+K", "", false, false},
        {C::largerText, M::view, QT_TR_NOOP("&Larger Text"),
         QT_TR_NOOP("Show rows in larger letters"), "Ctrl++", "", true, false},
        {C::smallerText, M::view, QT_TR_NOOP("&Smaller Text"),
         QT_TR_NOOP("Show rows in smaller letters"), "Ctrl+-", "", false, false},
        {C::normalText, M::view, QT_TR_NOOP("&Normal Text"),
         QT_TR_NOOP("Show rows in letters of the usual size"), "Ctrl+0", "", false, false},

        {C::clockTimes, M::times, QT_TR_NOOP("&Clock"),
         QT_TR_NOOP("Show when each row was written"), "Ctrl+1", "", false, true},
        {C::timesSinceRowBefore, M::times, QT_TR_NOOP("Since Row &Before"),
         QT_TR_NOOP("Show how long after the row above each row was written"), "Ctrl+2", "", false,
         true},
        {C::timesSinceMark, M::times, QT_TR_NOOP("Since &Marked Row"),
         QT_TR_NOOP("Show how long before or after the marked row each row was written"), "Ctrl+3",
         "", false, true},
        {C::markTime, M::times, QT_TR_NOOP("Mar&k This Row"),
         QT_TR_NOOP("Tell times from the current row"), "Ctrl+T", "", true, false},

        {C::systemTheme, M::theme, QT_TR_NOOP("As the &Desktop"),
         QT_TR_NOOP("Light or dark as the desktop is"), "Ctrl+Alt+S", "", false, true},
        {C::lightTheme, M::theme, QT_TR_NOOP("&Light"),
         QT_TR_NOOP("Dark letters on a light ground"), "Ctrl+Alt+L", "", false, true},
        {C::darkTheme, M::theme, QT_TR_NOOP("Da&rk"), QT_TR_NOOP("Light letters on a dark ground"),
         "Ctrl+Alt+D", "", false, true},

        {C::about, M::help, QT_TR_NOOP("&About..."), QT_TR_NOOP("Tell the version"), "Ctrl+F1", "",
         false, false},
    };
    return infos;
}

} // namespace viewer
