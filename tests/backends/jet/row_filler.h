#pragma once

#include "platform/trace_database.h"

#include "backends/jet/scratch_database.h"

#include <cstddef>
#include <string>

/// Rows whose values follow from their numbers, so that a file tells whether they are all there.
///
/// They are of all shapes: texts in the row, on pages with others and in chains, Null and empty.
TextRow numberedRow(std::size_t number);

/// Adds that row to "tblTraces".
void addNumberedRow(TraceRecordset& traces, std::size_t number);

/// How many rows of the file are the numbered ones from 0 on. Any other row is a failed test.
std::size_t countNumberedRows(const std::filesystem::path& path);
