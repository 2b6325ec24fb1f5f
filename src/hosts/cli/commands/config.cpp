#include "hosts/cli/arguments.h"
#include "hosts/cli/commands/commands.h"
#include "hosts/cli/terminal/output.h"
#include "hosts/machine/open_machine.h"
#include "system/environment.h"
#include "system/machine_path.h"

namespace cli {

namespace {

const char* nameOf(Origin origin)
{
    switch (origin) {
    case Origin::option:
        return "option";
    case Origin::environment:
        return "environment";
    case Origin::file:
        return "file";
    case Origin::standard:
        break;
    }
    return "default";
}

/// What stands for a value that something else decides.
std::string decidedElsewhere(const PersonSetting& setting)
{
    if (setting.name == "site") return machineIsAServer() ? "this machine itself" : "none";
    if (setting.name == "tool-folder") return "the site's";
    const MessageLocale locale = messageLocale();
    return "the site's" +
           (locale.name.empty() ? "" : ", or that of " + locale.variable + "=" + locale.name);
}

class ConfigCommand final : public Command {
public:
    std::string name() const override { return "config"; }

    std::string summary() const override { return "Show your settings, and where each comes from"; }

    std::string explanation() const override
    {
        return "Each is an option, or else a variable of the environment, or else a line of your "
               "file, or\n"
               "else what is usual. The file is $XDG_CONFIG_HOME/orvandiag/config.toml, or else\n"
               "~/.config/orvandiag/config.toml, on Windows %APPDATA%\\orvandiag\\config.toml, and "
               "may say\n\n"
               "  site = \"~/voice01\"       --site, $ORVAN_SITE: the site's folder\n"
               "  tool-folder = \"/opt/od\"  --tool-folder, $ORVAN_TOOL_FOLDER: the tool's files\n"
               "  language = \"fr\"          $ORVAN_LANGUAGE: of the tool's texts, as in $LANG\n"
               "  color = \"never\"          --color, $ORVAN_COLOR: auto, always or never\n"
               "  pager = \"less -RS\"       $ORVAN_PAGER; behind the file $PAGER counts, too\n\n"
               "A # begins a comment. A mistake in the file is told with its line, and no command "
               "goes on\n"
               "with it.\n\n"
               "  orvandiag config\n"
               "  orvandiag --json config";
    }

    void declare(Arguments&) override {}

    void run(const GlobalOptions& options, Output& output) override
    {
        if (output.json())
            output.value(asJson(options.settings));
        else
            print(output, options.settings);
    }

private:
    static Json asJson(const PersonSettings& settings)
    {
        const auto orNull = [](const std::string& text) {
            return text.empty() ? Json(nullptr) : Json(text);
        };
        Json list = Json::array();
        for (const PersonSetting& setting : settings.all)
            list.push_back({{"name", setting.name},
                            {"value", setting.value ? Json(*setting.value) : Json(nullptr)},
                            {"from", nameOf(setting.origin)},
                            {"where", orNull(setting.where)}});
        return {{"file", orNull(shownPathOf(settings.file.path))},
                {"fileExists", settings.file.there},
                {"settings", list}};
    }

    static void print(Output& output, const PersonSettings& settings)
    {
        const ConfigFile& file = settings.file;
        output.line(file.path.empty()
                        ? "No file: the environment names no folder for it"
                        : (file.there ? "File: " : "No file: ") + shownPathOf(file.path));
        Table table({"Setting", "Value", "From"});
        for (const PersonSetting& setting : settings.all)
            table.row({setting.name, setting.value ? *setting.value : decidedElsewhere(setting),
                       setting.where.empty() ? nameOf(setting.origin) : setting.where});
        output.text(table.text());
    }
};

} // namespace

std::unique_ptr<Command> makeConfigCommand()
{
    return std::make_unique<ConfigCommand>();
}

} // namespace cli
