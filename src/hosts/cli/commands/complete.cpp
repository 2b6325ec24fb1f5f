#include "hosts/cli/arguments.h"
#include "hosts/cli/commands/commands.h"
#include "hosts/cli/manual/completion.h"
#include "hosts/cli/manual/live_values.h"
#include "hosts/cli/manual/shell_line.h"
#include "hosts/cli/reading/row_cells.h"
#include "hosts/cli/terminal/output.h"
#include "runtime/text.h"

namespace cli {

namespace {

using Names = std::vector<std::string>;

/// What a shell is told to do with the candidates, which stand behind it on lines of their own.
struct Answer {
    const char* way = "words"; ///< "parts" want no blank behind; "folders", "files" or these, too
    Names candidates;
};

/// For the scripts of the shells, which ask it at each Tab. It says nothing of what goes wrong:
/// nobody could read it where it would stand.
class CompleteCommand final : public Command {
public:
    std::string name() const override { return "complete"; }

    std::string summary() const override { return "Print what could stand at the end of a line"; }

    bool hidden() const override { return true; }

    bool takesSettings() const override { return false; } // it says nothing of their mistakes

    void declare(Arguments& arguments) override
    {
        arguments_ = arguments;
        arguments.add("SHELL", shell_, "the shell").required();
        arguments.add("LINE", line_, "the command line up to the cursor").required();
        arguments.add("REPLACED", replaced_, "the end of it that a candidate replaces");
    }

    void run(const GlobalOptions& options, Output& output) override
    {
        const Answer answer = answerTo(options);
        if (output.json()) {
            output.value({{"way", answer.way}, {"candidates", answer.candidates}});
            return;
        }
        output.line(answer.way);
        for (const auto& candidate : answer.candidates) output.line(candidate);
    }

private:
    Answer answerTo(GlobalOptions options) const
    {
        const ShellLine line = readShellLine(line_, replaced_);
        if (line.words.empty()) return {};
        const Place place = placeOf(describeCommands(arguments_.program()), line.words, line.last);
        if (place.site) options.site = place.site;
        if (place.toolFolder) options.toolFolder = *place.toolFolder;
        Answer answer;
        Names known = place.words;
        if (place.values) addValues(options, place, known, answer);
        for (auto& candidate : beginningWith(known, place.typed)) {
            candidate = place.before + candidate;
            if (shell_ != "bash")
                answer.candidates.push_back(candidate);
            else if (beginsWith(candidate, line.kept))
                answer.candidates.push_back(
                    quotedForBash(candidate.substr(line.kept.size()), line.quote));
        }
        return answer;
    }

    static void addValues(const GlobalOptions& options, const Place& place, Names& known,
                          Answer& answer)
    {
        switch (*place.values) {
        case Values::folders:
            answer.way = "folders";
            return;
        case Values::files:
            answer.way = "files";
            return;
        case Values::columns:
            answer.way = "parts";
            addColumns(place.typed, known);
            return;
        case Values::countedColumns:
            known = countedColumnNames();
            return;
        case Values::logsAndFiles:
            answer.way = "files";
            break;
        case Values::componentsAndLevels:
            if (place.typed.find(':') == std::string::npos) answer.way = "parts";
            break;
        default:
            break;
        }
        const Names live = liveValues(options, *place.values, place.typed);
        known.insert(known.end(), live.begin(), live.end());
    }

    /// A list's last name, behind those that are there.
    static void addColumns(const std::string& typed, Names& known)
    {
        const std::string before = typed.substr(0, typed.rfind(',') + 1);
        for (const auto& name : columnNamesOfRows()) known.push_back(before + name);
    }

    Arguments arguments_;
    std::string shell_;
    std::string line_;
    std::string replaced_;
};

} // namespace

std::unique_ptr<Command> makeCompleteCommand()
{
    return std::make_unique<CompleteCommand>();
}

} // namespace cli
