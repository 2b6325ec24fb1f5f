#pragma once

#include "end_to_end/frame_model.h"
#include "end_to_end/sample_site.h"

#include <filesystem>
#include <string>
#include <system_error>
#include <vector>

/// A sample server of which time frames are gathered into the target.
struct FrameGather : SampleSite {
    std::vector<std::string> gatherWords(const std::string& from, const std::string& hours,
                                         const std::filesystem::path& to) const
    {
        return {"gather", "frame", "--from", from, "--hours", hours, "--to", to.string()};
    }

    Outcome gather(const std::string& from, const std::string& hours) const
    {
        return runJson(gatherWords(from, hours, target));
    }

    std::vector<TextRow> expected(LocalSecond start, int hours, bool extended = false) const
    {
        return expectedRows(drive("KelmaOrvan/Logs"), start, start + hours * 3'600LL, extended);
    }

    /// The one database in a folder, or an empty path.
    static std::filesystem::path databaseIn(const std::filesystem::path& folder)
    {
        std::error_code none;
        for (const auto& entry : std::filesystem::directory_iterator(folder, none))
            if (entry.path().extension() == ".mdb") return entry.path();
        return {};
    }
};
