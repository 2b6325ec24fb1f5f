#include "hosts/cli/arguments.h"
#include "hosts/cli/commands/commands.h"
#include "hosts/cli/open_tool.h"
#include "hosts/cli/terminal/output.h"
#include "settings/about_box.h"

namespace cli {

namespace {

class AboutCommand final : public Command {
public:
    std::string name() const override { return "about"; }

    std::string summary() const override
    {
        return "Show the about box: name, version, notices, languages";
    }

    void declare(Arguments&) override {}

    void run(const GlobalOptions& options, Output& output) override
    {
        OpenTool tool(options, ToolUse::look);
        const SnapInIdentity identity = tool.console().identity();
        const std::string name = tool.console().displayName();
        frmAbout& box = tool.snapIn().showAbout();
        if (output.json())
            output.value(shown(box, name, identity));
        else
            print(output, box, name);
        box.cmdOK.click();
        tool.close();
    }

private:
    static std::vector<std::string> addressLines(const frmAbout& box)
    {
        return {box.lblKelmaAddress1.caption(), box.lblKelmaAddress2.caption(),
                box.lblKelmaAddress3.caption()};
    }

    static Json shown(const frmAbout& box, const std::string& name, const SnapInIdentity& identity)
    {
        Json languages = Json::array();
        for (const auto& item : box.mnuLanguageList())
            languages.push_back({{"name", item.caption}, {"id", std::stoi(item.tag)}});
        return {{"name", name},
                {"version", box.lblVersion.caption()},
                {"provider", identity.provider},
                {"description", identity.description},
                {"title", box.caption()},
                {"copyright", box.lblCopyright.caption()},
                {"trademark", box.lblTrademark.caption()},
                {"address", addressLines(box)},
                {"languages", languages}};
    }

    static void print(Output& output, const frmAbout& box, const std::string& name)
    {
        output.line(name + ": " + box.caption());
        output.line(box.lblVersionTitle.caption() + box.lblVersion.caption());
        output.line(box.lblCopyright.caption());
        output.line(box.lblTrademark.caption());
        for (const std::string& line : addressLines(box)) output.line(line);
        output.line(box.mnuSelectLanguage() + ":");
        for (const auto& item : box.mnuLanguageList()) output.line("  " + item.caption);
    }
};

} // namespace

std::unique_ptr<Command> makeAboutCommand()
{
    return std::make_unique<AboutCommand>();
}

} // namespace cli
