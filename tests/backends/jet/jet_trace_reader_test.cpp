#include "backends/jet/jet_trace_reader.h"

#include "backends/jet/format.h"
#include "backends/jet/row_filler.h"
#include "platform/stored_bytes.h"
#include "support/error_of.h"

#include <gmock/gmock.h>

#include <algorithm>

namespace {

using testing::HasSubstr;

using jet::pageSize;

class BytesInMemory final : public StoredBytes {
public:
    explicit BytesInMemory(std::string bytes) : bytes_(std::move(bytes)) {}

    std::uint64_t size() const override { return bytes_.size(); }
    std::size_t read(char* into, std::size_t size, std::uint64_t at) const override
    {
        largestRead_ = std::max(largestRead_, size);
        return at < bytes_.size() ? bytes_.copy(into, size, at) : 0;
    }
    std::size_t largestRead() const { return largestRead_; }

private:
    std::string bytes_;
    mutable std::size_t largestRead_ = 0;
};

/// A file with so many numbered rows.
std::string numberedRows(std::size_t count)
{
    ScratchDatabase scratch;
    auto engine = machineEngine();
    {
        const auto database = engine.openDatabase(scratch.path().string());
        const auto traces = database->openRecordset("tblTraces");
        for (std::size_t number = 0; number < count; ++number) addNumberedRow(*traces, number);
    }
    return bytesOfFile(scratch.path());
}

std::unique_ptr<TraceTables> tablesIn(std::string image)
{
    return jet::JetTraceReader().open(std::make_shared<BytesInMemory>(std::move(image)));
}

/// The current row by column, without the columns that have no text.
TextRow textsOf(TraceRows& rows, const TraceTable& table)
{
    TextRow texts;
    for (std::size_t column = 0; column < table.columns.size(); ++column)
        if (const auto text = rows.text(column); !text.empty()) texts[table.columns[column]] = text;
    return texts;
}

TextRow withoutEmpty(TextRow row)
{
    std::erase_if(row, [](const auto& cell) { return cell.second.empty(); });
    return row;
}

struct ReadThrough {
    std::size_t rows = 0;
    std::size_t failures = 0;
};

/// Reads on past all damage; a run without end is a failed test.
ReadThrough readThrough(TraceRows& rows, const TraceTable& table)
{
    ReadThrough result;
    for (std::size_t turn = 0; turn < 1'000'000; ++turn) {
        bool more = true;
        const int error = errorOf([&] {
            more = rows.next();
            if (more) textsOf(rows, table);
        });
        if (error == 0 && !more) return result;
        ++(error == 0 ? result.rows : result.failures);
    }
    ADD_FAILURE() << "no end";
    return result;
}

TEST(JetTraceReader, GivesEveryRowInOrderWithItsTextsAndNumbers)
{
    const auto tables = tablesIn(numberedRows(500));
    const TraceTable* traces = tables->find("TBLTRACES");
    ASSERT_NE(nullptr, traces);
    EXPECT_EQ(500u, traces->rowCount);
    EXPECT_TRUE(tables->damage().empty());
    const auto rows = tables->rows(*traces);
    for (std::size_t number = 0; number < 500; ++number) {
        ASSERT_TRUE(rows->next());
        EXPECT_EQ(withoutEmpty(numberedRow(number)), textsOf(*rows, *traces));
        EXPECT_EQ(static_cast<std::int64_t>(number) - 100,
                  rows->number(traces->find("TraceNumber")));
    }
    EXPECT_FALSE(rows->next());
    EXPECT_FALSE(rows->next());
    EXPECT_EQ(rows->total(), rows->done());
}

TEST(JetTraceReader, ComesBackToRowsByTheirPlaces)
{
    const auto tables = tablesIn(numberedRows(300));
    const TraceTable* traces = tables->find("tblTraces");
    const auto rows = tables->rows(*traces);
    std::vector<std::uint64_t> places;
    while (rows->next()) places.push_back(rows->place());
    ASSERT_EQ(300u, places.size());
    for (const std::size_t number : {299u, 0u, 150u, 151u, 96u}) {
        EXPECT_EQ(0u, places[number] >> TraceRows::placeBits);
        ASSERT_TRUE(rows->goTo(places[number]));
        EXPECT_EQ(withoutEmpty(numberedRow(number)), textsOf(*rows, *traces));
    }
    ASSERT_TRUE(rows->next());
    EXPECT_EQ(withoutEmpty(numberedRow(97)), textsOf(*rows, *traces)) << "and goes on from there";
    EXPECT_FALSE(rows->goTo(0));
    EXPECT_FALSE(rows->goTo(places.back() + 1));
    EXPECT_FALSE(rows->goTo(~std::uint64_t{0}));
}

TEST(JetTraceReader, TextsHoldUntilTheNextRowWhateverElseIsLookedAt)
{
    const auto tables = tablesIn(numberedRows(100));
    const TraceTable* traces = tables->find("tblTraces");
    const auto rows = tables->rows(*traces);
    while (rows->next()) {
        const auto component = rows->text(traces->find("Component"));
        const auto trace = rows->text(traces->find("Trace"));
        const std::string first = std::string(component) + "|" + std::string(trace);
        for (std::size_t column = 0; column < traces->columns.size(); ++column) rows->text(column);
        EXPECT_EQ(first, std::string(component) + "|" + std::string(trace));
    }
}

TEST(JetTraceReader, PassesOverADamagedPageAfterRaisingOnce)
{
    std::string image = numberedRows(2000);
    const auto sound = tablesIn(image);
    const TraceTable* traces = sound->find("tblTraces");
    const auto rows = sound->rows(*traces);
    rows->next();
    const std::uint64_t first = rows->place() >> 16;
    image[first * pageSize] = 9;
    const auto damaged = tablesIn(image);
    const auto left = damaged->rows(*damaged->find("tblTraces"));
    EXPECT_EQ(3343, errorOf([&] { left->next(); }));
    const ReadThrough rest = readThrough(*left, *damaged->find("tblTraces"));
    EXPECT_EQ(0u, rest.failures);
    EXPECT_GT(rest.rows, 1900u);
    EXPECT_LT(rest.rows, 2000u);
}

TEST(JetTraceReader, PassesOverADamagedRowAfterRaisingOnce)
{
    std::string image = numberedRows(50);
    const auto sound = tablesIn(image);
    const auto rows = sound->rows(*sound->find("tblTraces"));
    rows->next();
    const std::size_t page = (rows->place() >> 16) * pageSize;
    // The number of columns of the row in slot 3 says more than the row holds.
    const std::size_t row = jet::load16(image.data() + page + jet::dataPage::slots + 6);
    jet::store16(&image[page + row], 60'000);
    const auto damaged = tablesIn(image);
    const auto left = damaged->rows(*damaged->find("tblTraces"));
    const ReadThrough all = readThrough(*left, *damaged->find("tblTraces"));
    EXPECT_EQ(1u, all.failures);
    EXPECT_EQ(49u, all.rows);
}

TEST(JetTraceReader, FindsTheRowsOfATableWhoseMapIsDamaged)
{
    std::string image = numberedRows(6000);
    ASSERT_GT(image.size() / pageSize, 512u) << "the map has a page of its own";
    for (std::size_t at = 0; at < image.size(); at += pageSize)
        if (image[at] == static_cast<char>(jet::PageType::usageBitmap)) image[at] = 9;
    const auto damaged = tablesIn(image);
    const auto rows = damaged->rows(*damaged->find("tblTraces"));
    EXPECT_EQ(6000u, readThrough(*rows, *damaged->find("tblTraces")).rows);
}

TEST(JetTraceReader, ReadsTheTablesBesideOneThatIsDamaged)
{
    std::string image = numberedRows(20);
    const auto page = [&] {
        for (std::size_t at = 6 * pageSize; at < image.size(); at += pageSize) {
            const auto name = std::string_view(image).substr(at, pageSize);
            if (name[0] == static_cast<char>(jet::PageType::tableDefinition) &&
                name.find(std::string_view("D\0a\0t\0a\0", 8)) != std::string_view::npos)
                return at;
        }
        return std::size_t{0};
    }();
    ASSERT_NE(0u, page);
    image[page] = 8;
    const auto tables = tablesIn(image);
    EXPECT_EQ(nullptr, tables->find("tblMacroTraces"));
    ASSERT_EQ(1u, tables->damage().size());
    EXPECT_THAT(tables->damage().front(), HasSubstr("another type"));
    const auto rows = tables->rows(*tables->find("tblTraces"));
    EXPECT_EQ(20u, readThrough(*rows, *tables->find("tblTraces")).rows);
}

TEST(JetTraceReader, ReadsWhatIsLeftOfAFileThatWasCut)
{
    const std::string image = numberedRows(3000);
    const auto tables = tablesIn(image.substr(0, image.size() / 2 + 100));
    const TraceTable* traces = tables->find("tblTraces");
    ASSERT_NE(nullptr, traces);
    const auto rows = tables->rows(*traces);
    const ReadThrough left = readThrough(*rows, *traces);
    EXPECT_GT(left.rows, 1000u);
    EXPECT_LT(left.rows, 2000u);
    EXPECT_EQ(3000u, traces->rowCount) << "which tells that some are missing";
}

TEST(JetTraceReader, RefusesWhatIsNoDatabase)
{
    const std::string image = numberedRows(1);
    const jet::JetTraceReader reader;
    EXPECT_TRUE(reader.isDatabase(image.substr(0, 64)));
    EXPECT_FALSE(reader.isDatabase("15:23:07:123,KoCSMgr,1,CallFlow,3,text that is long enough"));
    EXPECT_FALSE(reader.isDatabase(""));
    EXPECT_EQ(3343, errorOf([] { tablesIn("Standard Jet DB"); }));
    EXPECT_EQ(3343, errorOf([] { tablesIn(""); }));
    EXPECT_EQ(3343, errorOf([&] { tablesIn(image.substr(0, 2 * pageSize)); }));
}

TEST(JetTraceReader, ReadsNoLargePartsOfTheFile)
{
    const auto bytes = std::make_shared<BytesInMemory>(numberedRows(3000));
    const auto tables = jet::JetTraceReader().open(bytes);
    const auto rows = tables->rows(*tables->find("tblTraces"));
    readThrough(*rows, *tables->find("tblTraces"));
    EXPECT_LE(bytes->largestRead(), 64u * 1024);
}

} // namespace
