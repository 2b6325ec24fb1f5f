#include "hosts/cli/arguments.h"
#include "hosts/cli/commands/commands.h"
#include "hosts/cli/manual/values.h"
#include "hosts/cli/naming/long_paths.h"
#include "hosts/cli/program.h"
#include "hosts/cli/terminal/interrupt.h"
#include "hosts/cli/terminal/output.h"
#include "hosts/cli/terminal/progress_line.h"
#include "hosts/common/places.h"
#include "sample/sample_server.h"
#include "system/machine_path.h"

#include <filesystem>

namespace cli {

namespace {

namespace fs = std::filesystem;

class SampleCommand final : public Command {
public:
    std::string name() const override { return "sample"; }

    std::string summary() const override { return "Make a sample server to try things on"; }

    std::string explanation() const override
    {
        return "The folder must be new or empty. The same seed makes the same server, byte for "
               "byte:\n"
               "five processes, three days of logs that end on 20 February 2025 at 17:42.\n\n"
               "  orvandiag sample orvan-sample\n"
               "  orvandiag sample big --lines 1000000 --fields extended";
    }

    void declare(Arguments& arguments) override
    {
        arguments.add("DIR", folder_, "the folder to make").completes(Values::folders).required();
        arguments.add("--lines", lines_, "lines of all diagnostic logs together")
            .called("N")
            .withDefault()
            .within(100, 1'000'000'000);
        arguments.add("--seed", seed_, "another seed makes another server")
            .called("N")
            .withDefault()
            .notNegative();
        arguments.add("--fields", fields_, "what a log line carries")
            .called("FORM")
            .withDefault()
            .oneOf({"basic", "extended"});
    }

    void run(const GlobalOptions&, Output& output) override
    {
        if (folder_.empty()) throw CommandFailure("the folder to make has no name");
        requireShortEnough("the folder to make", folder_);
        const fs::path folder = fs::absolute(filePathOf(folder_)).lexically_normal();
        SampleOptions options;
        options.folder = machineTextOf(folder.has_filename() ? folder : folder.parent_path());
        options.dataFolder = places::installedData();
        options.lines = lines_;
        options.seed = seed_;
        options.logFields = fields_ == "extended" ? LogFields::extended : LogFields::basic;
        make(options);
        if (output.json())
            output.value({{"site", shownPathOf(options.folder)}});
        else
            output.line("Made a sample server in " + shownPathOf(options.folder));
    }

private:
    /// A wish to stop leaves nothing behind.
    static void make(SampleOptions& options)
    {
        const InterruptWish interrupt(InterruptWish::Repeated::isIgnored);
        ProgressLine progress;
        options.onProgress = [&](double done) {
            if (interrupt.made()) throw CommandFailure("interrupted; no sample server was made");
            progress.show(done, "Making a sample server");
        };
        makeSampleServer(options);
    }

    std::string folder_;
    std::uint64_t lines_ = SampleOptions{}.lines;
    std::uint64_t seed_ = SampleOptions{}.seed;
    std::string fields_ = "basic";
};

} // namespace

std::unique_ptr<Command> makeSampleCommand()
{
    return std::make_unique<SampleCommand>();
}

} // namespace cli
