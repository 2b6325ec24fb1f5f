#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "cabmaker/data_block.h"

namespace cabmaker {

/// A line that names a file to pack.
struct DirectiveMember {
    std::string source; ///< path as written, behind SourceDir if that is set
    std::string name;   ///< name in the cabinet, behind DestinationDir if that is set
    unsigned line = 0;  ///< of the directive file, from 1
};

/// What a directive file asks for. All text is UTF-8; paths are as written there.
struct Directives {
    std::string cabinetName = "*.cab"; ///< relative to the disk folder, with one * at most
    std::string diskFolder = "disk1";  ///< relative to the working folder, with one * at most
    std::string infFile = "setup.inf"; ///< relative to the working folder; empty: none is wanted
    std::string rptFile = "setup.rpt"; ///< likewise
    Compression compression = Compression::mszip;
    std::uint64_t largestCabinet = 0; ///< bytes; 0: as large as the format allows
    std::vector<DirectiveMember> members;
};

/// The name of cabinet `number`, from 1, of a set. Where the template has no `*` to stand for the
/// number, the first cabinet has it as it is, and the others' have "_" and the number before their
/// ending.
std::string cabinetNameOf(const Directives& directives, std::size_t number);

/// The folder of cabinet `number`: the same for all where there is no `*`.
std::string diskFolderOf(const Directives& directives, std::size_t number);

/// Reads a directive file: one item a line, names without regard to case, in Windows-1252, or in
/// UTF-8 behind its byte order mark.
///
/// A line is empty, a comment (`;`), `.Option EXPLICIT`, `.Set NAME=VALUE`, or a file to pack with,
/// optionally, its name in the cabinet. The variables:
///
/// | Cabinet              | on: cabinets are all that is made                               |
/// | CabinetNameTemplate  | a `*` in it is the cabinet's number; also CabinetName1          |
/// | Compress             | on, or off                                                      |
/// | CompressionType      | MSZIP                                                           |
/// | DestinationDir       | folder that the following files have in the cabinet             |
/// | DiskDirectoryTemplate| the output folder, `*` as above; also DiskDirectory1            |
/// | InfFileName          | the report for set-up programs; `nul` for none                  |
/// | MaxCabinetSize       | bytes, or 0 for no limit                                        |
/// | MaxDiskSize          | bytes, 0, or the name of a disk such as CDROM or 1.44M          |
/// | RptFileName          | the report for people; `nul` for none                           |
/// | SourceDir            | folder of the following files                                   |
/// | UniqueFiles          | on: a name may come once in the cabinet; off                    |
///
/// There is no substitution: a `%` stands for itself. What isn't known here raises 5 with
/// `fileName`, ":", the line's number, ": " and the reason.
Directives parseDirectives(std::string_view bytes, const std::string& fileName);

} // namespace cabmaker
