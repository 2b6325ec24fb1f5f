#include "gather/importers/log_reading.h"

#include "controls/label.h"
#include "controls/progress_bar.h"
#include "core/localisation.h"
#include "gather/cancel.h"
#include "platform/clock.h"
#include "platform/desktop.h"
#include "runtime/numbers.h"
#include "runtime/required_object.h"

#include <limits>

namespace {

constexpr int linesBetweenSleeps = 100;
constexpr int linesBetweenProgressPoints = 1000;

/// How often in a row a line may fail to be read: a device that never recovers would otherwise
/// keep its importer for ever.
constexpr int readFailuresAllowed = 10;

/// 32-bit addition. Raises 6, and changes nothing, when the sum does not fit.
void add(std::int32_t& sum, std::size_t amount)
{
    const auto room = static_cast<std::size_t>(std::numeric_limits<std::int32_t>::max() - sum);
    if (amount > room) throw RunTimeError(runTimeErrors::overflow);
    sum += static_cast<std::int32_t>(amount);
}

} // namespace

LogReading::LogReading(ToolContext& tool, ErrorTrap& step, ProgressBar& progressCurrent,
                       Label& label)
    : tool_(tool), step_(step), progressCurrent_(progressCurrent), label_(label),
      savedCaption_(label.caption())
{}

LogReading::~LogReading() = default;

bool LogReading::open(const std::string& fileName)
{
    const std::string path = tool_.g_strLogFolder + "\\" + fileName;
    const bool exists = step_.value(false, [&] { return tool_.platform.files.fileExists(path); });
    if (!exists) {
        step_([&] {
            tool_.platform.desktop.messageBox(myLoadResString(tool_, TextId::logFile) + path +
                                                  myLoadResString(tool_, TextId::canNotBeFound),
                                              myLoadResString(tool_, TextId::logNotFound),
                                              MessageIcon::critical);
        });
        return false;
    }
    step_([&] { file_ = tool_.platform.files.file(path); });
    step_([&] { reader_ = tool_.platform.files.openForReading(path); });
    step_([&] { progressCurrent_.setMaximum(static_cast<float>(size())); });
    step_([&] { progressCurrent_.setVisible(true); });
    return true;
}

const FileInfo& LogReading::file() const
{
    return required(file_);
}

bool LogReading::nextLine()
{
    const bool atEnd = step_.value(true, [&] { return required(reader_).atEnd(); });
    if (atEnd || failuresInARow_ > readFailuresAllowed) return false;

    ++failuresInARow_;
    step_([&] {
        line_ = reader_->readLine();
        failuresInARow_ = 0;
    });
    step_([&] { add(lineCount_, 1); });
    step_([&] { add(charactersRead_, line_.size()); });
    return true;
}

bool LogReading::cancelledAtProgressPoint()
{
    if (lineCount_ % linesBetweenSleeps == 0) step_([&] { tool_.platform.clock.sleep(1); });
    if (lineCount_ != 1 && lineCount_ % linesBetweenProgressPoints != 0) return false;
    showProgress();
    step_([&] { tool_.platform.desktop.pumpMessages(); });
    return mdlLogs::cancelCurrentProcess(tool_);
}

void LogReading::showProgress()
{
    step_([&] { progressCurrent_.setValue(static_cast<float>(charactersRead_)); });
    step_([&] { progressCurrent_.refresh(); });
    step_([&] {
        label_.setCaption(savedCaption_ + " " + numberText(size() - charactersRead_) + " " +
                          myLoadResString(tool_, TextId::bytesLeft));
    });
    step_([&] { label_.refresh(); });
}

void LogReading::finish()
{
    step_([&] { label_.setCaption(savedCaption_); });
    step_([&] { progressCurrent_.setValue(progressCurrent_.maximum()); });
    step_([&] { required(reader_).close(); });
}
