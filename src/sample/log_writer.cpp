#include "sample/log_writer.h"

#include "platform/log_name_parts.h"

namespace sample {

namespace {

constexpr const char* lineEnd = "\r\n";

/// Somebody formatted the notifier's first log in place, as real log folders show.
bool isFormattedInPlace(const LogPeriod& period)
{
    return period.process == Process::notifier && period.opened < coverageStart + hour;
}

std::string formattedName(const LogPeriod& period)
{
    std::string name = period.logName();
    return name.insert(name.find('.'), logFileNames::formattedTag);
}

} // namespace

LogWriter::LogWriter(std::filesystem::path folder, std::vector<LogPeriod> plan, bool extended)
    : folder_(std::move(folder)), plan_(std::move(plan)), extended_(extended)
{
    for (std::size_t index = plan_.size(); index-- > 0;)
        outputs_[static_cast<std::size_t>(plan_[index].process)].period = index;
    for (auto& outputs : outputs_) open(outputs);
}

void LogWriter::write(const LogLine& line)
{
    Outputs& outputs = outputs_[static_cast<std::size_t>(line.process)];
    while (line.moment >= plan_[outputs.period].closed && outputs.period + 1 < plan_.size() &&
           plan_[outputs.period + 1].process == line.process) {
        closeOutputs(outputs);
        ++outputs.period;
        open(outputs);
    }

    text_.clear();
    if (writesRecords(line.component)) {
        appendDataLine(text_, line);
        append(outputs.data, line.moment);
        return;
    }
    appendRawLine(text_, line, extended_);
    append(outputs.log, line.moment);
    if (outputs.formattedCopy.file) {
        text_.clear();
        appendFormattedLine(text_, line, extended_);
        append(outputs.formattedCopy, line.moment);
    }
}

void LogWriter::close()
{
    for (auto& outputs : outputs_) closeOutputs(outputs);
}

void LogWriter::open(Outputs& outputs)
{
    const LogPeriod& period = plan_[outputs.period];
    outputs.log.file.emplace(folder_ / period.logName());
    if (hasDataFiles(period.process)) outputs.data.file.emplace(folder_ / period.dataName());
    if (isFormattedInPlace(period))
        outputs.formattedCopy.file.emplace(folder_ / formattedName(period));
    for (Output* output : {&outputs.log, &outputs.data, &outputs.formattedCopy})
        output->lastLine = period.opened;
}

void LogWriter::closeOutputs(Outputs& outputs)
{
    for (Output* output : {&outputs.log, &outputs.data, &outputs.formattedCopy}) {
        if (output->file) output->file->close(output->lastLine);
        output->file.reset();
    }
}

void LogWriter::append(Output& output, Moment moment)
{
    text_ += lineEnd;
    output.file->write(text_);
    output.lastLine = moment;
}

} // namespace sample
