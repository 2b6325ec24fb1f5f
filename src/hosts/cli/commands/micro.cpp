#include "controls/controls.h"
#include "core/trapped_error_listener.h"
#include "hosts/cli/arguments.h"
#include "hosts/cli/commands/commands.h"
#include "hosts/cli/driving/known_names.h"
#include "hosts/cli/driving/trace_check.h"
#include "hosts/cli/driving/trace_choice.h"
#include "hosts/cli/driving/wizard_driver.h"
#include "hosts/cli/manual/values.h"
#include "hosts/cli/naming/matching_name.h"
#include "hosts/cli/naming/near_names.h"
#include "hosts/cli/open_tool.h"
#include "hosts/cli/terminal/output.h"
#include "runtime/numbers.h"
#include "runtime/text.h"
#include "server/diagnostic_grid_catalogue.h"
#include "shell/snapin_names.h"
#include "text/visible_text.h"

#include <memory>

namespace cli {

namespace {

constexpr const char* treeName = "treeviewMicroTraces";
constexpr std::size_t levelTextStart = 4; ///< behind two digits and two blanks

int levelOf(const TreeNode& node)
{
    return static_cast<int>(leadingNumber(node.text()));
}

std::string levelText(const TreeNode& node)
{
    return node.text().size() > levelTextStart ? node.text().substr(levelTextStart) : "";
}

/// Null for a component that the wizard does not show.
TreeNode* componentNode(const TreeView& tree, const std::string& component)
{
    for (TreeNode* node : tree.roots())
        if (node->key() == component) return node;
    return nullptr;
}

struct LevelName {
    std::string component;
    int level;
};

bool isSameLevel(const LevelName& left, const LevelName& right)
{
    return left.level == right.level && left.component == right.component;
}

/// The parts of "COMPONENT:LEVEL". Raises UsageError for a text of another form.
LevelName levelName(const std::string& wanted)
{
    const auto colon = wanted.rfind(':');
    const std::string digits = colon == std::string::npos ? "" : wanted.substr(colon + 1);
    if (colon == 0 || digits.empty() || digits.size() > 2 ||
        digits.find_first_not_of("0123456789") != std::string::npos)
        throw UsageError("\"" + wanted + "\" is not of the form COMPONENT:LEVEL");
    return {wanted.substr(0, colon), std::stoi(digits)};
}

std::string textOf(const LevelName& name)
{
    return name.component + ":" + numberText(std::int64_t{name.level});
}

/// Those of the levels that every change of traces turns on again.
std::vector<LevelName> defaultLevels(DatabaseConnection& connection,
                                     const std::vector<LevelName>& levels)
{
    std::vector<LevelName> found;
    const auto rows =
        connection.openRecordset("SELECT Name, DefaultFlags FROM vw_LoggerDiagnosticGrid",
                                 CursorKind::forwardOnly, LockKind::readOnly);
    for (; !rows->atEnd(); rows->moveNext()) {
        const std::string component = valueAsText(rows->field("Name"));
        const auto flags =
            static_cast<std::uint32_t>(valueAsInteger32(rows->field("DefaultFlags")));
        for (const LevelName& level : levels)
            if (level.level < 32 && trim(component) == level.component &&
                (flags >> level.level) & 1)
                found.push_back(level);
    }
    return found;
}

CommandFailure noSuchComponent(const std::string& component,
                               const std::vector<std::string>& known = {})
{
    return CommandFailure("no component " + component + " in the diagnostic grid" +
                          didYouMean(component, known, "; orvandiag micro lists them"));
}

CommandFailure noSuchLevel(const LevelName& wanted)
{
    return CommandFailure(wanted.component + " has no level " +
                          numberText(std::int64_t{wanted.level}));
}

/// Where a list of components stopped being filled, as its page hides it then.
std::string whereTheListEnds(const TreeView& tree)
{
    const std::string failed = "the list can't be filled";
    if (tree.roots().empty()) return failed;
    const TreeNode& last = *tree.roots().back();
    return failed + " past " + last.key() +
           (last.child() ? "" : ", which has no levels in the catalogue of level texts");
}

/// Levels without texts are not shown, and what the page does not show it turns off. Raises
/// CommandFailure.
void requireLevelTexts(OpenTool& tool)
{
    if (const auto file = knownNames::unreadCatalogue(tool))
        throw CommandFailure("no level is changed, as no level texts can be read from " + *file +
                             ": levels that are on would be turned off");
}

/// Opens the wizard on the page of the levels. Raises CommandFailure when the level texts or the
/// flags of a component can't be read: the page shows its levels off then, and would turn them off.
std::unique_ptr<WizardDriver> wizardOfLevels(OpenTool& tool)
{
    std::string refusal;
    const TrappedErrorListener listener(
        tool.context(), [&](const RunTimeError& error, std::string_view procName) {
            if (refusal.empty() && procName == "[mdlOrvanDatabase]getFlags")
                refusal = error.description();
        });
    auto wizard = std::make_unique<WizardDriver>(tool, snapinTask::configureMicroTraces);
    wizard->next();
    requireLevelTexts(tool);
    if (!refusal.empty())
        throw CommandFailure("no level is changed, as the levels that are on can't be read: " +
                             refusal);
    return wizard;
}

/// Raises CommandFailure for a level that the wizard does not show.
TreeNode& levelNode(const TreeView& tree, const LevelName& wanted)
{
    TreeNode* component = componentNode(tree, wanted.component);
    if (!component) throw noSuchComponent(wanted.component);
    for (TreeNode* level = component->child(); level; level = level->next())
        if (levelOf(*level) == wanted.level) return *level;
    throw noSuchLevel(wanted);
}

/// A sentence for each component that has levels on which the wizard does not show, and so turns
/// off: those of no text, or of none but a placeholder. What is on by default stays on.
std::vector<std::string> hiddenLevels(const TreeView& tree, const std::vector<FlagWords>& present)
{
    std::vector<std::string> sentences;
    for (const FlagWords& words : present) {
        auto hidden = static_cast<std::uint32_t>(words.flags) &
                      ~static_cast<std::uint32_t>(words.defaultFlags);
        const std::string name(trim(words.name));
        if (const TreeNode* component = componentNode(tree, name))
            for (const TreeNode* level = component->child(); level; level = level->next())
                if (const int number = levelOf(*level); number >= 0 && number < 32)
                    hidden &= ~(std::uint32_t{1} << number);
        std::string numbers;
        for (int number = 0; number < 32; ++number)
            if ((hidden >> number) & 1)
                numbers += (numbers.empty() ? "" : ", ") + numberText(std::int64_t{number});
        if (!numbers.empty())
            sentences.push_back("of " + name +
                                " what was on and is not listed is off now: " + numbers);
    }
    return sentences;
}

class MicroCommand final : public Command {
public:
    std::string name() const override { return "micro"; }

