#include "hosts/common/health/examined_server.h"

#include "platform/host_module.h"

#include <utility>

std::string ExaminedServer::besideTool(const std::string& name)
{
    return context().platform.module.folder() + "\\" + name;
}

namespace health {

HealthReport well(Sentence detail)
{
    return {HealthState::ok, std::move(detail)};
}

HealthReport lacking(HealthState state, Sentence detail, std::string_view remedy)
{
    return {state, std::move(detail), Sentence{remedy, {}}};
}

HealthReport notLookedAt(std::string_view why, std::vector<std::string> inserts)
{
    return {HealthState::unknown, {why, std::move(inserts)}};
}

std::string clauseOf(const RunTimeError& error)
{
    std::string text = error.description();
    if (!text.empty() && text.back() == '.') text.pop_back();
    return text;
}

std::string listed(const std::vector<std::string>& names)
{
    constexpr std::size_t most = 6;
    std::string text;
    for (std::size_t at = 0; at < names.size() && at < most; ++at)
        text += (at == 0 ? "" : ", ") + names[at];
    if (names.size() > most) text += ", ... (+" + std::to_string(names.size() - most) + ")";
    return text;
}

} // namespace health
