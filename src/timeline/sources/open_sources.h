#pragma once

#include "timeline/sources/open_files.h"
#include "timeline/sources/source.h"
#include "timeline/sources/source_making.h"
#include "timeline/sources/spooling.h"

#include <memory>
#include <string>
#include <vector>

class CabinetReader;
class TraceTableReader;

namespace timeline {

/// What opening a path gave.
struct OpenedSources {
    std::vector<std::unique_ptr<Source>> sources;
    std::vector<std::string> troubles;   ///< sentences of what can't be read, or not all of it
    std::vector<std::string> passedOver; ///< the same of what is there and has no rows
    std::vector<std::string> notes;      ///< the same of what is read elsewhere
};

/// Finds out what paths lead to, and makes sources of it.
class SourceOpening {
public:
    /// How many files are kept open, as far as the system allows it and leaves some for others.
    static std::size_t usualOpenFiles();

    /// The readers stay alive while this and its sources are used.
    SourceOpening(const TraceTableReader& databases, const CabinetReader& cabinets,
                  SourceOptions options = {}, Spooling::Limits limits = {},
                  std::size_t mostOpenFiles = usualOpenFiles());

    /// The sources of a path of the machine: a raw log, a formatted copy, a data file, a trace
    /// database, an exported event log, a cabinet of those or a folder of those; a pipe through
    /// which one of them comes, and "-" for standard input. What it is shows by its first bytes,
    /// and by its name where they leave it open.
    ///
    /// A cabinet is unpacked to files without names. A folder's files come sorted by name, those in
    /// folders below it and those that links lead to not at all; what is in a cabinet and lies
    /// beside it, and the formatted copy of a log that lies beside it, comes once.
    ///
    /// A path that is none of these raises 321, with a sentence; 53, 70, 57, 61 as well. What can't
    /// be read in a folder or a cabinet is passed over, with a sentence. Unpacking and
    /// spooling end early when `progress` is cancelled.
    OpenedSources open(const std::string& path, Progress& progress);

    /// The same of an open file, such as one that standard input leads to.
    OpenedSources openInput(FileDescriptor file, const std::string& name, Progress& progress);

private:
    class Work;

    SourceMaking making_;
    const CabinetReader& cabinets_;
    Spooling spooling_;
    std::shared_ptr<OpenFiles> files_;
};

} // namespace timeline
