#include "controls/controls.h"
#include "core/registry_store.h"
#include "hosts/cli/arguments.h"
#include "hosts/cli/commands/commands.h"
#include "hosts/cli/driving/sheet_driver.h"
#include "hosts/cli/terminal/output.h"
#include "platform/database.h"
#include "runtime/numbers.h"
#include "runtime/text.h"
#include "server/configuration_database.h"
#include "shell/snapin_names.h"

#include <algorithm>
#include <cstdint>

namespace cli {

namespace {

constexpr const char* pageName = "ppgConfLogSettings";
constexpr const char* maxMegabytesName = "System.LogMgr.MaxDiagnosticMegabytesSaved";

/// What the sheet shows, and the value that its list is about.
struct ShownSettings {
    std::int32_t maxMegabytes = 0;
    std::vector<std::int32_t> choices;
    int selected = 0;
    bool writingEnabled = false;
    std::string logFolder;
};

ShownSettings shownSettings(OpenTool& tool, SheetDriver& sheet)
{
    ShownSettings shown;
    shown.maxMegabytes = valueAsInteger32(
        mdlOrvanDatabase::GetConfigurationSetting(tool.context(), maxMegabytesName));
    const auto& space = sheet.control<ComboBox>("comboMaxSpace");
    for (const std::string& item : space.items())
        shown.choices.push_back(toInteger32(leadingNumber(item)));
    shown.selected = space.selectedIndex();
    shown.writingEnabled = sheet.control<CheckBox>("chkDiagnosticOutput").checked();
    shown.logFolder = sheet.control<TextBox>("txtLocationOfLogFiles").text();
    return shown;
}

/// Chooses a value from the list, or types one that the list does not hold.
void enter(ComboBox& space, std::int32_t megabytes)
{
    const std::string text = numberTextWithLeadingBlank(megabytes);
    if (space.text() == text) return;
    const auto found = std::find(space.items().begin(), space.items().end(), text);
    if (found == space.items().end())
        space.setByPerson(text);
    else
        space.chooseByPerson(static_cast<int>(found - space.items().begin()));
}

class SettingsCommand final : public Command {
public:
    std::string name() const override { return "settings"; }

    std::string summary() const override
    {
        return "Show the log settings, or change the space and the folder of the logs";
    }

    std::string explanation() const override
    {
        return "The server takes any number of megabytes; the sheet of the desktop lists 100 to "
               "20,000 in\n"
               "steps of 100 and what is set. A new folder is neither made nor looked for, and "
               "needs a\n"
               "reboot of the server; the tool's own lists follow it from the next command on.\n\n"
               "  orvandiag settings\n"
               "  orvandiag settings --max-megabytes 800\n"
               "  orvandiag settings --log-folder 'D:\\OrvanLogs'";
    }

    void declare(Arguments& arguments) override
    {
        megabytes_ = arguments
                         .add("--max-megabytes", maxMegabytes_,
                              "the most space that diagnostic files may take")
                         .positive()
                         .called("N");
        folder_ = arguments.add("--log-folder", logFolder_, "where the server writes its logs")
                      .called("PATH");
    }

    void run(const GlobalOptions& options, Output& output) override
    {
        if (folder_.given() && trim(logFolder_).empty())
            throw UsageError("settings --log-folder needs a folder");
        if (logFolder_.rfind('/', 0) == 0)
            throw UsageError("settings --log-folder takes a folder on a drive of the server, such "
                             "as D:\\OrvanLogs");
        const bool changes = megabytes_.given() || folder_.given();
        OpenTool tool(options, changes ? ToolUse::change : ToolUse::look);
        tool.registry().forget();
        const bool rebootRequired = changes && change(tool);
        const ShownSettings shown = read(tool);
        const std::string refusal = tool.registry().refusalOf(logFolderValue);
        requireWritten(shown, refusal);
        tool.close();
        report(output, shown, rebootRequired);
    }

private:
    static ShownSettings read(OpenTool& tool)
    {
        const PassedOverErrors errors(tool, pageName);
        SheetDriver sheet(tool, snapinItem::configureLogSettings);
        errors.requireNone("the log settings can't be read");
        return shownSettings(tool, sheet);
    }

    /// True when the server has to be rebooted. What was not asked for is written as it was, even
    /// where the list can't show it.
    bool change(OpenTool& tool) const
    {
        const PassedOverErrors errors(tool, pageName);
        SheetDriver sheet(tool, snapinItem::configureLogSettings);
        errors.requireNone("the log settings can't be read");
        const ShownSettings before = shownSettings(tool, sheet);
        enter(sheet.control<ComboBox>("comboMaxSpace"),
              megabytes_.given() ? maxMegabytes_ : before.maxMegabytes);
        if (folder_.given())
            sheet.control<TextBox>("txtLocationOfLogFiles").setByPerson(logFolder_);
        sheet.apply();
        errors.requireNone("not every log setting was written");
        return folder_.given() && logFolder_ != before.logFolder;
    }

    void requireWritten(const ShownSettings& shown, const std::string& refusal) const
    {
        if (megabytes_.given() && shown.maxMegabytes != maxMegabytes_)
            throw CommandFailure("the server did not take the new space");
        if (folder_.given() && shown.logFolder != logFolder_)
            throw CommandFailure(
                "the log folder could not be written: " +
                (refusal.empty() ? "this server has no key of its log manager" : refusal));
    }

    static void report(Output& output, const ShownSettings& shown, bool rebootRequired)
    {
        if (output.json()) {
            output.value({{"maxMegabytes", shown.maxMegabytes},
                          {"choices", shown.choices},
                          {"selected", shown.selected},
                          {"writingEnabled", shown.writingEnabled},
                          {"logFolder", shown.logFolder},
                          {"rebootRequired", rebootRequired}});
            return;
        }
        output.line("Maximum space    " + groupedNumber(shown.maxMegabytes) + " MB");
        output.line("Log folder       " + shown.logFolder);
        output.line(std::string("Writing          ") + (shown.writingEnabled ? "on" : "off"));
    }

    Argument megabytes_;
    Argument folder_;
    std::int32_t maxMegabytes_ = 0;
    std::string logFolder_;
};

} // namespace

std::unique_ptr<Command> makeSettingsCommand()
{
    return std::make_unique<SettingsCommand>();
}

} // namespace cli
