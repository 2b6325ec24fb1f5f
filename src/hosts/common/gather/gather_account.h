#pragma once

#include "hosts/common/gather/gather_job.h"
#include "hosts/common/gather/gather_outcome.h"

class GatherFiles;
class GatherReport;
class GatherTroubles;
struct ToolContext;

/// All that is known of a run of the gather pipeline that has returned.
struct FollowedGather {
    ToolContext& tool;
    const GatherReport& report; ///< what the services saw of the logs
    const GatherJob& job;
    const GatherFiles& files;
    const GatherTroubles& troubles;
    const MachinePath& machinePath;
    bool cancelled; ///< by the person
};

/// What the run left in its destination, and what it left undone: of that, first the destination
/// or the database, then the logs, the event logs and the cabinet.
GatherOutcome outcomeOf(const FollowedGather& run);
