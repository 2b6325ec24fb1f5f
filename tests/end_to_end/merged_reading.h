#pragma once

#include "end_to_end/sample_site.h"
#include "support/places.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <iterator>
#include <map>
#include <sstream>
#include <string>
#include <vector>

/// `orvandiag read` on a sample server, and what it shows as JSON.
struct MergedReading : SampleSite {
    static std::vector<std::string> linesOf(const std::string& text)
    {
        std::vector<std::string> lines;
        std::istringstream stream(text);
        for (std::string line; std::getline(stream, line);) lines.push_back(line);
        return lines;
    }

    std::vector<nlohmann::json> rows(std::vector<std::string> words) const
    {
        words.insert(words.begin(), "read");
        const Outcome shown = runJson(words);
        EXPECT_EQ(0, shown.status) << shown.err;
        std::vector<nlohmann::json> rows;
        for (const std::string& line : linesOf(shown.out))
            rows.push_back(nlohmann::json::parse(line));
        return rows;
    }

    /// The rows that fit. A line without a form goes with the row before it in its file.
    static std::vector<nlohmann::json> those(const std::vector<nlohmann::json>& rows,
                                             const std::function<bool(const nlohmann::json&)>& fits)
    {
        std::vector<nlohmann::json> fitting;
        std::map<std::string, bool> fitted;
        for (const nlohmann::json& row : rows) {
            bool& fit = fitted[row.value("file", "")];
            if (!row.contains("raw")) fit = fits(row);
            if (fit) fitting.push_back(row);
        }
        return fitting;
    }

    /// Those that have a form.
    static std::vector<nlohmann::json> formed(const std::vector<nlohmann::json>& rows)
    {
        std::vector<nlohmann::json> found;
        std::copy_if(rows.begin(), rows.end(), std::back_inserter(found),
                     [](const nlohmann::json& row) { return !row.contains("raw"); });
        return found;
    }

    /// What a shell makes of a command line with "$O" for orvandiag on the site.
    Outcome shell(const std::string& line) const
    {
        return runProgram(
            {"bash", "-c",
             std::string("O='") + built::orvandiag + " --site " + site.string() + "'; " + line},
            folder.string());
    }

    void useExtendedSite()
    {
        site = folder / "extended";
        ASSERT_EQ(
            0,
            orvandiag({"sample", site.string(), "--lines", "3000", "--fields", "extended"}).status);
    }
};
