#include "hosts/cli/manual/command_tree.h"

#include "hosts/cli/naming/near_names.h"
#include "runtime/text.h"

#include <utility>

namespace cli {

namespace {

constexpr const char* boundsMark = " in [";

/// "TEXT:{basic,extended}" has the choices "basic" and "extended".
std::vector<std::string> choicesOf(const std::string& typeName)
{
    const auto open = typeName.find('{');
    const auto close = typeName.find('}', open);
    if (open == std::string::npos || close == std::string::npos) return {};
    return split(typeName.substr(open + 1, close - open - 1), ',');
}

/// "UINT:UINT in [1 - 9]" has the bounds "1 to 9".
std::string boundsOf(const std::string& typeName)
{
    const auto mark = typeName.find(boundsMark);
    const auto close = typeName.find(']', mark);
    if (mark == std::string::npos || close == std::string::npos) return {};
    const auto open = mark + std::string(boundsMark).size();
    return replaceAll(typeName.substr(open, close - open), " - ", " to ");
}

/// The name of the value without what a check says behind it: "UINT:UINT in [1 - 9]" is "UINT", and
/// "COMPONENT:LEVEL" is a name. What the library calls a number or a text has no name of its own.
std::string valueName(const std::string& typeName)
{
    const auto check = typeName.find(':');
    const std::string behind = check == std::string::npos ? "" : typeName.substr(check + 1);
    const bool checks = beginsWith(behind, "{") || behind.find(boundsMark) != std::string::npos;
    std::string name = checks ? typeName.substr(0, check) : typeName;
    if (name == "UINT" || name == "INT") return "N";
    return name;
}

std::vector<std::string> withNames(const std::vector<std::string>& names, const char* dashes)
{
    std::vector<std::string> dashed;
    dashed.reserve(names.size());
    for (const auto& name : names) dashed.push_back(dashes + name);
    return dashed;
}

/// A command below another one says the same below its options unless it has a text of its own.
std::string ownExplanation(const CLI::App& app)
{
    const CLI::App* parent = app.get_parent();
    return parent && parent->get_footer() == app.get_footer() ? "" : app.get_footer();
}

DescribedCommand describe(const CLI::App& app, const std::string& path)
{
    DescribedCommand described;
    described.path = path;
    described.summary = app.get_description();
    described.explanation = ownExplanation(app);
    described.needsCommand = app.get_require_subcommand_min() > 0;
    const CommandLine* line = CommandLine::of(app);
    for (const CLI::Option* option : app.get_options()) {
        if (option->get_group().empty()) continue;
        described.options.push_back(describeOption(*option));
        if (line) described.options.back().values = line->valuesOf(option);
    }
    for (const CLI::App* command : app.get_subcommands([](const CLI::App*) { return true; }))
        if (!command->get_group().empty())
            described.commands.push_back(
                describe(*command, (path.empty() ? "" : path + " ") + command->get_name()));
    return described;
}

} // namespace

DescribedOption describeOption(const CLI::Option& option)
{
    DescribedOption described;
    described.names = withNames(option.get_snames(), "-");
    for (auto& name : withNames(option.get_lnames(), "--"))
        described.names.push_back(std::move(name));
    const std::string typeName = option.get_type_name();
    if (described.isArgument())
        described.argument = option.get_name(true);
    else if (option.get_items_expected_max() > 0)
        described.argument = valueName(typeName);
    described.choices = choicesOf(typeName);
    described.bounds = boundsOf(typeName);
    described.defaultValue = option.get_default_str();
    described.description = option.get_description();
    described.required = option.get_required();
    described.repeated = option.get_items_expected_max() > 1;
    described.takesMany = described.repeated && option.get_allow_extra_args();
    return described;
}

std::string DescribedOption::told() const
{
    std::vector<std::string> facts;
    if (required) facts.emplace_back("required");
    if (!choices.empty()) facts.push_back(namesToChoose(choices));
    if (!bounds.empty()) facts.push_back(bounds);
    if (!defaultValue.empty()) facts.push_back("default " + defaultValue);
    if (repeated && !isArgument()) facts.emplace_back("may be repeated");
    std::string text = description;
    for (std::size_t at = 0; at < facts.size(); ++at) text += (at == 0 ? " (" : "; ") + facts[at];
    return facts.empty() ? text : text + ")";
}

std::string DescribedCommand::usage() const
{
    std::string text = " [OPTIONS]";
    for (const auto& option : options) {
        if (!option.isArgument()) continue;
        const std::string word = option.argument + (option.repeated ? "..." : "");
        text += option.required ? " " + word : " [" + word + "]";
    }
    if (!commands.empty()) text += needsCommand ? " COMMAND" : " [COMMAND]";
    return text;
}

bool isHelpOption(const DescribedOption& option)
{
    return !option.isArgument() && option.names.back() == "--help";
}

DescribedCommand describeCommands(const CLI::App& app)
{
    return describe(app, {});
}

} // namespace cli
