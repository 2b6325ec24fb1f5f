#pragma once

#include "hosts/cli/reading/results.h"
#include "timeline/follow/follower.h"

namespace cli {

/// Writes the rows that come to logs, each at once, and tells what becomes of the logs, until the
/// person or the reader of the results has enough. What `interrupt` notes is such an end. False
/// where a row could not be read.
bool followRows(timeline::Follower& follower, RowReader& reader, RowFormat& format,
                ResultTarget& target, const InterruptWish& interrupt);

} // namespace cli
