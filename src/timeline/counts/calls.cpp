#include "timeline/counts/calls.h"

#include "timeline/filter/filter.h"
#include "timeline/timeline.h"

#include <algorithm>

namespace timeline {

void CallCounter::add(const IndexRow& row)
{
    if (row.belongsToRowBefore()) return;
    timeline_.record(row, record_);
    if (record_.callId.empty()) return;
    const auto [place, isNew] =
        places_.try_emplace(valueOf(record_, Column::callId), calls_.size());
    if (isNew) {
        Call& added = calls_.emplace_back();
        added.id = place->first;
        added.first = added.last = row.moment;
    }
    Call& call = calls_[place->second];
    call.first = std::min(call.first, row.moment);
    call.last = std::max(call.last, row.moment);
    ++call.rows;
    const std::string process = valueOf(record_, Column::process);
    if (!process.empty() &&
        std::find(call.processes.begin(), call.processes.end(), process) == call.processes.end())
        call.processes.push_back(process);
}

} // namespace timeline
