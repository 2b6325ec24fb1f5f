#include "system/write_signals.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <csignal>
#include <cstdio>
#include <sys/resource.h>
#include <unistd.h>

namespace {

/// Ends with 0 where a write fails with `error`.
[[noreturn]] void write(int file, int error)
{
    const bool failed = ::write(file, "x", 1) == -1;
    ::_exit(failed && errno == error ? 0 : 1);
}

[[noreturn]] void writeToAClosedPipe()
{
    int ends[2] = {};
    if (::pipe(ends) != 0 || ::close(ends[0]) != 0) ::_exit(2);
    write(ends[1], EPIPE);
}

[[noreturn]] void writePastTheSizeLimit()
{
    std::FILE* file = std::tmpfile();
    const rlimit none{};
    if (file == nullptr || ::setrlimit(RLIMIT_FSIZE, &none) != 0) ::_exit(2);
    write(::fileno(file), EFBIG);
}

TEST(WriteSignals, AWriteToAClosedPipeIsAnErrorOnceThatIsWanted)
{
    EXPECT_EXIT(writeToAClosedPipe(), testing::KilledBySignal(SIGPIPE), "");
    EXPECT_EXIT((letWritesToClosedPipesFail(), writeToAClosedPipe()), testing::ExitedWithCode(0),
                "");
}

TEST(WriteSignals, AWritePastTheSizeLimitIsAnErrorOnceThatIsWanted)
{
    EXPECT_EXIT(writePastTheSizeLimit(), testing::KilledBySignal(SIGXFSZ), "");
    EXPECT_EXIT((letWritesPastTheSizeLimitFail(), writePastTheSizeLimit()),
                testing::ExitedWithCode(0), "");
}

} // namespace
