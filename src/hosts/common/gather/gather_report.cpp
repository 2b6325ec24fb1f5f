#include "hosts/common/gather/gather_report.h"

#include <utility>

namespace {

/// Whether a path or a pattern names something in a folder itself.
bool liesIn(std::string_view folder, std::string_view path)
{
    return path.size() > folder.size() + 1 && path.substr(0, folder.size()) == folder &&
           path[folder.size()] == '\\' && path.find('\\', folder.size() + 1) == path.npos;
}

} // namespace

void GatherReport::listed(const std::string& pattern, const std::vector<std::string>& names)
{
    failedListings_.erase(pattern);
    listings_[pattern] = {names.begin(), names.end()};
    std::erase_if(unseen_, [&](const auto& entry) { return entry.second.listing == pattern; });
    latestListing_ = pattern;
}

void GatherReport::notListed(const std::string& pattern, std::string why)
{
    listed(pattern);
    failedListings_[pattern] = std::move(why);
}

void GatherReport::seen(const std::string& path)
{
    unseen_.erase(path);
}

void GatherReport::notSeen(const std::string& path, std::string why)
{
    unseen_[path] = {latestListing_, std::move(why)};
}

void GatherReport::readingBegins(const std::string& path)
{
    readings_.erase(path);
    rowsBegun_ = rowsStored_ = 0;
    firstLoss_.clear();
}

void GatherReport::readingEnds(const std::string& path, LogSight sight)
{
    sight.rowsLost = rowsBegun_ - rowsStored_;
    sight.rowsLostBecause = firstLoss_;
    readings_[path] = std::move(sight);
}

void GatherReport::rowStored(std::string_view process)
{
    ++rowsStored_;
    const auto known = storedRows_.find(process);
    if (known != storedRows_.end())
        ++known->second;
    else
        storedRows_.emplace(process, 1);
}

void GatherReport::forgetReadings()
{
    readings_.clear();
    storedRows_.clear();
}

void GatherReport::rowLost(const std::string& why)
{
    if (!firstLoss_.empty()) return;
    firstLoss_ = why;
    while (!firstLoss_.empty() && firstLoss_.back() == '.') firstLoss_.pop_back();
}

std::optional<std::string> GatherReport::listingFailure(const std::string& folder) const
{
    for (const auto& [pattern, why] : failedListings_)
        if (liesIn(folder, pattern)) return why;
    return {};
}

std::vector<std::pair<std::string, std::string>>
GatherReport::unseenLogs(const std::string& folder) const
{
    std::vector<std::pair<std::string, std::string>> logs;
    for (const auto& [path, unseen] : unseen_)
        if (liesIn(folder, path)) logs.emplace_back(path.substr(folder.size() + 1), unseen.why);
    return logs;
}

bool GatherReport::wasListed(const std::string& pattern, const std::string& name) const
{
    const auto listing = listings_.find(pattern);
    return listing != listings_.end() && listing->second.count(name) != 0;
}

const LogSight* GatherReport::reading(const std::string& path) const
{
    const auto found = readings_.find(path);
    return found == readings_.end() ? nullptr : &found->second;
}
