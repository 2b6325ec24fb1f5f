#pragma once

#include <functional>
#include <string>

namespace desktop {

class LogView;

/// Pages down through all rows of a log that is on show: as the tool has them, sorted, filtered,
/// and beside them a table of Qt over as many rows of fixed texts. Says for each a line with the
/// name, the number of pages, and the microseconds of a page: the median and the longest.
void pageThrough(LogView& log, const std::function<void(const std::string&)>& say);

} // namespace desktop
