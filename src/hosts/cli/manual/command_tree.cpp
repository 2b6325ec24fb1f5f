#include "hosts/cli/manual/command_tree.h"

#include "runtime/text.h"

#include <CLI/CLI.hpp>

namespace cli {

namespace {

/// "TEXT:{basic,extended}" has the choices "basic" and "extended".
std::vector<std::string> choicesOf(const std::string& typeName)
{
    const auto open = typeName.find('{');
    const auto close = typeName.find('}', open);
    if (open == std::string::npos || close == std::string::npos) return {};
    return split(typeName.substr(open + 1, close - open - 1), ',');
}

/// The name of the value without what a check says behind it: "UINT:UINT in [1 - 9]" is "UINT", and
/// "COMPONENT:LEVEL" is a name.
std::string valueName(const std::string& typeName)
{
    const auto check = typeName.find(':');
    if (check == std::string::npos) return typeName;
    const std::string behind = typeName.substr(check + 1);
    const bool checks = beginsWith(behind, "{") || behind.find(" in [") != std::string::npos;
    return checks ? typeName.substr(0, check) : typeName;
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
    for (const CLI::Option* option : app.get_options())
        if (!option->get_group().empty()) described.options.push_back(describeOption(*option));
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
    for (const auto& name : option.get_snames()) described.names.push_back("-" + name);
    for (const auto& name : option.get_lnames()) described.names.push_back("--" + name);
    const std::string typeName = option.get_type_name();
    if (described.isArgument())
        described.argument = option.get_name(true);
    else if (option.get_items_expected_max() > 0)
        described.argument = valueName(typeName);
    described.choices = choicesOf(typeName);
    described.defaultValue = option.get_default_str();
    described.description = option.get_description();
    described.required = option.get_required();
    return described;
}

DescribedCommand describeCommands(const CLI::App& app)
{
    return describe(app, {});
}

} // namespace cli
