#include "hosts/cli/arguments.h"
#include "hosts/cli/commands/commands.h"
#include "hosts/cli/manual/manual_page.h"
#include "hosts/cli/terminal/output.h"
#include "system/root_folder.h"
#include "system/whole_file.h"

namespace cli {

namespace {

/// For the build, which installs what it writes.
class ManCommand final : public Command {
public:
    std::string name() const override { return "man"; }

    std::string summary() const override { return "Print a manual page"; }

    bool hidden() const override { return true; }

    bool takesSettings() const override { return false; }

    void declare(Arguments& arguments) override
    {
        arguments_ = arguments;
        arguments.add("COMMAND", command_, "the command; else the program");
        arguments.add("--to", folder_, "a folder to write all pages into").called("DIR");
    }

    void run(const GlobalOptions&, Output& output) override
    {
        const DescribedCommand program = describeCommands(arguments_.program());
        if (!folder_.empty()) return writeAll(program);
        const std::string page =
            command_.empty() ? manualPage(program) : manualPage(program, chosen(program));
        if (output.json())
            output.value({{"page", page}});
        else
            output.text(page);
    }

private:
    const DescribedCommand& chosen(const DescribedCommand& program) const
    {
        for (const auto& command : program.commands)
            if (command.path == command_) return command;
        throw UsageError("there is no manual page of a command \"" + command_ + "\"");
    }

    void writeAll(const DescribedCommand& program) const
    {
        const RootFolder folder(folder_);
        write(folder, pageName(program), manualPage(program));
        for (const auto& command : program.commands)
            write(folder, pageName(command), manualPage(program, command));
    }

    static void write(const RootFolder& folder, const std::string& name, const std::string& page)
    {
        ReplacementFile file(folder, name + ".1");
        file.write(page);
        file.commit(false);
    }

    Arguments arguments_;
    std::string command_;
    std::string folder_;
};

} // namespace

std::unique_ptr<Command> makeManCommand()
{
    return std::make_unique<ManCommand>();
}

} // namespace cli
