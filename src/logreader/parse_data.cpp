#include "logreader/parse_data.h"

#include "core/error_trap.h"
#include "runtime/numbers.h"

#include <array>

namespace {

/// The pieces of a data file's line; the last keeps its commas.
class DataParts {
public:
    explicit DataParts(std::string_view line)
    {
        if (line.empty()) return;
        while (count_ + 1 < parts_.size()) {
            const std::size_t comma = line.find(',');
            if (comma == std::string_view::npos) break;
            parts_[count_++] = line.substr(0, comma);
            line.remove_prefix(comma + 1);
        }
        parts_[count_++] = line;
    }

    /// Raises 9 when the line has fewer pieces.
    std::string_view at(std::size_t index) const
    {
        if (index >= count_) throw RunTimeError(runTimeErrors::subscriptOutOfRange);
        return parts_[index];
    }

private:
    std::array<std::string_view, 4> parts_;
    std::size_t count_ = 0;
};

} // namespace

DiagnosticLine mdlDiagnostics::parseData(ToolContext& tool, std::string_view line)
{
    DiagnosticLine record;
    parseData(tool, line, record);
    return record;
}

void mdlDiagnostics::parseData(ToolContext& tool, std::string_view line, DiagnosticLine& record)
{
    ErrorTrap step{tool, "mdlDiagnostics", "parseData"};
    record.clear();
    const DataParts parts(line);

    step([&] { record.timeStamp = parts.at(0); });
    step([&] { record.source = parts.at(1); });
    step([&] { record.traceNumber = toInteger32(parts.at(2)); });
    step([&] { record.trace = parts.at(3); });
    record.traceLevel = dataFileTraceLevel;
    record.component = dataFileComponent;
}
