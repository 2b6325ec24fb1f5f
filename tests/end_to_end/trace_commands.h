#pragma once

#include "end_to_end/sample_site.h"

#include <string>

/// A sample server whose traces are changed by commands and looked at in its database.
struct TraceCommands : SampleSite {
    std::string sql(const std::string& statement) const
    {
        const Outcome shell =
            runProgram({"sqlite3", (site / "OrvanDirDb.sqlite").string(), statement});
        EXPECT_EQ(0, shell.status) << shell.err;
        return shell.out.substr(0, shell.out.find_last_not_of('\n') + 1);
    }

    int flags(const std::string& component) const
    {
        return std::stoi(
            sql("SELECT Flags FROM vw_LoggerDiagnosticGrid WHERE Name='" + component + "'"));
    }

    /// A macro trace that is off, as "GROUP - TRACE".
    std::string macroTrace() const
    {
        for (const auto& trace : runJson({"macro"}).json())
            if (!trace["enabled"])
                return trace["group"].get<std::string>() + " - " +
                       trace["trace"].get<std::string>();
        ADD_FAILURE() << "no macro trace is off";
        return {};
    }

    nlohmann::json shown(const std::string& macroTrace) const
    {
        for (const auto& trace : runJson({"macro"}).json())
            if (trace["group"].get<std::string>() + " - " + trace["trace"].get<std::string>() ==
                macroTrace)
                return trace;
        return {};
    }
};
