#include "hosts/cli/arguments.h"
#include "hosts/cli/commands/commands.h"
#include "hosts/cli/driving/server_facts.h"
#include "hosts/cli/manual/values.h"
#include "hosts/cli/open_tool.h"
#include "hosts/cli/terminal/output.h"
#include "runtime/run_time_error.h"

#include <optional>
#include <set>

namespace cli {

namespace {

struct Difference {
    ServerFact fact;
    std::optional<std::string> a;
    std::optional<std::string> b;

    bool same() const { return a == b; }
};

/// What a server says of a fact that it or another one has: a level that it does not tell of is
/// off where it has the component.
std::optional<std::string> valueOf(const ServerFacts& facts, const ServerFact& fact)
{
    if (const auto known = facts.find(fact); known != facts.end()) return known->second;
    if (fact.kind != FactKind::level) return {};
    const std::string component = fact.name.substr(0, fact.name.rfind(':'));
    if (facts.count({FactKind::flags, component}) == 0) return {};
    return "off";
}

/// What stands on either side, in the order of the facts.
std::vector<Difference> comparedWith(const ServerFacts& a, const ServerFacts& b)
{
    std::set<ServerFact> all;
    for (const ServerFacts* one : {&a, &b})
        for (const auto& entry : *one) all.insert(entry.first);
    std::vector<Difference> list;
    for (const ServerFact& fact : all) list.push_back({fact, valueOf(a, fact), valueOf(b, fact)});
    return list;
}

std::string countText(std::size_t differences)
{
    if (differences == 0) return "nothing differs";
    return std::to_string(differences) + (differences == 1 ? " thing differs" : " things differ");
}

class DiffCommand final : public Command {
public:
    std::string name() const override { return "diff"; }

    std::string summary() const override
    {
        return "Show what of two sites' traces and settings differs";
    }

    std::string explanation() const override
    {
        return "It compares the servers' versions, the folders and processes in their registries, "
               "trace\n"
               "levels by component and their defaults, macro traces, settings and the language "
               "of\n"
               "events, and changes neither site. What one of them lacks is shown as a -. The exit "
               "status\n"
               "is 0 whether or not something differs; with --exit-code it is 1 where something "
               "does.\n\n"
               "  orvandiag diff ~/server-that-works ~/server-that-does-not\n"
               "  orvandiag --json diff SITE_A SITE_B --all";
    }

    void declare(Arguments& arguments) override
    {
        arguments.add("SITE_A", siteA_, "the folder of a site")
            .completes(Values::folders)
            .required();
        arguments.add("SITE_B", siteB_, "the folder of the site to compare it with")
            .completes(Values::folders)
            .required();
        arguments.addFlag("--all", all_, "show what is the same, too");
        arguments.addFlag("--exit-code", exitCode_, "end with status 1 when something differs");
    }

    void run(const GlobalOptions& options, Output& output) override
    {
        const auto compared =
            comparedWith(factsOfSite(options, siteA_), factsOfSite(options, siteB_));
        std::size_t differences = 0;
        std::vector<Difference> shown;
        for (const Difference& one : compared) {
            if (!one.same()) ++differences;
            if (all_ || !one.same()) shown.push_back(one);
        }
        if (output.json())
            printJson(output, shown);
        else
            printTable(output, shown);
        if (exitCode_ && differences > 0) {
            output.finish();
            throw CommandFailure(countText(differences));
        }
        if (!output.json()) output.message(countText(differences));
    }

private:
    /// What stands in the way says at which of the two.
    static ServerFacts factsOfSite(GlobalOptions options, const std::string& site)
    try {
        options.site = site;
        OpenTool tool(options, ToolUse::look);
        tool.requireDatabase();
        ServerFacts facts = factsOf(tool);
        tool.close();
        return facts;
    } catch (const CommandFailure& failure) {
        throw CommandFailure(placed(site, failure.what()));
    } catch (const RunTimeError& error) {
        throw CommandFailure(placed(site, error.description()));
    }

    static std::string placed(const std::string& site, const std::string& why)
    {
        return why.find(site) == std::string::npos ? site + ": " + why : why;
    }

    static void printJson(Output& output, const std::vector<Difference>& list)
    {
        const auto json = [](const std::optional<std::string>& value) {
            return value ? Json(*value) : Json();
        };
        Json all = Json::array();
        for (const Difference& one : list)
            all.push_back({{"what", wordOf(one.fact.kind)},
                           {"name", one.fact.name},
                           {"a", json(one.a)},
                           {"b", json(one.b)}});
        output.value(all);
    }

    void printTable(Output& output, const std::vector<Difference>& list) const
    {
        Table table({"What", "Name", siteA_, siteB_});
        for (const Difference& one : list)
            table.row({std::string(wordOf(one.fact.kind)), one.fact.name, one.a.value_or("-"),
                       one.b.value_or("-")});
        output.text(table.text());
    }

    std::string siteA_;
    std::string siteB_;
    bool all_ = false;
    bool exitCode_ = false;
};

} // namespace

std::unique_ptr<Command> makeDiffCommand()
{
    return std::make_unique<DiffCommand>();
}

} // namespace cli
