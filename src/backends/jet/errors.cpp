#include "backends/jet/errors.h"

#include "platform/trace_database.h"
#include "runtime/run_time_error.h"

namespace jet {

void raiseUnknownFormat(const std::string& what)
{
    throw RunTimeError(traceDatabaseErrors::unknownFormat,
                       "Unrecognized database format (" + what + ").");
}

void raiseFileNotFound(const std::string& path)
{
    throw RunTimeError(traceDatabaseErrors::fileNotFound, "Couldn't find file '" + path + "'.");
}

void raiseCannotOpen(const std::string& path)
{
    throw RunTimeError(traceDatabaseErrors::cannotOpen, "Cannot open the file '" + path + "'.");
}

void raiseDiskFull()
{
    throw RunTimeError(traceDatabaseErrors::diskFull, "Not enough space on disk.");
}

void raiseDatabaseFull()
{
    throw RunTimeError(traceDatabaseErrors::databaseFull,
                       "The database has reached its largest size.");
}

void raiseRowTooLarge()
{
    throw RunTimeError(traceDatabaseErrors::rowTooLarge, "Record is too large.");
}

void raiseReadOnly(const std::string& table)
{
    throw RunTimeError(traceDatabaseErrors::readOnly,
                       "Can't update. The table '" + table + "' is read-only.");
}

} // namespace jet