    std::string summary() const override
    {
        return "List the trace levels of components, or turn levels on and off";
    }

    std::string explanation() const override
    {
        return "Levels that are reserved or not available are not listed, and come out off when "
               "levels\n"
               "are set, unless they are on by default.\n\n"
               "  orvandiag micro CallFlow\n"
               "  orvandiag micro set --on CallFlow:7 --off Conversation:3";
    }

    void declare(Arguments& arguments) override
    {
        arguments.add("COMPONENT", component_, "one component instead of all")
            .completes(Values::components);
        set_ = arguments.addCommand("set", "Turn trace levels on and off");
        set_.add("--on", on_, "turn on, as in CallFlow:7")
            .called("COMPONENT:LEVEL")
            .completes(Values::componentsAndLevels);
        set_.add("--off", off_, "turn off")
            .called("COMPONENT:LEVEL")
            .completes(Values::componentsAndLevels);
    }

    void run(const GlobalOptions& options, Output& output) override
    {
        if (set_.given() && !component_.empty())
            throw UsageError("micro set takes no component but in --on and --off; leave out \"" +
                             component_ + "\"");
        if (set_.given() && on_.empty() && off_.empty())
            throw UsageError("micro set needs an --on or an --off");
        TraceChoice<LevelName> choice;
        for (const auto& name : on_) choice.on.push_back(levelName(name));
        for (const auto& name : off_) choice.off.push_back(levelName(name));
        OpenTool tool(options, set_.given() ? ToolUse::change : ToolUse::look,
                      [&](OpenTool& opened) { requireSound(opened, choice); });
        if (set_.given())
            set(tool, output, choice);
        else
            list(tool, output);
    }

private:
    /// Raises CommandFailure for what this server does not have, UsageError where the names turn
    /// out to contradict each other. Writes them as the server does.
    void requireSound(OpenTool& tool, TraceChoice<LevelName>& choice)
    {
        if (const auto known = knownNames::components(tool)) {
            if (!component_.empty()) writeAsKnown(component_, *known);
            choice.forEach([&](LevelName& name) { writeAsKnown(name.component, *known); });
        }
        if (const LevelName* both = choice.contradiction(isSameLevel))
            throw UsageError(textOf(*both) + " is to be turned on and off");
        choice.forEach([&](const LevelName& name) { requireLevel(tool, name); });
    }

