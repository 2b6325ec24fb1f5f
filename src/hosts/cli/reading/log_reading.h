#pragma once

#include "hosts/cli/open_tool.h"
#include "hosts/cli/reading/count_report.h"
#include "hosts/cli/reading/opened_logs.h"
#include "hosts/cli/reading/read_options.h"
#include "hosts/cli/reading/results.h"
#include "hosts/cli/reading/row_choice.h"
#include "hosts/cli/reading/row_format.h"
#include "hosts/cli/reading/server_clock.h"
#include "timeline/follow/new_logs.h"

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace cli {

/// A run of `read`: logs are found, opened and read, and their rows shown or counted.
class LogReading {
public:
    /// Raises UsageError for what makes no sense. All three outlive it.
    LogReading(const GlobalOptions& options, const ReadOptions& asked, Output& output);

    /// Does it. Raises CommandFailure, without a text where all was told; RunTimeError.
    void run();

private:
    void openLogs();
    void tellReadElsewhere() const;
    void tellMissingColumns() const;
    bool anyLogHas(timeline::Column column) const;
    void readRows();
    void tellTroubles();
    void show();
    void watchForNewLogs();
    void requireLogsToFollow() const;
    timeline::Filter followedFilter() const;
    void follow();
    void showRows(const ShownRows& rows);
    void showCounts(const ShownRows& rows);
    void fail(const std::string& sentence);

    bool isOneLog() const;
    bool looksLikeTheTool() const;
    std::vector<RowColumn> extendedColumns() const;
    std::unique_ptr<RowFormat> format(bool knowsAllRows) const;
    std::vector<timeline::ComponentLevels> macroTrace(const std::string& name);

    const GlobalOptions& options_;
    const ReadOptions& asked_;
    std::string format_;
    RowChoice choice_;
    std::vector<RowColumn> columns_;
    std::optional<timeline::Column> countBy_;
    ResultTarget target_;
    std::unique_ptr<OpenTool> tool_;     ///< null where logs are read without a server
    std::vector<std::string> paths_;     ///< of the machine
    std::shared_ptr<ServerClock> clock_; ///< the server's, or else this machine's
    std::optional<OpenedLogs> logs_;
    timeline::SourceOptions settings_; ///< of what is opened
    timeline::NewLogs newLogs_;        ///< that come while others are followed
    bool failed_ = false;
};

} // namespace cli
