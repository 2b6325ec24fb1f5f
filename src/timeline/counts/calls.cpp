#include "timeline/counts/calls.h"

#include "timeline/filter/filter.h"
#include "timeline/timeline.h"

#include <algorithm>
#include <utility>

namespace timeline {

void CallCounter::add(const IndexRow& row)
{
    if (row.belongsToRowBefore()) return;
    timeline_.record(row, record_);
    if (record_.callId.empty()) return;
    std::string id = valueOf(record_, Column::callId);
    auto place = places_.find(id);
    if (place == places_.end()) {
        leftOut_ = leftOut_ || calls_.size() >= mostCalls_;
        if (leftOut_) return;
        place = places_.emplace(std::move(id), calls_.size()).first;
        Call& added = calls_.emplace_back();
        added.id = place->first;
        added.first = added.last = row.moment;
    }
    Call& call = calls_[place->second];
    call.first = std::min(call.first, row.moment);
    call.last = std::max(call.last, row.moment);
    ++call.rows;
    // A row without a component has no level that means anything.
    if (!record_.component.empty() && record_.level == 0) ++call.errors;
    if (!record_.component.empty() && record_.level == 1) ++call.warnings;
    const std::string process = valueOf(record_, Column::process);
    if (!process.empty() &&
        std::find(call.processes.begin(), call.processes.end(), process) == call.processes.end())
        call.processes.push_back(process);
}

} // namespace timeline
