#include "backends/jet/format.h"
#include "backends/jet/row_filler.h"
#include "support/error_of.h"

#include <gtest/gtest.h>

#include <random>

namespace {

using jet::pageSize;
constexpr std::size_t firstDataPage = 23; // of the first table that rows are added to

/// A file of three filters, as bytes that a test can damage.
std::string threeFilters()
{
    ScratchDatabase scratch;
    auto engine = machineEngine();
    {
        const auto database = engine.openDatabase(scratch.path().string());
        const auto filters = database->openRecordset("tblUniqueFilters");
        for (const char* process : {"first", "second", "third"}) {
            filters->addNew();
            filters->field("Process").setText(process);
            filters->update();
        }
    }
    return bytesOfFile(scratch.path());
}

std::vector<std::string> processesIn(const std::string& image)
{
    const jet::Reader reader(image);
    const jet::TableDefinition& table = *reader.find("tblUniqueFilters");
    std::vector<std::string> processes;
    for (auto rows = reader.rows(table); rows.next();) processes.push_back(rows.text(1));
    return processes;
}

/// The high byte of a row's slot, where its flags are.
char& flagsOfRow(std::string& image, std::size_t row)
{
    return image[firstDataPage * pageSize + 0x0E + 2 * row + 1];
}

TEST(Reader, PassesOverADeletedRow)
{
    std::string image = threeFilters();
    flagsOfRow(image, 1) |= '\xC0';
    EXPECT_EQ((std::vector<std::string>{"first", "third"}), processesIn(image));
}

TEST(Reader, FollowsARowThatWasMovedAndShowsItOnce)
{
    std::string image = threeFilters();
    const std::size_t slot = firstDataPage * pageSize + 0x0E;
    const std::size_t start = static_cast<unsigned char>(image[slot]) |
                              (static_cast<unsigned char>(image[slot + 1]) & 0x1F) << 8;
    image.replace(firstDataPage * pageSize + start, 4,
                  std::string("\2\x17\0\0", 4)); // row 2, page 23
    flagsOfRow(image, 0) |= '\x40';
    flagsOfRow(image, 2) |= '\x80';
    EXPECT_EQ((std::vector<std::string>{"third", "second"}), processesIn(image));
}

TEST(Reader, GivesNumbersAsNumbers)
{
    ScratchDatabase scratch;
    auto engine = machineEngine();
    addNumberedRow(*engine.openDatabase(scratch.path().string())->openRecordset("tblTraces"), 7);
    const std::string image = bytesOfFile(scratch.path());
    const jet::Reader reader(image);
    const jet::TableDefinition& table = *reader.find("TBLTRACES");
    auto rows = reader.rows(table);
    ASSERT_TRUE(rows.next());
    const auto numberIn = [&](const char* column) {
        return rows.number(static_cast<std::size_t>(table.find(column)));
    };
    EXPECT_EQ(-93, numberIn("TraceNumber"));
    EXPECT_EQ(7, numberIn("TraceLevel"));
    EXPECT_EQ(0, numberIn("Process")) << "a text is no number";
    EXPECT_EQ(nullptr, reader.find("tblNone"));
}

TEST(Reader, GivesNullAsZero)
{
    ScratchDatabase scratch;
    auto engine = machineEngine();
    {
        const auto database = engine.openDatabase(scratch.path().string());
        const auto traces = database->openRecordset("tblTraces");
        traces->addNew();
        traces->update();
    }
    const std::string image = bytesOfFile(scratch.path());
    const jet::Reader reader(image);
    const jet::TableDefinition& table = *reader.find("tblTraces");
    auto rows = reader.rows(table);
    ASSERT_TRUE(rows.next());
    const auto traceNumber = static_cast<std::size_t>(table.find("TraceNumber"));
    EXPECT_TRUE(rows.isNull(traceNumber));
    EXPECT_EQ(0, rows.number(traceNumber));
    EXPECT_EQ("", rows.text(traceNumber));
}

TEST(Reader, RefusesWhatIsNoDatabase)
{
    std::string encrypted = threeFilters();
    encrypted[0x3E] ^= 1;
    std::string older = threeFilters();
    older[0x14] = 0;
    struct Case {
        const char* because;
        std::string bytes;
    };
    const Case cases[] = {
        {"nothing", ""},
        {"less than a page", threeFilters().substr(0, 4095)},
        {"the header alone", threeFilters().substr(0, 4096)},
        {"zeros", std::string(64 * pageSize, '\0')},
        {"text", std::string(64 * pageSize, 'x')},
        {"an older version of the format", older},
        {"encrypted pages", encrypted},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.because);
        EXPECT_EQ(3343, errorOf([&] { jet::Reader reader(c.bytes); }));
    }
}

