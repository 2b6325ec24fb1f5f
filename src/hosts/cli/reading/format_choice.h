#pragma once

#include "hosts/cli/reading/row_format.h"
#include "hosts/cli/reading/server_clock.h"

#include <memory>
#include <string>
#include <vector>

namespace cli {

class OpenTool;
class ResultTarget;
struct ReadOptions;

/// What decides how rows are written, and with which columns.
struct FormatChoice {
    const ReadOptions& asked;
    const ResultTarget& target;
    OpenTool* tool;                     ///< null without a server
    std::shared_ptr<ServerClock> clock; ///< the server's, or else this machine's
    std::string name;                   ///< of the format, such as "table"
    std::vector<RowColumn> columns;     ///< that were asked for; empty for the usual ones
    bool isOneLog = false;              ///< shown in its own order and with its own columns
    std::vector<RowColumn> extended;    ///< those of thread, port and call id that rows have
    bool knowsAllRows = false;          ///< whether a table can look at all rows beforehand
};

std::unique_ptr<RowFormat> makeFormat(const FormatChoice& choice);

} // namespace cli
