#pragma once

#include "system/root_folder.h"
#include "tracelines/trace_line_format.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

/// What `site.ini` says of a site; what it leaves out holds the default, or nothing where the
/// machine itself gives the value.
struct SiteSettings {
    std::optional<std::string> computer;
    std::optional<std::string> user;
    std::optional<std::string> timeZone; ///< a POSIX TZ text
    int codePage = 1252;                 ///< of log texts, one that `codePageOf` knows
    std::optional<std::int32_t> language;
    std::string toolFolder = "C:\\OrvanDiagnostics"; ///< without a separator at its end
    LogFields logFields = LogFields::basic;
    /// The source of a server's directory database, in place of the site's own file.
    std::optional<std::string> odbc;

    friend bool operator==(const SiteSettings&, const SiteSettings&) = default;
};

/// Reads the text of a `site.ini`: UTF-8, lines ending either way, comments behind `;` or `#` at
/// the start of a line, names without regard to case. A key with nothing behind its "=" counts as
/// left out; sections other than `[site]` and `[database]` are passed over.
/// No library for such files reads it: one at hand ends a value at a ";" and joins lines that begin
/// with a blank, the other lets a second key win and tells no line's number.
/// Raises 321 with the line's number, as in "site.ini line 7: ...", for anything else: an unknown
/// or second key, a value that is none, a line that is none.
SiteSettings parseSiteSettings(std::string_view text);

/// Reads the `site.ini` of a site's folder; the defaults when there is none. Raises as
/// `parseSiteSettings`, and 70, 57.
SiteSettings readSiteSettings(const RootFolder& site);
