#pragma once

#include "platform/trace_database.h"
#include "support/fakes/trace_database/fake_trace_tables.h"

#include <memory>
#include <string>

/// A table of the fake trace database `state`, opened for adding rows while the database is open as
/// it is now.
std::unique_ptr<TraceRecordset> openFakeTraceTable(std::shared_ptr<FakeTraceState> state,
                                                   const std::string& table);
