#include "hosts/cli/arguments.h"
#include "hosts/cli/commands/commands.h"
#include "hosts/cli/open_tool.h"
#include "hosts/cli/terminal/output.h"
#include "hosts/common/health/examination.h"
#include "hosts/common/health/health_sentences.h"

namespace cli {

namespace {

/// "1 needed thing is not in order", "3 needed things are not in order".
std::string notInOrder(std::size_t count, const std::string& kind)
{
    return std::to_string(count) + " " + kind + (count == 1 ? " thing is" : " things are") +
           " not in order";
}

/// What is needed and not in order, and how much of it could not be looked at.
std::string summaryOf(const std::vector<Finding>& findings)
{
    std::size_t unseen = 0;
    for (const Finding& finding : findings)
        if (finding.needed && finding.report.state == HealthState::unknown) ++unseen;
    const std::size_t lacks = neededLacks(findings) - unseen;
    std::string text = lacks > 0 ? notInOrder(lacks, "needed") : "";
    if (unseen > 0)
        text += (text.empty() ? "" : ", and ") + std::to_string(unseen) +
                (unseen == 1 ? " needed thing" : " needed things") + " could not be looked at";
    return text;
}

std::string nameOf(const Finding& finding)
{
    return std::string(finding.subject) + (finding.needed ? "" : " (useful)");
}

/// "ok", "warning" for what is merely useful and lacks, "error" for what is needed.
const char* gravityOf(const Finding& finding)
{
    if (finding.well()) return "ok";
    return finding.needed ? "error" : "warning";
}

class DoctorCommand final : public Command {
public:
    std::string name() const override { return "doctor"; }

    std::string summary() const override
    {
        return "Check what the tool needs of the server, and say what to do";
    }

    std::string explanation() const override
    {
        return "It looks at the server as the tool does and changes nothing, not even a log or an\n"
               "event. Each thing is ok, missing, damaged, unusable (there, but out of reach) or\n"
               "unknown (it could not be looked at). The exit status is 1 when something that the\n"
               "tool needs is not ok; what is merely useful is marked so and leaves 0.\n\n"
               "  orvandiag doctor\n"
               "  orvandiag --json doctor";
    }

    void declare(Arguments&) override {}

    void run(const GlobalOptions& options, Output& output) override
    {
        const auto findings = health::examine([&options] { return serverToExamine(options); });
        if (output.json())
            output.value(shown(findings));
        else
            print(output, findings);
        if (neededLacks(findings) == 0) return;
        output.finish();
        throw CommandFailure(summaryOf(findings));
    }

private:
    static Json shown(const std::vector<Finding>& findings)
    {
        Json list = Json::array();
        for (const Finding& finding : findings) {
            const HealthReport& report = finding.report;
            list.push_back({{"check", finding.id},
                            {"state", gravityOf(finding)},
                            {"text", report.detail.text()},
                            {"subject", finding.subject},
                            {"needed", finding.needed},
                            {"condition", wordOf(report.state)},
                            {"remedy", report.remedy ? Json(report.remedy->text()) : Json()}});
        }
        return list;
    }

    static void print(Output& output, const std::vector<Finding>& findings)
    {
        Table table({"State", "What", "Found"});
        std::vector<std::string> remedies;
        std::size_t useful = 0;
        for (const Finding& finding : findings) {
            const HealthReport& report = finding.report;
            if (report.detail.pattern == healthSentences::afterServer) continue;
            table.row({std::string(wordOf(report.state)), nameOf(finding), report.detail.text()});
            if (report.remedy)
                remedies.push_back(std::string(finding.subject) + ": " + report.remedy->text());
            if (!finding.needed && !finding.well()) ++useful;
        }
        output.text(table.text());
        if (!remedies.empty()) {
            output.line("");
            output.line("What to do");
            for (const std::string& remedy : remedies) output.line("  " + remedy);
        }
        if (neededLacks(findings) > 0) return;
        output.line("");
        output.line(useful == 0 ? "Everything is in order."
                                : "All that is needed is in order; " +
                                      notInOrder(useful, "merely useful") + ".");
    }
};

} // namespace

std::unique_ptr<Command> makeDoctorCommand()
{
    return std::make_unique<DoctorCommand>();
}

} // namespace cli
