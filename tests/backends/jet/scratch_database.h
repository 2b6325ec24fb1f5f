#pragma once

#include "backends/jet/jet_engine.h"
#include "backends/jet/reader.h"
#include "backends/jet/schema/blank_database.h"
#include "support/temporary_folder.h"

#include <cstdint>
#include <filesystem>
#include <map>
#include <string>
#include <vector>

/// A row as texts by column name, without those that are Null.
using TextRow = std::map<std::string, std::string>;

/// The bytes of a file; an unreadable one is a failed test.
std::string bytesOfFile(const std::filesystem::path& path);

/// The rows of a table of a file, read back.
std::vector<TextRow> rowsOf(const std::filesystem::path& path, const std::string& table);

/// What the checker says of a file, one problem a line.
std::string problemsOf(const std::filesystem::path& path);

/// Whether problems are of the kind that a kill may leave: a row count or a page's free bytes one
/// row behind.
bool isHarmless(const std::string& problems);

/// How long a database is, in pages.
std::uint64_t pagesOf(const std::filesystem::path& path);

/// How many pages of a file say of no type what they are, as one that was never written would.
int pagesWithoutType(const std::filesystem::path& path);

/// Makes a file so many pages long without the disk space, as if other things lay there.
void lengthenTo(const std::filesystem::path& path, std::uint64_t pages);

/// The schema that the tool's template is made of.
jet::Schema traceSchema();

/// A database file of a test's own, with the tables of a gather; it goes with the object.
class ScratchDatabase {
public:
    ScratchDatabase();
    explicit ScratchDatabase(const jet::Schema& schema);

    const std::filesystem::path& path() const { return path_; }
    std::filesystem::path folder() const { return path_.parent_path(); }

    std::vector<TextRow> rows(const std::string& table) const { return rowsOf(path_, table); }

private:
    TemporaryFolder folder_;
    std::filesystem::path path_;
};

/// An engine that takes paths of this machine.
jet::JetEngine machineEngine();
