#pragma once

#include <nlohmann/json.hpp>

#include <string>
#include <vector>

/// What a run of a program left.
struct Outcome {
    int status = -1; ///< exit status, or 128 and the signal
    std::string out;
    std::string err;

    /// Standard output as one JSON value; a test failure and null when it is none.
    nlohmann::json json() const;
};

/// Runs a program, found as the shell finds it, and waits for it.
Outcome runProgram(const std::vector<std::string>& words, const std::string& folder = {});

/// Runs orvandiag.
Outcome orvandiag(std::vector<std::string> words, const std::string& folder = {});
