#include "support/fakes/fake_event_log_exporter.h"

#include "platform/file_system.h"
#include "runtime/run_time_error.h"
#include "support/fakes/files/fake_paths.h"

FakeEventLogExporter::FakeEventLogExporter(FileSystem& files) : files_(files)
{
    with("Application", "").with("Security", "").with("System", "");
}

FakeEventLogExporter& FakeEventLogExporter::with(const std::string& logName,
                                                 const std::string& records)
{
    logs_[fakePaths::folded(logName)] = records;
    return *this;
}

FakeEventLogExporter& FakeEventLogExporter::failing(int number)
{
    fault_ = number;
    return *this;
}

void FakeEventLogExporter::exportEventLog(const std::string& logName, const std::string& target,
                                          int flags)
{
    exports_.push_back(Export{logName, target, flags});
    if (fault_ != 0) throw RunTimeError(fault_);
    const auto log = logs_.find(fakePaths::folded(logName));
    if (log == logs_.end()) throw RunTimeError(runTimeErrors::fileNotFound);
    const auto file = files_.createTextFile(target);
    file->writeLine("Time,Type,Source,Event ID,Computer,Message");
    file->write(log->second);
    file->close();
}
