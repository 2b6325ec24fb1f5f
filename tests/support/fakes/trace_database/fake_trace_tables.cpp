#include "support/fakes/trace_database/fake_trace_tables.h"

#include "runtime/run_time_error.h"

namespace {

using Type = FakeTraceColumn::Type;

FakeTraceColumn textColumn(const char* name, std::size_t characters = 255)
{
    return {name, Type::text, characters};
}

FakeTraceColumn filledColumn(const char* name, std::size_t characters)
{
    return {name, Type::text, characters, false};
}

} // namespace

std::map<std::string, FakeTraceTable> gatherTables()
{
    return {
        {"tblTraces",
         {{textColumn("Date"),
           textColumn("Process"),
           filledColumn("Source", 255),
           {"TraceNumber", Type::longInteger},
           textColumn("Component"),
           {"TraceLevel", Type::integer},
           textColumn("Port"),
           filledColumn("Trace", memoCharacters),
           textColumn("CallId"),
           {"Highlight", Type::integer, 0, true, "0"},
           textColumn("qrvIndex")},
          {}}},
        {"tblMacroTraces", {{textColumn("Name"), textColumn("Data", memoCharacters)}, {}}},
        {"tblUniqueFilters",
         {{textColumn("qrvIndex"), textColumn("Process"), textColumn("Source"),
           textColumn("Component"), textColumn("TraceLevel", 50)},
          {}}},
    };
}

void FakeTraceState::note(const std::string& call)
{
    if (call == failing && countdown > 0 && --countdown == 0) throw RunTimeError(number);
    calls.push_back(call);
}
