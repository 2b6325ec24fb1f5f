#pragma once

#include "end_to_end/program.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

/// A test with a small sample server of its own, and a folder to gather into.
class SampleSite : public testing::Test {
protected:
    SampleSite();
    ~SampleSite() override;

    /// Runs orvandiag on the site.
    Outcome run(std::vector<std::string> words) const;
    Outcome runJson(std::vector<std::string> words) const;

    /// A file of the site's C: drive, by its path there with `/`.
    std::filesystem::path drive(const std::string& path) const;

    std::string read(const std::filesystem::path& file) const;
    void write(const std::filesystem::path& file, const std::string& content) const;

    /// The current log of KoCSMgr, as a bare name.
    std::string currentLog() const;

    /// What lies in the site: names, sizes and contents, but for the tool's own log.
    std::string fingerprint() const;

    /// How many logs of its own runs the tool has left.
    std::ptrdiff_t toolLogs() const;

    std::filesystem::path folder; ///< holds everything; removed at the end
    std::filesystem::path site;
    std::filesystem::path target; ///< not there yet
};
