#include "backends/jet/format.h"
#include "backends/jet/row_filler.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <csignal>
#include <fcntl.h>
#include <fstream>
#include <functional>
#include <sys/mman.h>
#include <sys/ptrace.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

using jet::pageSize;
constexpr std::size_t mostPages = 1 << 16;
constexpr int notTraceable = 77;

/// The pages of a file that an update may change: those at its head and those from its old end on.
class WatchedPages {
public:
    WatchedPages(const std::filesystem::path& path, std::size_t oldPages)
        : file_(open(path.c_str(), O_RDONLY | O_CLOEXEC)), oldPages_(oldPages),
          base_(static_cast<const char*>(
              mmap(nullptr, mostPages * pageSize, PROT_READ, MAP_SHARED, file_, 0)))
    {}
    ~WatchedPages()
    {
        munmap(const_cast<char*>(base_), mostPages * pageSize);
        close(file_);
    }
    WatchedPages(const WatchedPages&) = delete;
    WatchedPages& operator=(const WatchedPages&) = delete;

    enum class Change { none, newPages, oldPages };

    /// What is other than at the last call. New pages are out of reach until an old one changes.
    Change look()
    {
        struct stat facts {};
        fstat(file_, &facts);
        const auto size = static_cast<std::size_t>(facts.st_size);
        const std::string_view head(base_, std::min(oldPages_, pagesAtHead) * pageSize);
        const std::string_view tail(base_ + oldPages_ * pageSize, size - oldPages_ * pageSize);
        const Change change = head != head_   ? Change::oldPages
                              : tail != tail_ ? Change::newPages
                                              : Change::none;
        if (head != head_) head_ = head;
        if (tail != tail_) tail_ = tail;
        return change;
    }

    /// The first page behind the old end that has no type; -1 for none.
    int pageWithoutType() const
    {
        for (std::size_t at = 0; at < tail_.size(); at += pageSize) {
            if (tail_[at] == 0 || tail_[at + 1] != 1)
                return static_cast<int>(oldPages_ + at / pageSize);
        }
        return -1;
    }

    bool endsInAPage() const { return tail_.size() % pageSize == 0; }

private:
    static constexpr std::size_t pagesAtHead = 64;

    int file_;
    std::size_t oldPages_;
    const char* base_;
    std::string head_;
    std::string tail_;
};

/// In a child process that its parent traces: stops where row `number` is about to be updated.
[[noreturn]] void updateOneRow(const std::filesystem::path& path, std::size_t number)
{
    if (ptrace(PTRACE_TRACEME, 0, nullptr, nullptr) != 0) _exit(notTraceable);
    auto engine = machineEngine();
    const auto database = engine.openDatabase(path.string());
    const auto traces = database->openRecordset("tblTraces");
    traces->addNew();
    for (const auto& [name, text] : numberedRow(number)) traces->field(name).setUtf8(text);
    raise(SIGSTOP);
    traces->update();
    _exit(0);
}

/// What the rows of the file are like that a kill at this moment would leave: the empty text when
/// they are as promised.
std::string faultsOf(const std::filesystem::path& path, std::size_t before)
{
    const std::size_t rows = countNumberedRows(path);
    if (rows != before && rows != before + 1) return std::to_string(rows) + " rows";
    const std::string problems = problemsOf(path);
    return isHarmless(problems) ? std::string() : problems;
}

/// A writer that opens a copy of the file goes on with it.
std::string faultsAfterReopening(const std::filesystem::path& path)
{
    const auto copy = path.parent_path() / "copy.mdb";
    std::filesystem::copy_file(path, copy, std::filesystem::copy_options::overwrite_existing);
    const std::size_t rows = countNumberedRows(copy);
    auto engine = machineEngine();
    {
        const auto database = engine.openDatabase(copy.string());
        addNumberedRow(*database->openRecordset("tblTraces"), rows);
    }
    if (countNumberedRows(copy) != rows + 1) return "the next row is missing";
    return problemsOf(copy);
}

/// Runs one update an instruction at a time and looks at the file whenever it has changed.
/// Returns how many states it was seen in.
int lookAtEveryMoment(const std::filesystem::path& path, std::size_t number, bool reopen)
{
    const std::size_t oldPages = std::filesystem::file_size(path) / pageSize;
    const pid_t child = fork();
    if (child == 0) updateOneRow(path, number);
    int status = 0;
    waitpid(child, &status, 0);
    if (WIFEXITED(status)) return WEXITSTATUS(status) == notTraceable ? -1 : 0;
    WatchedPages pages(path, oldPages);
    pages.look();
    int states = 0;
    while (WIFSTOPPED(status)) {
        const auto change = pages.look();
        if (change != WatchedPages::Change::none) {
            ++states;
            EXPECT_TRUE(pages.endsInAPage());
            EXPECT_EQ(-1, pages.pageWithoutType());
            std::string faults;
            if (change == WatchedPages::Change::oldPages || states % 64 == 0)
                faults = faultsOf(path, number);
            if (faults.empty() && reopen && states % 64 == 0) faults = faultsAfterReopening(path);
            EXPECT_EQ("", faults) << "in state " << states;
            if (testing::Test::HasFailure()) kill(child, SIGKILL);
        }
        ptrace(PTRACE_SINGLESTEP, child, nullptr, nullptr);
        waitpid(child, &status, 0);
    }
    EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0);
    EXPECT_EQ(number + 1, countNumberedRows(path));
    return states;
}

void addRows(const std::filesystem::path& path, std::size_t count)
{
    auto engine = machineEngine();
    const auto database = engine.openDatabase(path.string());
    const auto traces = database->openRecordset("tblTraces");
    for (std::size_t row = 0; row < count; ++row) addNumberedRow(*traces, row);
}

/// Makes a file so long that its map of free pages lies on a page of its own.
void outgrowTheGlobalMap(const std::filesystem::path& path)
{
    lengthenTo(path, 600);
    auto engine = machineEngine();
    const auto database = engine.openDatabase(path.string());
    const auto macros = database->openRecordset("tblMacroTraces");
    macros->addNew();
    macros->update();
}

TEST(EveryMoment, OfAnUpdateLeavesASoundFileWithEveryRowBefore)
{
    struct Case {
        const char* because;
        std::size_t rows;  ///< before the update
        std::size_t pages; ///< of the file, made so long without the disk space; 0 for its own
    };
    const Case cases[] = {
        {"the first row begins a page of the table", 0, 0},
        {"a text that is the first on a page", 5, 0},
        {"a row and a text on pages that have room", 8, 0},
        {"a text of more than a page", 96, 0},
        {"maps that outgrow their rows", 0, 512},
        {"the last page of a bitmap, and the next bitmap", 96, 32'735},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.because);
        ScratchDatabase scratch;
        addRows(scratch.path(), c.rows);
        if (c.pages > 600) outgrowTheGlobalMap(scratch.path());
        if (c.pages != 0) lengthenTo(scratch.path(), c.pages);
        const int states = lookAtEveryMoment(scratch.path(), c.rows, c.pages == 0);
        if (states < 0) GTEST_SKIP() << "this machine lets no program trace another";
        EXPECT_GT(states, 10);
        if (HasFailure()) return;
    }
}

} // namespace
