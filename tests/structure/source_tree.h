#pragma once

#include <string>
#include <vector>

/// One include line of a source file.
struct Include {
    std::string file; ///< relative to the project
    int line = 0;
    std::string target; ///< as written, without quotes or brackets
    bool quoted = false;
};

/// Files below a folder of the project that end in `.h` or `.cpp`, relative to it, sorted.
std::vector<std::string> sourceFiles(const std::string& folder);

std::vector<Include> includesOf(const std::string& file);

/// The text of a project file; a missing one gives the empty text.
std::string textOf(const std::string& file);

/// The folder below src/ that decides what a file may know: "core", "backends/jet", "hosts/cli".
/// The empty text for a path outside src/.
std::string layerOf(const std::string& path);
