#pragma once

#include "hosts/common/health/finding.h"

#include <string_view>
#include <vector>

class ExaminedServer;

/// One thing that is looked at.
struct HealthCheck {
    std::string_view id;
    std::string_view subject;
    bool needed;
    /// Raises nothing that would have to be known of: what it raises is told as its finding.
    HealthReport (*look)(ExaminedServer& server);
};

/// The checks of an open server, a subject each, in the order in which a person reads them. Those
/// of the database open it; later ones go on from what they found.
namespace healthChecks {

std::vector<HealthCheck> ofRegistry();
std::vector<HealthCheck> ofDatabase();
std::vector<HealthCheck> ofDescriptions(); ///< catalogue and macro trace definitions
std::vector<HealthCheck> ofLogs();
std::vector<HealthCheck> ofRights();
std::vector<HealthCheck> ofToolFolder();

} // namespace healthChecks
