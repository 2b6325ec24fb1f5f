#include "backends/jet/scratch_database.h"

#include "backends/jet/pages/file_pages.h"
#include "support/places.h"

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>

std::string bytesOfFile(const std::filesystem::path& path)
{
    std::ifstream file(path, std::ios::binary);
    EXPECT_TRUE(file.good()) << path;
    return std::string(std::istreambuf_iterator<char>(file), {});
}

std::vector<TextRow> rowsOf(const std::filesystem::path& path, const std::string& table)
{
    const jet::FilePages file(path.string());
    const jet::Reader reader(file.pages());
    const jet::TableDefinition* found = reader.find(table);
    if (found == nullptr) {
        ADD_FAILURE() << "no table " << table;
        return {};
    }
    std::vector<TextRow> texts;
    for (auto rows = reader.rows(*found); rows.next();) {
        TextRow& row = texts.emplace_back();
        for (std::size_t column = 0; column < found->columns.size(); ++column) {
            if (!rows.isNull(column)) row[found->columns[column].name] = rows.text(column);
        }
    }
    return texts;
}

std::string problemsOf(const std::filesystem::path& path)
{
    const jet::FilePages file(path.string());
    std::string lines;
    for (const auto& problem : jet::Reader(file.pages()).problems()) lines += problem + "\n";
    return lines;
}

bool isHarmless(const std::string& problems)
{
    return problems.find("belongs to") == std::string::npos &&
           problems.find("counts as free") == std::string::npos &&
           problems.find("overlap") == std::string::npos &&
           problems.find("Unrecognized") == std::string::npos;
}

std::uint64_t pagesOf(const std::filesystem::path& path)
{
    const auto size = std::filesystem::file_size(path);
    EXPECT_EQ(0u, size % 4096);
    return size / 4096;
}

int pagesWithoutType(const std::filesystem::path& path)
{
    const std::string bytes = bytesOfFile(path);
    int found = 0;
    for (std::size_t at = 4096; at < bytes.size(); at += 4096) // the header's type is 0
        found += bytes[at] == 0 ? 1 : 0;
    return found;
}

void lengthenTo(const std::filesystem::path& path, std::uint64_t pages)
{
    std::filesystem::resize_file(path, pages * 4096);
    std::fstream file(path, std::ios::binary | std::ios::in | std::ios::out);
    file.seekp(static_cast<std::streamoff>(pages * 4096 - 1));
    file.put('x');
}

jet::Schema traceSchema()
{
    return jet::parseSchema(bytesOfFile(checkout::traceSchema));
}

ScratchDatabase::ScratchDatabase() : ScratchDatabase(traceSchema()) {}

ScratchDatabase::ScratchDatabase(const jet::Schema& schema) : path_(folder_ / "trace.mdb")
{
    std::ofstream(path_, std::ios::binary) << jet::blankDatabase(schema);
}

jet::JetEngine machineEngine()
{
    return jet::JetEngine([](const std::string& path) { return path; });
}
