#pragma once

#include "platform/database.h"
#include "runtime/run_time_error.h"

#include <memory>

/// The recordset of a statement that may have failed. Raises 3704 (closed) when it did.
inline DatabaseRecordset& opened(const std::unique_ptr<DatabaseRecordset>& rows)
{
    if (!rows) throw RunTimeError(databaseErrors::closedObject);
    return *rows;
}
