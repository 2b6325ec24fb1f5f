#include "controls/controls.h"
#include "hosts/cli/arguments.h"
#include "hosts/cli/commands/commands.h"
#include "hosts/cli/driving/sheet_driver.h"
#include "hosts/cli/manual/values.h"
#include "hosts/cli/naming/matching_name.h"
#include "hosts/cli/naming/near_names.h"
#include "hosts/cli/terminal/output.h"
#include "runtime/text.h"
#include "settings/event_log_language.h"
#include "shell/snapin_names.h"

#include <algorithm>

namespace cli {

namespace {

/// What the sheet of the event log's language tells.
struct EventLanguages {
    std::string original;
    std::string current;
    std::vector<std::string> available;
};

/// The languages as they are, without the sheet: opening that records the original language, and
/// the tool's end then puts it back.
EventLanguages presentLanguages(ToolContext& context)
{
    EventLanguages languages;
    const auto sources = mdlLanguage::getEventLogKeys(context);
    if (!sources.empty()) {
        const std::string file = mdlLanguage::eventMessageFile(context, sources.front());
        languages.current = mdlLanguage::determineCurrentLanguage(context, file);
    }
    languages.original = mdlLanguage::originalLanguage(context);
    if (languages.original.empty()) languages.original = languages.current;
    try {
        languages.available = mdlLanguage::installedLanguages(context);
    } catch (const RunTimeError&) {
        // A server without a folder of messages has no language to offer.
    }
    return languages;
}

/// The installed language of that name in the folder's own spelling. Raises CommandFailure.
std::string installedLanguage(OpenTool& tool, const std::string& wanted)
{
    std::vector<std::string> installed;
    try {
        installed = mdlLanguage::installedLanguages(tool.context());
    } catch (const RunTimeError& error) {
        throw CommandFailure("the installed languages can't be listed: " + error.description());
    }
    if (const auto language = matchingName(wanted, installed)) return *language;
    throw CommandFailure(
        "no event log language " + wanted +
        didYouMean(wanted, installed, "; orvandiag event-language lists those that are installed"));
}

class EventLanguageCommand final : public Command {
public:
    std::string name() const override { return "event-language"; }

    std::string summary() const override { return "Show the event log's language, or change it"; }

    std::string explanation() const override
    {
        return "The server's messages in the Windows event log show in the language whose message "
               "files\n"
               "are registered. On exit the original language comes back, as it does when the "
               "console is\n"
               "closed. With --keep the new one stays: it becomes the language that comes back, "
               "and the way\n"
               "back to the one before is told. Without a language nothing is changed.\n\n"
               "  orvandiag event-language\n"
               "  orvandiag event-language FRA --keep";
    }

    void declare(Arguments& arguments) override
    {
        arguments.add("CODE", code_, "a language that is installed, such as FRA")
            .completes(Values::eventLanguages);
        arguments.addFlag("--keep", keep_, "leave the new language in force");
    }

    void run(const GlobalOptions& options, Output& output) override
    {
        if (keep_ && code_.empty()) throw UsageError("event-language --keep needs a language");
        if (code_.empty()) {
            OpenTool tool(options, ToolUse::look);
            const EventLanguages present = presentLanguages(tool.context());
            tool.close();
            return report(output, present);
        }
        std::string language;
        OpenTool tool(options, ToolUse::change, [&](OpenTool& opened) {
            language = installedLanguage(opened, code_);
            if (mdlLanguage::getEventLogKeys(opened.context()).empty())
                throw CommandFailure("no event source of the server is registered");
        });
        EventLanguages shown;
        {
            SheetDriver sheet(tool, snapinItem::changeLanguage);
            requireNoted(tool);
            change(tool, sheet, language);
            shown = {sheet.control<TextBox>("txtOriginalLanguage").text(),
                     sheet.control<TextBox>("txtCurrentLanguage").text(),
                     sheet.control<ListBox>("lstAvailableLangs").items()};
        }
        if (keep_) keep(tool, language);
        tool.close();
        report(output, shown);
        if (keep_ && shown.original != language)
            output.message("the event log stays in " + language + "; to go back to " +
                           shown.original + ": orvandiag event-language " + shown.original +
                           " --keep");
    }

private:
    /// Looks whether the sheet could note the first language as it opened: without that note
    /// nobody could bring it back.
    static void requireNoted(OpenTool& tool)
    {
        if (!tool.registry().refusal().empty())
            throw CommandFailure("the event log's language stays, as it could not be noted: " +
                                 tool.registry().refusal());
    }

    static void change(OpenTool& tool, SheetDriver& sheet, const std::string& language)
    {
        auto& list = sheet.control<ListBox>("lstAvailableLangs");
        const auto found = std::find(list.items().begin(), list.items().end(), language);
        list.chooseByPerson(static_cast<int>(found - list.items().begin()));
        sheet.apply();
        const std::string refusal = tool.registry().refusalOf("EventMessageFile");
        const auto sources = mdlLanguage::getEventLogKeys(tool.context());
        for (const std::string& source : sources) {
            const std::string file = mdlLanguage::eventMessageFile(tool.context(), source);
            if (mdlLanguage::determineCurrentLanguage(tool.context(), file) != language)
                throw CommandFailure("the event source " + source + " could not be changed" +
                                     (refusal.empty() ? "" : ": " + refusal));
        }
    }

    static void keep(OpenTool& tool, const std::string& language)
    {
        mdlLanguage::recordOriginalLanguage(tool.context(), language);
        const std::string refusal = tool.registry().refusalOf("OriginalEventLogLanguage");
        if (!refusal.empty()) throw CommandFailure(language + " can't be kept: " + refusal);
        const std::string kept = mdlLanguage::originalLanguage(tool.context());
        if (kept != language)
            throw CommandFailure(language + " can't be kept: the registry holds " +
                                 (kept.empty() ? "no language" : kept));
    }

    void report(Output& output, const EventLanguages& shown) const
    {
        if (output.json()) {
            output.value({{"original", shown.original},
                          {"current", shown.current},
                          {"available", shown.available}});
            return;
        }
        std::string available;
        for (const std::string& language : shown.available)
            available += (available.empty() ? "" : ", ") + language;
        output.line("Original         " + shown.original);
        output.line("Current          " + shown.current +
                    (code_.empty() || keep_ ? "" : " (until now: the original is back)"));
        output.line("Available        " + available);
    }

    std::string code_;
    bool keep_ = false;
};

} // namespace

std::unique_ptr<Command> makeEventLanguageCommand()
{
    return std::make_unique<EventLanguageCommand>();
}

} // namespace cli
