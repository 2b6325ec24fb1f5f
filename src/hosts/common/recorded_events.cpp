#include "hosts/common/recorded_events.h"

std::int32_t RecordedEvents::registerTool(const std::string& moduleName)
{
    return reporter_.registerTool(moduleName);
}

void RecordedEvents::report(const std::string& source, std::int32_t handle, int type,
                            std::int32_t id, const std::vector<std::string>& inserts)
{
    reporter_.report(source, handle, type, id, inserts);
    events_.push_back({id, inserts.empty() ? std::string() : inserts.front()});
}

void RecordedEvents::formatTraceLine(std::string_view rawLine, std::string& formatted)
{
    reporter_.formatTraceLine(rawLine, formatted);
}

std::string_view RecordedEvents::timeOfSoundLine(std::string_view rawLine) const
{
    return reporter_.timeOfSoundLine(rawLine);
}