TEST(Reader, ReadsOrRefusesAFileWithAnyBytesChanged)
{
    const std::string sound = threeFilters();
    std::mt19937 random(3343);
    for (int round = 0; round < 3000; ++round) {
        std::string image = sound;
        for (int change = 0; change < 4; ++change)
            image[random() % image.size()] = static_cast<char>(random());
        const int error = errorOf([&] {
            const jet::Reader reader(image);
            for (const auto& table : reader.tables()) {
                for (auto rows = reader.rows(table); rows.next();) {
                    for (std::size_t column = 0; column < table.columns.size(); ++column)
                        rows.text(column);
                }
            }
            reader.problems();
        });
        EXPECT_TRUE(error == 0 || error == 3343) << error;
    }
}

TEST(Reader, TellsWhatIsWrongWithAFileThatCanBeRead)
{
    struct Case {
        const char* because;
        std::size_t page;
        std::size_t at;
        char value;
        const char* problem;
    };
    const Case cases[] = {
        {"the row count", 20, 0x10, 9, "3 rows, counted as 9"},
        {"the free bytes", firstDataPage, 0x02, 0, "free bytes"},
        {"a page of the table that counts as free", 1, pageSize - 69 + 5 + 2, '\x80',
         "counts as free"},
        {"a page of maps that counts as free", 1, pageSize - 69 + 5 + 2, '\x20',
         "page 21 of the maps of tblUniqueFilters counts as free"},
        {"a map that begins inside of a byte", 21, pageSize - 69 + 1, 1,
         "the maps of tblUniqueFilters: one begins at page 1"},
    };
    EXPECT_TRUE(jet::Reader(threeFilters()).problems().empty());
    for (const auto& c : cases) {
        SCOPED_TRACE(c.because);
        std::string image = threeFilters();
        image[c.page * pageSize + c.at] = c.value;
        std::string problems;
        for (const auto& problem : jet::Reader(image).problems()) problems += problem + "\n";
        EXPECT_NE(std::string::npos, problems.find(c.problem)) << problems;
    }
}

TEST(Reader, TellsWhatIsWrongWithALongText)
{
    ScratchDatabase scratch;
    auto engine = machineEngine();
    for (const std::size_t length : {20u, 100u, 5000u}) {
        const auto database = engine.openDatabase(scratch.path().string());
        const auto macros = database->openRecordset("tblMacroTraces");
        macros->addNew();
        macros->field("Data").setText(std::string(length, 'x'));
        macros->update();
    }
    const std::string sound = bytesOfFile(scratch.path());
    const auto problemsOfImage = [](const std::string& image) {
        std::string problems;
        for (const auto& problem : jet::Reader(image).problems()) problems += problem + "\n";
        return problems;
    };
    EXPECT_EQ("", problemsOfImage(sound));

    // Page 23 has the rows, 24 the text of 100 characters, 25 to 27 the chain of 10,000 bytes.
    constexpr std::size_t chain = 25 * pageSize;
    ASSERT_EQ(25, sound[chain + 8]) << "the stamp is the number of the chain's first page";
    const std::string head("\x10\x27\0\0\0\x19\0\0\x19\0\0\0", 12);
    const std::size_t cell = sound.find(head);
    ASSERT_EQ(cell / pageSize, 23u);
    struct Case {
        const char* because;
        std::size_t at;
        char value;
        const char* problem;
    };
    const Case cases[] = {
        {"a stamp of another chain", chain + 8, 7, "tblMacroTraces.Data: another stamp on page 25"},
        {"a head that tells less than there is", cell, 0, "of 9984 bytes has 10000"},
        {"a page of another column", 19 * pageSize + pageSize - 3 * 69 + 5 + 3, 0x0D,
         "page 25 holds long values of tblMacroTraces.Data and does not belong to it"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.because);
        std::string image = sound;
        image[c.at] = c.value;
        const std::string problems = problemsOfImage(image);
        EXPECT_NE(std::string::npos, problems.find(c.problem)) << problems;
    }
}

} // namespace
