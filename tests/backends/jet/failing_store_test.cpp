#include "backends/jet/row_filler.h"
#include "support/error_of.h"

#include <gtest/gtest.h>

#include <csignal>
#include <fstream>
#include <sys/mman.h>
#include <sys/wait.h>
#include <ucontext.h>
#include <unistd.h>
#include <vector>

namespace {

constexpr int triedTwice = 26;
constexpr int neverFailed = 77;

/// A part of the file in memory. The handlers below have nothing but these to go by.
struct Part {
    char* begin;
    std::size_t size;
};
std::vector<Part> parts;
long storesLeft = 0; // before one fails
bool failed = false;
long* storesSeen = nullptr;

void protect(int how)
{
    for (const Part& part : parts) mprotect(part.begin, part.size, how);
}

/// The processor's wish to stop after the next instruction.
void setStepping([[maybe_unused]] void* context, [[maybe_unused]] bool on)
{
#if defined(__x86_64__)
    constexpr greg_t trapFlag = 0x100;
    greg_t& flags = static_cast<ucontext_t*>(context)->uc_mcontext.gregs[REG_EFL];
    flags = on ? flags | trapFlag : flags & ~trapFlag;
#endif
}

/// A store: lets it through and watches for the next, or makes it one that the file refuses.
void onStore(int, siginfo_t* facts, void* context)
{
    ++*storesSeen;
    if (storesLeft-- > 0) {
        protect(PROT_READ | PROT_WRITE);
        setStepping(context, true);
        return;
    }
    failed = true;
    protect(PROT_READ | PROT_WRITE);
    struct sigaction handler {};
    sigaction(SIGBUS, nullptr, &handler);
    handler.sa_sigaction(SIGBUS, facts, context);
}

void afterStore(int, siginfo_t*, void* context)
{
    setStepping(context, false);
    if (!failed) protect(PROT_READ);
}

void handle(int number, void (*handler)(int, siginfo_t*, void*))
{
    struct sigaction action {};
    action.sa_sigaction = handler;
    action.sa_flags = SA_SIGINFO | SA_NODEFER;
    sigaction(number, &action, nullptr);
}

/// Where this process has parts of a file in memory that it may write to.
std::vector<Part> partsOf(const std::filesystem::path& path)
{
    std::vector<Part> found;
    std::ifstream maps("/proc/self/maps");
    for (std::string line; std::getline(maps, line);) {
        if (line.find(" rw-s ") == std::string::npos) continue;
        if (line.find(path.string()) == std::string::npos) continue;
        std::size_t dash = 0;
        const std::uintptr_t begin = std::stoull(line, &dash, 16);
        const std::uintptr_t end = std::stoull(line.substr(dash + 1), nullptr, 16);
        found.push_back({reinterpret_cast<char*>(begin), end - begin});
    }
    return found;
}

/// Updates row `number`, whose store after `stores` others fails; an update that finds the disk
/// full is tried again. Returns the status of the process that does it.
int updateThatFailsAfter(long stores, const std::filesystem::path& path, std::size_t number)
{
    const pid_t child = fork();
    if (child == 0) {
        auto engine = machineEngine();
        const auto database = engine.openDatabase(path.string());
        const auto traces = database->openRecordset("tblTraces");
        traces->addNew();
        for (const auto& [name, text] : numberedRow(number)) traces->field(name).setUtf8(text);
        handle(SIGSEGV, onStore);
        handle(SIGTRAP, afterStore);
        *storesSeen = 0;
        storesLeft = stores;
        parts = partsOf(path);
        protect(PROT_READ);
        const int error = errorOf([&] { traces->update(); });
        protect(PROT_READ | PROT_WRITE);
        if (error != 0 && error != 3026) _exit(1);
        if (error == 3026) traces->update();
        _exit(!failed ? neverFailed : error == 0 ? 0 : triedTwice);
    }
    int status = 0;
    waitpid(child, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
}

void addRows(const std::filesystem::path& path, std::size_t count)
{
    auto engine = machineEngine();
    const auto database = engine.openDatabase(path.string());
    const auto traces = database->openRecordset("tblTraces");
    for (std::size_t row = 0; row < count; ++row) addNumberedRow(*traces, row);
}

TEST(FailingStore, IsAnErrorOfTheUpdateOrComesBehindTheRowWhicheverItIs)
{
#if !defined(__x86_64__)
    GTEST_SKIP() << "no store is watched on this processor";
#endif
    storesSeen = static_cast<long*>(
        mmap(nullptr, sizeof(long), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0));
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
        {"maps that outgrow their rows", 0, 513},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.because);
        ScratchDatabase scratch;
        addRows(scratch.path(), c.rows);
        if (c.pages != 0) lengthenTo(scratch.path(), c.pages);
        const auto copy = scratch.folder() / "copy.mdb";
        const auto afresh = [&] {
            std::filesystem::copy_file(scratch.path(), copy,
                                       std::filesystem::copy_options::overwrite_existing);
        };
        afresh();
        ASSERT_EQ(neverFailed, updateThatFailsAfter(1'000'000, copy, c.rows));
        const long stores = *storesSeen;
        EXPECT_GT(stores, 20);
        int errors = 0;
        int successes = 0;
        // Each at the begin and the end, and some of the many bytes of a long text.
        const long many = std::max(1L, stores / 40);
        for (long store = 0; store < stores && !HasFailure();
             store += store < 40 || store + 40 + many > stores ? 1 : many) {
            SCOPED_TRACE(store);
            afresh();
            const int status = updateThatFailsAfter(store, copy, c.rows);
            errors += status == triedTwice ? 1 : 0;
            successes += status == 0 ? 1 : 0;
            EXPECT_TRUE(status == 0 || status == triedTwice) << status;
            EXPECT_EQ(c.rows + 1, countNumberedRows(copy)) << "once, whatever failed";
            const std::string problems = problemsOf(copy);
            EXPECT_TRUE(isHarmless(problems)) << problems;
        }
        EXPECT_GT(errors, 5);
        EXPECT_GT(successes, 0) << "the count of the rows comes last";
    }
    munmap(storesSeen, sizeof(long));
}

} // namespace
