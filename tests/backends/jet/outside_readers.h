#pragma once

#include "backends/jet/scratch_database.h"

#include <filesystem>
#include <string>
#include <vector>

/// What a program writes; one that fails or is missing is a failed test.
std::string outputOf(const std::string& command);

/// Where two lists of rows differ first, in a line; the empty text when they are the same.
std::string firstDifference(const std::vector<TextRow>& expected,
                            const std::vector<TextRow>& found);

/// Rows as mdbtools tells them: it takes an empty text for Null.
std::vector<TextRow> withoutEmptyTexts(std::vector<TextRow> rows);

/// A table's rows as mdb-export of mdbtools sees them.
std::vector<TextRow> exportedRows(const std::filesystem::path& path, const std::string& table);

/// The same as mdb-json sees them.
std::vector<TextRow> jsonRows(const std::filesystem::path& path, const std::string& table);

/// The same as the npm package mdb-reader sees them.
std::vector<TextRow> nodeRows(const std::filesystem::path& path, const std::string& table);

/// The tables as mdb-reader sees them: each its name and then those of its columns.
std::vector<std::vector<std::string>> nodeTables(const std::filesystem::path& path);
