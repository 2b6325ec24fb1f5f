#pragma once

#include "end_to_end/sample_site.h"

#include <filesystem>
#include <string>
#include <vector>

/// A sample server of which parts can be taken away.
struct BreakableServer : SampleSite {
    using SampleSite::currentLog;
    using SampleSite::drive;
    using SampleSite::read;
    using SampleSite::site;
    using SampleSite::write;

    /// Runs a statement on the directory database.
    void sql(const std::string& statement) const;

    /// Takes the keys whose names have a text in them out of the registry.
    void withoutKeys(const std::string& part) const;

    /// Takes the lines that begin with a text out of the registry, or puts another in their place.
    void withoutLine(const std::string& head, const std::string& instead = {}) const;

    /// The file of the trace levels' texts.
    std::filesystem::path catalogue() const;
};

/// Something that is broken in a site, what doctor says of it, and what the tool does about it.
struct BrokenServer {
    const char* what;
    void (*breakIt)(const BreakableServer& server);
    std::string id;
    std::string state;
    bool needed;
    std::vector<std::string> command; ///< of the tool, which is hindered by it
    int status;                       ///< how that ends
    std::string told;                 ///< what that says on standard error or output
    std::string why = {};             ///< a part of doctor's own sentence
};

/// One for each thing that doctor looks at, and each way in which it can lack.
const std::vector<BrokenServer>& brokenServers();
