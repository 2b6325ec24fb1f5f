#pragma once

#include "system/file_descriptor.h"
#include "timeline/lines/line_fields.h"
#include "timeline/moment.h"

#include <optional>
#include <string>
#include <string_view>

namespace timeline {

/// What the name of a log file tells.
struct LogName {
    std::string process;          ///< empty where it tells none
    std::optional<Moment> opened; ///< when it was begun, to the minute
    bool isLog = false;           ///< whether it is one that the server gives to its logs
    bool isFormattedCopy = false;
    bool isDataFile = false;
};

/// Reads a name such as `diag_PROCESS_20051008_152307_fmtd.txt`, without folders.
LogName readLogName(std::string_view name);

/// What the first lines of a file tell.
struct FirstLines {
    std::optional<LineForm> form; ///< nothing where hardly a line has one
    bool dated = false;           ///< whether the first line with a form has a day in its stamp
    bool beyondAscii = false;     ///< whether there are letters that the code page decides on
};

/// Looks at the lines that a file begins with; of the last one a part may be missing.
FirstLines lookAtLines(std::string_view head, const LogName& name);

/// What the stamps of a log tell of the day of its first ones, which are a time of day alone.
struct FirstStamps {
    /// How often midnight passes up to the first stamp with a day; to the last one where none has.
    int midnights = 0;
    std::optional<Moment> dated; ///< the day of that stamp; nothing where none has one
};

/// Reads the stamps of a log up to the first that has a day. Raises 57, 7.
FirstStamps readFirstStamps(const FileDescriptor& file, LineForm form);

} // namespace timeline
