#pragma once

#include <string_view>

/// The sentences about a gather, for a host that translates them.
namespace gatherSentences {
constexpr std::string_view noCurrentLog = "The server names no current log of %1.";
constexpr std::string_view currentLogGone = "The current log of %1, %2, is not there.";
constexpr std::string_view currentLogUnseen = "The current log of %1, %2, can't be looked at: %3.";
constexpr std::string_view noLogFolder = "The server's log folder %1 is not there.";
constexpr std::string_view logsNotListed = "The logs in %1 could not be listed: %2.";
constexpr std::string_view logUnseen = "%1 was passed over: %2.";
constexpr std::string_view logNotFound = "%1 was not gathered: it is not in %2.";
constexpr std::string_view logNotCopied = "%1 was not copied: %2.";
constexpr std::string_view logCopiedInPart = "%1 was copied in part: %2.";
constexpr std::string_view logReadInPart = "%1 was not gathered as a whole: %2.";
constexpr std::string_view logReadSoFar = "%1 was read as far as line %3: %2.";
constexpr std::string_view linesNotStored = "Lines of %1 that were not stored: %3 (%2).";
constexpr std::string_view logCut = "%1 was cut while it was read.";
constexpr std::string_view logVanished = "%1 was taken away while it was read.";
constexpr std::string_view logsCutShort =
    "%1 logs were not gathered as a whole, the first of them %2: %3.";
constexpr std::string_view tooManyMalformedLines =
    "%1 has too many malformed lines, and was read no further than the eleventh.";
constexpr std::string_view eventLogNotCaptured = "The %1 event log was not captured: %2.";
constexpr std::string_view destinationNotMade = "The destination %1 can't be made: %2.";
constexpr std::string_view destinationGone = "The destination %1 has gone.";
constexpr std::string_view noDatabase = "No trace database was made: %1.";
constexpr std::string_view databaseIncomplete = "The trace database is not complete: %1.";
constexpr std::string_view definitionsIncomplete =
    "The macro trace definitions could not all be stored: %1.";
constexpr std::string_view filtersIncomplete = "The filters could not all be stored: %1.";
constexpr std::string_view noCabinet = "No cabinet was made.";
constexpr std::string_view noCabinetMaker = "No cabinet was made: the cabinet maker %1 is missing.";
constexpr std::string_view noCabinetBecause = "No cabinet was made: %1.";
constexpr std::string_view cabinetMakerReplaced =
    "The site's cabinet maker is not the installed one, which made the cabinet in its place.";
constexpr std::string_view wouldBeLost =
    "%1 in the destination %2 would be lost: the gather makes a file or folder of that name and "
    "removes it again.";
constexpr std::string_view notPlain =
    "%1 in the destination %2 is not a plain file, and nothing is written to such a one.";
constexpr std::string_view destinationTaken =
    "Another gather is writing to %1; wait until it has ended, or name another folder.";
constexpr std::string_view cancelled = "The gather was cancelled.";
constexpr std::string_view emptyFrame = "No line lies in the time frame.";
constexpr std::string_view kept = "What was gathered is kept in %1.";

/// Each of them once.
constexpr std::string_view all[] = {
    noCurrentLog,
    currentLogGone,
    currentLogUnseen,
    noLogFolder,
    logsNotListed,
    logUnseen,
    logNotFound,
    logNotCopied,
    logCopiedInPart,
    logReadInPart,
    logReadSoFar,
    linesNotStored,
    logCut,
    logVanished,
    logsCutShort,
    tooManyMalformedLines,
    eventLogNotCaptured,
    destinationNotMade,
    destinationGone,
    noDatabase,
    databaseIncomplete,
    definitionsIncomplete,
    filtersIncomplete,
    noCabinet,
    noCabinetMaker,
    noCabinetBecause,
    cabinetMakerReplaced,
    wouldBeLost,
    notPlain,
    destinationTaken,
    cancelled,
    emptyFrame,
    kept,
};
} // namespace gatherSentences
