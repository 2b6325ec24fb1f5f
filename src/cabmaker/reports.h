#pragma once

#include <string>

#include "cabmaker/cabinet_writer.h"

namespace cabmaker {

/// What the reports tell. Names are UTF-8.
struct ReportSubject {
    std::string cabinetName; ///< without folders
    std::string diskFolder;
    Compression compression = Compression::mszip;
    const PackedCabinet& cabinet;
};

/// The report for set-up programs: the disk, the cabinet, and a line for each member.
std::string setupInf(const ReportSubject& subject);

/// The report for people: how much went in, how much came out.
std::string setupRpt(const ReportSubject& subject);

} // namespace cabmaker
