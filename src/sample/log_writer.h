#pragma once

#include "sample/log_line.h"
#include "sample/log_plan.h"
#include "sample/output_file.h"

#include <array>
#include <filesystem>
#include <optional>
#include <vector>

namespace sample {

/// Writes the lines of all processes to their logs and data files, as they come.
class LogWriter {
public:
    /// `folder` is there already. `extended` chooses the raw form.
    LogWriter(std::filesystem::path folder, std::vector<LogPeriod> plan, bool extended);

    /// Takes a line; those of one process come in the order of time. Raises as `OutputFile`.
    void write(const LogLine& line);

    /// Closes what is open. Each file is then dated with its last line, or its opening.
    void close();

private:
    /// A file of the kind that changes with the process's logs.
    struct Output {
        std::optional<OutputFile> file;
        Moment lastLine = 0;
    };

    /// What one process writes at the time.
    struct Outputs {
        std::size_t period = 0; ///< in the plan
        Output log;
        Output data;
        Output formattedCopy;
    };

    void open(Outputs& outputs);
    void closeOutputs(Outputs& outputs);
    void append(Output& output, Moment moment);

    std::filesystem::path folder_;
    std::vector<LogPeriod> plan_;
    bool extended_;
    std::array<Outputs, processCount> outputs_;
    std::string text_;
};

} // namespace sample
