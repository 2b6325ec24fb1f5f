#include "hosts/common/health/finding.h"

#include <algorithm>

std::string_view wordOf(HealthState state)
{
    switch (state) {
    case HealthState::ok:
        return "ok";
    case HealthState::missing:
        return "missing";
    case HealthState::damaged:
        return "damaged";
    case HealthState::unusable:
        return "unusable";
    case HealthState::unknown:
        break;
    }
    return "unknown";
}

std::size_t neededLacks(const std::vector<Finding>& findings)
{
    return static_cast<std::size_t>(
        std::count_if(findings.begin(), findings.end(),
                      [](const Finding& finding) { return finding.needed && !finding.well(); }));
}
