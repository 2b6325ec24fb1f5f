#pragma once

#include "timeline/moment.h"

#include <cstdint>
#include <string>
#include <string_view>

class CodePage;

namespace timeline {

/// A row with its texts.
///
/// Texts look at bytes of the record's own, or of the line it was cut from, and live as long as
/// those. They are in the encoding of their source, but for `process` and `file`, which come from
/// names of files and are UTF-8.
struct Record {
    Moment moment = noMoment;
    bool hasForm = false;       ///< false for a line without a form, which is `trace` alone
    std::string_view process;   ///< such as "KoCSMgr", in UTF-8; empty where nobody knows
    std::string_view file;      ///< the name of its file, in UTF-8
    std::uint32_t line = 0;     ///< in that file, from 1; 0 where it has no lines
    std::string_view timeStamp; ///< as it stands there
    std::string_view source;
    std::int32_t traceNumber = 0;
    std::string_view component;
    std::int16_t level = 0;
    std::string_view thread;
    std::string_view port;
    std::string_view callId;
    std::string_view trace;
    std::string_view whole;             ///< the line as it stands there; empty where there are none
    const CodePage* codePage = nullptr; ///< null where all are UTF-8

    std::string bytes; ///< what a source keeps the texts in
};

} // namespace timeline
