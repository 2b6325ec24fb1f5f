#pragma once

#include "backends/cabinet/mspack_cabinets.h"
#include "backends/jet/jet_trace_reader.h"
#include "timeline/sources/open_sources.h"

#include <memory>
#include <string>

/// Opens whatever a path of the machine leads to that has rows.
class LogOpener {
public:
    explicit LogOpener(timeline::SourceOptions options);

    /// The sources of a path, or of standard input for "-". A single file that is nothing known is
    /// taken for a log of lines without a form. Raises what `timeline::SourceOpening` raises for
    /// everything else that can't be read; ends early when `progress` is cancelled.
    timeline::OpenedSources open(const std::string& path, timeline::Progress& progress);

    /// The source of one log at a path, as `open` makes it. Raises what opening it raises.
    std::unique_ptr<timeline::Source> openLog(const std::string& path);

private:
    bool hasRowsOfItsOwn(const std::string& path) const;
    std::unique_ptr<timeline::Source> unknownLog(const std::string& path) const;

    jet::JetTraceReader databases_;
    MspackCabinets cabinets_;
    timeline::SourceOptions options_;
    timeline::SourceOpening opening_;
};
