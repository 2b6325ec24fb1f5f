#include "end_to_end/program.h"
#include "hosts/desktop/support/test_window.h"
#include "support/places.h"

#include <gmock/gmock.h>

namespace desktop {

namespace {

TEST(NoDisplay, IsSaidInOneLine)
{
    const TestServer server(100);
    struct Case {
        const char* because;
        std::vector<std::string> environment;
    };
    const Case cases[] = {
        {"none is named, and the platform is X", {"-u", "DISPLAY", "QT_QPA_PLATFORM=xcb"}},
        {"none is named", {"-u", "DISPLAY", "-u", "QT_QPA_PLATFORM"}},
        {"the one that is named is not there", {"-u", "QT_QPA_PLATFORM", "DISPLAY=:7654"}},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.because);
        std::vector<std::string> words = {"env", "-u", "WAYLAND_DISPLAY"};
        words.insert(words.end(), c.environment.begin(), c.environment.end());
        words.insert(words.end(), {built::console, "--site", server.site()});
        const Outcome run = runProgram(words);
        EXPECT_EQ(1, run.status);
        EXPECT_EQ("", run.out);
        EXPECT_EQ(1, std::count(run.err.begin(), run.err.end(), '\n')) << run.err;
        EXPECT_THAT(run.err, testing::StartsWith("orvandiag-console: "));
        EXPECT_THAT(run.err, testing::HasSubstr("no display"));
    }
}

} // namespace

} // namespace desktop