    static void writeAsKnown(std::string& component, const std::vector<std::string>& known)
    {
        const auto name = matchingName(component, known);
        if (!name) throw noSuchComponent(component, known);
        component = *name;
    }

    static void requireLevel(OpenTool& tool, const LevelName& wanted)
    {
        const bool shown = knownNames::showsLevel(tool, wanted.component, wanted.level);
        requireLevelTexts(tool);
        if (!shown) throw noSuchLevel(wanted);
    }

    void list(OpenTool& tool, Output& output) const
    {
        tool.requireDatabase();
        Json all = Json::array();
        std::string text;
        std::string refusal;
        {
            const TrappedErrorListener listener(
                tool.context(), [&](const RunTimeError& error, std::string_view procName) {
                    if (refusal.empty() && procName == "[mdlOrvanDatabase]EnumComponents")
                        refusal = ": " + error.description();
                });
            WizardDriver wizard(tool, snapinTask::configureMicroTraces);
            wizard.next();
            const auto& tree = wizard.control<TreeView>(treeName);
            if (const auto file = knownNames::unreadCatalogue(tool))
                output.message("no level texts can be read from " + *file +
                               ": no levels past 1 are listed");
            if (!tree.visible())
                output.message("not every component is listed: " + whereTheListEnds(tree) +
                               refusal);
            if (!component_.empty() && !componentNode(tree, component_))
                throw tree.visible() ? noSuchComponent(component_)
                                     : CommandFailure(component_ + " is not listed");
            for (const TreeNode* node : tree.roots()) {
                if (!component_.empty() && node->key() != component_) continue;
                Json levels = Json::array();
                text += visibleText(node->text()) + "\n";
                for (const TreeNode* level = node->child(); level; level = level->next()) {
                    levels.push_back({{"level", levelOf(*level)},
                                      {"text", levelText(*level)},
                                      {"enabled", level->checked()}});
                    text +=
                        (level->checked() ? "  x " : "    ") + visibleText(level->text()) + "\n";
                }
                all.push_back({{"component", node->key()},
                               {"text", mdlDiagnosticGrids::GetDiagnosticLevelText(tool.context(),
                                                                                   node->key())},
                               {"levels", std::move(levels)}});
            }
        }
        tool.close();
        if (output.json())
            output.value(all);
        else
            output.text(text);
    }

    static void set(OpenTool& tool, Output& output, const TraceChoice<LevelName>& choice)
    {
        std::string summary;
        TraceCheck check(tool);
        std::vector<LevelName> staying;
        std::vector<std::string> hidden;
        if (!choice.off.empty()) staying = defaultLevels(tool.context().g_connection, choice.off);
        {
            const auto opened = wizardOfLevels(tool);
            WizardDriver& wizard = *opened;
            auto& tree = wizard.control<TreeView>(treeName);
            if (!tree.visible())
                throw CommandFailure("no level can be changed: " + whereTheListEnds(tree));
            choice.make(wizard, tree, levelNode);
            hidden = hiddenLevels(tree, check.present());
            check.expect(expectedOfMicroTraces(tool.context(), tree, check.present()));
            for (const auto& [component, level] : choice.off)
                check.expectLevel(component, level, false);
            for (const auto& [component, level] : choice.on)
                check.expectLevel(component, level, true);
            wizard.next();
            summary = wizard.control<Label>("lblCompletionStatment").caption();
            wizard.finish();
        }
        check.requireSuccess();
        tool.close();
        if (output.json())
            output.value({{"summary", summary}});
        else
            output.line(summary);
        for (const LevelName& level : staying)
            output.message(textOf(level) + " stays on: it is on by default");
        for (const std::string& sentence : hidden) output.message(sentence);
    }

    Arguments set_;
    std::string component_;
    std::vector<std::string> on_;
    std::vector<std::string> off_;
};

} // namespace

std::unique_ptr<Command> makeMicroCommand()
{
    return std::make_unique<MicroCommand>();
}

} // namespace cli
