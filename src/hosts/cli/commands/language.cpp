#include "core/language_table.h"
#include "core/localisation.h"
#include "core/registry_store.h"
#include "hosts/cli/arguments.h"
#include "hosts/cli/commands/commands.h"
#include "hosts/cli/manual/values.h"
#include "hosts/cli/naming/matching_name.h"
#include "hosts/cli/naming/near_names.h"
#include "hosts/cli/open_tool.h"
#include "hosts/cli/terminal/output.h"
#include "runtime/numbers.h"
#include "runtime/text.h"
#include "settings/about_box.h"

#include <algorithm>

namespace cli {

namespace {

constexpr const char* english = "ENU";
constexpr const char* valueName = "CurrentLocalizationLanguage";

using Codes = std::vector<std::string>;

/// Of the languages beside the tool those that the about box offers, in the order of its menu. A
/// single library is not offered: the box takes it for none.
Codes offered(const Codes& codes)
{
    return codes.size() > 1 ? codes : Codes();
}

/// The index of a language in the about box's menu. Raises CommandFailure for one that it does not
/// offer.
int menuIndex(const Codes& codes, const std::string& wanted)
{
    const Codes& known = codes.empty() ? Codes{english} : codes;
    if (const auto code = matchingName(wanted, known))
        return static_cast<int>(std::find(known.begin(), known.end(), *code) - known.begin());
    throw CommandFailure(
        "no interface language " + wanted +
        didYouMean(wanted, known, "; orvandiag language lists those beside the tool"));
}

class LanguageCommand final : public Command {
public:
    std::string name() const override { return "language"; }

    std::string summary() const override
    {
        return "Show the interface languages, or choose one for this run";
    }

    std::string explanation() const override
    {
        return "A choice holds until the tool is closed, which for a command is at once: it shows "
               "how the\n"
               "tool calls itself in that language. Each run begins with the user's language; "
               "give a site\n"
               "another one for good by its number in site.ini, such as language = 1036.\n\n"
               "  orvandiag language\n"
               "  orvandiag language FRA";
    }

    void declare(Arguments& arguments) override
    {
        arguments.add("CODE", code_, "a language whose texts lie beside the tool, such as FRA")
            .completes(Values::languages);
    }

    void run(const GlobalOptions& options, Output& output) override
    {
        OpenTool tool(options, code_.empty() ? ToolUse::look : ToolUse::change,
                      [this](OpenTool& opened) {
                          if (!code_.empty())
                              menuIndex(offered(libraryCodes(opened.context())), code_);
                      });
        frmAbout& box = tool.snapIn().showAbout();
        const Codes available = offered(tool.context().language.g_astrLanguages);
        tool.registry().forget();
        if (!code_.empty()) {
            box.mnuLanguageList_Click(menuIndex(available, code_));
            if (!available.empty()) requireChosen(tool);
        }
        const std::int32_t current = tool.context().language.g_lngCurrentLanguage;
        const std::string title = box.caption();
        const std::string name = languageName(tool.context(), current);
        Table table({"Code", "Language"});
        for (const std::string& code : available)
            table.row({code, languageNameFromCode(tool.context(), code)});
        box.cmdOK.click();
        tool.close();

        if (output.json()) {
            output.value({{"current", codeFromLanguageId(current)}, {"available", available}});
            return;
        }
        output.line(name + ": " + title);
        output.text(table.text());
    }

private:
    /// Looks whether the language is in force, and whether the registry has it.
    void requireChosen(OpenTool& tool) const
    {
        const LanguageState& language = tool.context().language;
        if (!equalIgnoringCase(codeFromLanguageId(language.g_lngCurrentLanguage), code_) ||
            language.g_hResourceLibrary == 0)
            throw CommandFailure("the texts of " + code_ + " can't be loaded");
        const std::string number = numberText(std::int64_t{language.g_lngCurrentLanguage});
        const std::string refusal = tool.registry().refusalOf(valueName);
        if (getRegistryText(tool.context(), toolKey, valueName) != number)
            throw CommandFailure("the choice of " + code_ + " could not be written" +
                                 (refusal.empty() ? "" : ": " + refusal));
    }

    std::string code_;
};

} // namespace

std::unique_ptr<Command> makeLanguageCommand()
{
    return std::make_unique<LanguageCommand>();
}

} // namespace cli
