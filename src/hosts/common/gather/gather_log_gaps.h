#pragma once

#include "hosts/common/gather/gather_account.h"
#include "hosts/common/sentence.h"

#include <vector>

/// What a run left undone of the server's logs, each as a sentence: logs that it could not list or
/// look at, that it did not find, and those of its job that it did not bring as a whole. Many
/// that failed alike are told in one. `outcome` tells already what lies in the destination.
///
/// What a cancel left untouched is no news; and without a database no log had a chance.
std::vector<Sentence> gapsOfLogs(const FollowedGather& run, const GatherOutcome& outcome);
