#include "hosts/viewer/document/row_line.h"

namespace viewer {

bool anyLineOf(const timeline::Record& record, std::string& room,
               const std::function<bool(std::string_view)>& does)
{
    if (!record.whole.empty()) return does(record.whole);
    room.assign(record.timeStamp).append(",").append(record.source).append(",");
    room.append(std::to_string(record.traceNumber)).append(",").append(record.component);
    room.append(",").append(std::to_string(record.level)).append(",").append(record.trace);
    for (std::string_view rest = room;;) {
        const std::size_t end = rest.find('\n');
        if (does(rest.substr(0, end))) return true;
        if (end == std::string_view::npos) return false;
        rest.remove_prefix(end + 1);
    }
}

} // namespace viewer
