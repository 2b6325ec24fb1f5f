#include "hosts/viewer/support/test_logs.h"

#include "platform/event_log_exporter.h"

#include <QCoreApplication>
#include <QElapsedTimer>

#include <cstdio>

namespace viewer {

std::string rawLine(int millisecondsOfDay, const std::string& component, int level,
                    const std::string& trace)
{
    char stamp[24];
    std::snprintf(stamp, sizeof stamp, "%02d:%02d:%02d:%03d", millisecondsOfDay / 3'600'000,
                  millisecondsOfDay / 60'000 % 60, millisecondsOfDay / 1000 % 60,
                  millisecondsOfDay % 1000);
    return std::string(stamp) + ",Conv,12," + component + "," + std::to_string(level) + "," +
           trace + "\r\n";
}

QString TestLogs::write(const std::string& process, const std::string& lines)
{
    return QString::fromStdString(folder_.write("diag_" + process + "_20250220_000000.txt", lines));
}

QString TestLogs::writeRows(const std::string& process, std::size_t rows, int first, int apart)
{
    std::string lines;
    for (std::size_t row = 0; row < rows; ++row)
        lines += rawLine(first + static_cast<int>(row) * apart, "CallFlow", row % 20 == 0 ? 0 : 3,
                         "row " + std::to_string(row));
    return write(process, lines);
}

QString TestLogs::writeEvents()
{
    return QString::fromStdString(folder_.write(
        "Application.csv",
        std::string(eventLogCsvHeader) + "2025-02-20 15:23:07,Error,Disk,7,SERVER,it failed\r\n"));
}

bool waitForRows(Document& document, int milliseconds)
{
    QElapsedTimer clock;
    clock.start();
    // What was asked of the opening comes as an event.
    QCoreApplication::processEvents();
    while (document.state().busy) {
        if (clock.elapsed() > milliseconds) return false;
        QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
    }
    QCoreApplication::processEvents();
    return !document.state().busy;
}

} // namespace viewer
