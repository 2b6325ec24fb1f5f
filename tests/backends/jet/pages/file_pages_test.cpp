#include "backends/jet/pages/file_pages.h"
#include "backends/jet/row_filler.h"
#include "support/error_of.h"

#include <gtest/gtest.h>

#include <array>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

void addRows(const std::filesystem::path& path, std::size_t count)
{
    auto engine = machineEngine();
    const auto database = engine.openDatabase(path.string());
    const auto traces = database->openRecordset("tblTraces");
    for (std::size_t row = 0; row < count; ++row) addNumberedRow(*traces, row);
}

TEST(FilePages, AFileThatIsCutWhileItIsReadRaises3343)
{
    ScratchDatabase scratch;
    addRows(scratch.path(), 400);
    const jet::FilePages file(scratch.path().string());
    const jet::Reader reader(file.pages());
    auto rows = reader.rows(*reader.find("tblTraces"));
    ASSERT_TRUE(rows.next());
    std::filesystem::resize_file(scratch.path(), 40 * 4096 + 100);
    EXPECT_EQ(3343, errorOf([&] {
                  while (rows.next()) rows.text(7);
              }));
}

TEST(FilePages, RowsKeepTheirValuesWhileLongTextsAreReadThatAreLargerThanWhatIsKept)
{
    ScratchDatabase scratch;
    {
        auto engine = machineEngine();
        const auto database = engine.openDatabase(scratch.path().string());
        const auto macros = database->openRecordset("tblMacroTraces");
        macros->addNew();
        macros->field("Name").setText("HTlong.xml");
        macros->field("Data").setText(std::string(6'000'000, 'x'));
        macros->update();
    }
    const jet::FilePages file(scratch.path().string());
    const jet::Reader reader(file.pages());
    auto rows = reader.rows(*reader.find("tblMacroTraces"));
    ASSERT_TRUE(rows.next());
    EXPECT_EQ(std::string(6'000'000, 'x'), rows.text(1));
    EXPECT_EQ("HTlong.xml", rows.text(0));
}

TEST(FilePages, TakesNoFileButAPlainOneOfASizeThatTheFormatHas)
{
    ScratchDatabase scratch;
    const auto opened = [&](const std::filesystem::path& path) {
        return errorOf([&] { jet::FilePages file(path.string()); });
    };
    EXPECT_EQ(3024, opened(scratch.folder() / "none.mdb"));
    EXPECT_EQ(3051, opened(scratch.folder()));
    const auto pipe = scratch.folder() / "pipe.mdb";
    ASSERT_EQ(0, mkfifo(pipe.c_str(), 0600));
    EXPECT_EQ(3051, opened(pipe)) << "at once: nobody writes to it";
    std::filesystem::resize_file(scratch.path(), 524'289ull * 4096);
    EXPECT_EQ(3343, opened(scratch.path()));
}

/// Runs a part of a test in a process that may have 500,000 KB of memory, mapped or not. False
/// where it fails or ends otherwise than by returning true.
bool holdsInLittleMemory(bool (*part)(const std::filesystem::path&),
                         const std::filesystem::path& path)
{
    const pid_t child = fork();
    if (child == 0) {
        const rlimit limit = {500'000 * 1024, 500'000 * 1024};
        setrlimit(RLIMIT_AS, &limit);
        bool done = false;
        const int error = errorOf([&] { done = part(path); });
        _exit(error == 0 && done ? 0 : 1);
    }
    int status = 0;
    waitpid(child, &status, 0);
    return WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

TEST(FilePages, AFileOf2GBIsWrittenAndReadInLittleMemory)
{
#if defined(__SANITIZE_ADDRESS__)
    GTEST_SKIP() << "a program with this sanitizer maps more from its beginning";
#endif
    ScratchDatabase scratch;
    lengthenTo(scratch.path(), 524'000);
    EXPECT_TRUE(holdsInLittleMemory(
        [](const std::filesystem::path& path) {
            addRows(path, 300);
            return true;
        },
        scratch.path()));
    EXPECT_TRUE(holdsInLittleMemory(
        [](const std::filesystem::path& path) { return countNumberedRows(path) == 300; },
        scratch.path()));
}

/// A page that was read before it was filled.
class FilledPage final : public jet::PageSource {
public:
    FilledPage()
    {
        filled_[0] = 1;
        filled_[4] = 9;    // its owner
        filled_[0x0C] = 1; // a row, of the last byte
        filled_[0x0E] = '\xFF';
        filled_[0x0F] = '\x0F';
        filled_[4095] = 'r';
    }
    const char* look(std::uint32_t) const override { return empty_.data(); }
    const char* lookAgain(std::uint32_t) const override { return filled_.data(); }

private:
    std::array<char, 4096> empty_{};
    std::array<char, 4096> filled_{};
};

TEST(FilePages, APageThatLacksWhatLeadsToItIsReadAgain)
{
    const FilledPage source;
    const jet::Pages pages(source, 5);
    EXPECT_EQ("r", pages.row({3, 0}));
    EXPECT_EQ(1, pages.at(3, jet::PageType::data)[0]);
    EXPECT_EQ(1, pages.dataOf(3, 9)[0]);
    EXPECT_EQ(3343, errorOf([&] { pages.row({3, 1}); }));
    EXPECT_EQ(3343, errorOf([&] { pages.dataOf(3, 8); }));
    EXPECT_EQ(3343, errorOf([&] { pages.at(5); }));
}

} // namespace
