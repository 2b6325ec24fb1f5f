#pragma once

#include "hosts/viewer/document/document.h"
#include "support/temporary_folder.h"

#include <QString>

#include <string>

namespace viewer {

/// Logs in a folder of their own, of the day 2025-02-20.
class TestLogs {
public:
    /// Writes a log of a process, raw lines such as "15:23:07:123,Conv,12,CallFlow,3,text", and
    /// gives its path.
    QString write(const std::string& process, const std::string& lines);

    /// The same with so many lines: one each so many milliseconds, from a number of milliseconds
    /// after midnight on. The level of each twentieth is 0, their traces are "row 0", "row 1", ...
    QString writeRows(const std::string& process, std::size_t rows, int first, int apart);

    /// Writes an event log as it is exported, with an event, and gives its path.
    QString writeEvents();

    QString folder() const { return QString::fromStdString(folder_.path()); }
    const TemporaryFolder& files() const { return folder_; }

private:
    TemporaryFolder folder_;
};

/// A line as a raw log has it.
std::string rawLine(int millisecondsOfDay, const std::string& component, int level,
                    const std::string& trace);

/// Handles events until a document has read all and shows it; false when that takes too long.
bool waitForRows(Document& document, int milliseconds = 20'000);

} // namespace viewer
