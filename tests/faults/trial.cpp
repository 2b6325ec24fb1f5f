#include "faults/trial.h"

#include "backends/jet/reader.h"
#include "runtime/run_time_error.h"

#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <cstdio>
#include <mutex>
#include <regex>
#include <sstream>
#include <stdexcept>
#include <sys/wait.h>
#include <thread>

namespace fs = std::filesystem;

namespace {

struct Answer {
    int status;
    std::string text;
};

Answer answerOf(const std::string& command)
{
    FILE* const pipe = popen((command + " 2>&1").c_str(), "r");
    std::string text;
    char part[4096];
    while (const std::size_t size = fread(part, 1, sizeof part, pipe)) text.append(part, size);
    const int state = pclose(pipe);
    return {WIFEXITED(state) ? WEXITSTATUS(state) : -1, text};
}

/// How many rows a trace database holds, or what is wrong with it.
std::string rowsOf(const fs::path& file)
{
    const std::string image = contentOf(file);
    try {
        const jet::Reader reader(image);
        if (const auto problems = reader.problems(); !problems.empty()) return problems.front();
        int count = 0;
        for (const auto& table : reader.tables())
            for (auto rows = reader.rows(table); rows.next();) ++count;
        return std::to_string(count) + " rows";
    } catch (const RunTimeError& error) {
        return "can't be read: " + error.description();
    }
}

/// The events of others than the tool, which notes events of its own as it runs; the line of one
/// that was cut short has no fields.
std::string eventsOfOthers(const std::string& csv)
{
    std::istringstream lines(csv);
    std::string all;
    for (std::string line; std::getline(lines, line);)
        if (line.find("OrvanDiagnosticTool_MC") == std::string::npos && !line.starts_with(",,,,,"))
            all += line + "\n";
    return all;
}

/// What a gathered file comes to, in a form that is the same for every sound run.
std::string essenceOf(const fs::path& file)
{
    const std::string ending = file.extension();
    if (ending == ".csv") return eventsOfOthers(contentOf(file));
    if (ending == ".mdb") return rowsOf(file);
    if (ending == ".cab") {
        const auto [status, text] = answerOf("cabextract -t '" + file.string() + "'");
        std::size_t sound = 0;
        for (auto at = text.find(" OK "); at != std::string::npos; at = text.find(" OK ", at + 1))
            ++sound;
        return status == 0 ? std::to_string(sound) + " files" : "not a cabinet: " + text;
    }
    return contentOf(file);
}

std::map<std::string, std::string> madeIn(const fs::path& folder, const Change& change)
{
    if (!fs::exists(folder)) return {};
    if (change.makesSample) return Box::filesOf(folder);
    static const std::regex stamp("_[0-9]{8}_[0-9]{6}\\.(mdb|cab)");
    // Of results that two runs made, the later ones count; their names are in order of time.
    std::map<std::string, fs::directory_entry> entries;
    for (const auto& entry : fs::directory_iterator(folder))
        entries[entry.path().filename()] = entry;
    std::map<std::string, std::string> made;
    for (const auto& [name, entry] : entries)
        made[std::regex_replace(name, stamp, ".$1")] =
            entry.is_regular_file() ? essenceOf(entry.path()) : "folder";
    return made;
}

std::string valueIn(const Kept& kept, const std::string& name)
{
    const auto found = kept.find(name);
    return found == kept.end() ? "nothing" : found->second;
}

/// The first value that is not the one of `wanted`; empty when all are.
std::string differenceOf(const Kept& wanted, const Kept& now)
{
    for (const Kept* side : {&wanted, &now})
        for (const auto& [name, value] : *side)
            if (!isNotedAtStart(name) && valueIn(wanted, name) != valueIn(now, name))
                return name + ": " + valueIn(wanted, name).substr(0, 200) + " / " +
                       valueIn(now, name).substr(0, 200);
    return "";
}

/// Whether a value is one that the change goes through on its way.
bool isPassing(const std::string& name, const std::string& value, const Change& change)
{
    for (const auto& [part, expression] : change.passing)
        if (name.find(part) != std::string::npos && std::regex_match(value, std::regex(expression)))
            return true;
    return false;
}

/// The first value that is neither old nor new.
std::string strangeValue(const Trial& trial, const Kept& now)
{
    for (const Kept* side : {&trial.outcome->old, &trial.outcome->fresh, &now}) {
        for (const auto& [name, value] : *side) {
            const std::string was = valueIn(trial.outcome->old, name);
            const std::string is = valueIn(now, name);
            if (is != was && is != valueIn(trial.outcome->fresh, name) &&
                !isPassing(name, is, *trial.change))
                return name + ": " + was + " became " + is;
        }
    }
    return "";
}

std::string incompleteness(const Trial& trial, const Box& box)
{
    if (!trial.change->makesSample)
        if (auto kept = differenceOf(trial.outcome->fresh, box.kept(box.site)); !kept.empty())
            return kept;
    auto made = madeIn(box.to, *trial.change);
    // What a gather works with and could not remove again is no lack.
    for (const char* tool : {"cabmaker.exe", "ZMK.DDF", "disk1", "setup.inf", "setup.rpt"})
        if (!trial.outcome->made.contains(tool)) made.erase(tool);
    return differenceOf(trial.outcome->made, made);
}

/// What is wrong with what a run left that said it is not done, or that could say nothing.
std::string damage(const Trial& trial, const Box& box)
{
    const auto made = madeIn(box.to, *trial.change);
    if (trial.change->makesSample)
        return made.empty() || made == trial.outcome->made ? "" : "half a sample was left";
    if (auto strange = strangeValue(trial, box.kept(box.site)); !strange.empty()) return strange;
    for (const auto& [name, essence] : made) {
        const bool database = name.ends_with(".mdb") && !essence.ends_with(" rows");
        const bool cabinet = name.ends_with(".cab") && !essence.ends_with(" files");
        if (database || cabinet) return name + ": " + essence;
    }
    return "";
}

bool isKill(const std::string& plan)
{
    return plan.find(" signal ") != std::string::npos || plan.find(" tear ") != std::string::npos;
}

bool endsByPlan(const Run& run, const std::string& plan)
{
    return isKill(plan) && run.status == 128 + std::stoi(plan.substr(plan.rfind(' ')));
}

/// Runs a gather once more where a kill left its results, as soon as the cabinet maker of the one
/// that was killed has ended.
Run runAgain(const Change& change, const Box& box)
{
    Run again;
    for (int tries = 0; tries < 100; ++tries) {
        again = box.run(change, "");
        if (again.messages.find("another gather is writing") == std::string::npos) break;
        std::this_thread::sleep_for(std::chrono::milliseconds(50));
    }
    return again;
}

std::string problemOfRun(const Trial& trial, const Box& box, const Run& run)
{
    if (!endsByPlan(run, trial.plan)) {
        if (run.status != 0 && run.status != 1) return "ended with " + std::to_string(run.status);
        if (run.status == 1 && run.messages.find("orvandiag: ") == std::string::npos)
            return "failed without a word";
        if (run.status == 0 && run.words.empty()) return "said nothing";
    }
    if (auto stray = box.strayChanges(); !stray.empty()) return stray;
    if (auto what = damage(trial, box); !what.empty()) return "damaged: " + what;
    if (run.status != 0) return "";
    const std::string missing = incompleteness(trial, box);
    return missing.empty() ? "" : "said done, and is not: " + missing;
}

} // namespace

Outcome outcomeOf(const Change& change, const Box& box)
{
    Outcome outcome;
    box.begin();
    outcome.old = box.kept(box.site);
    const Run run = box.run(change, "");
    if (run.status != 0) throw std::runtime_error(change.name + ": " + run.messages);
    outcome.fresh = box.kept(box.site);
    outcome.made = madeIn(box.to, change);
    for (int kind = 0; kind < callKinds; ++kind) outcome.calls[kind] = box.counts().calls[kind];
    return outcome;
}

std::string problemOf(const Trial& trial, const Box& box)
{
    box.begin();
    const Run run = box.run(*trial.change, trial.plan);
    std::string problem = problemOfRun(trial, box, run);
    if (!problem.empty()) return problem + "\n" + run.messages;
    if (run.status == 0) return "";
    if (!trial.change->gathers || !isKill(trial.plan)) {
        fs::remove_all(box.to.parent_path());
        fs::create_directory(box.to.parent_path());
    }
    const Run again = runAgain(*trial.change, box);
    if (again.status == 0) problem = incompleteness(trial, box);
    if (again.status != 0 || !problem.empty())
        return "does not serve afterwards: " + problem + "\n" + run.messages + again.messages;
    return "";
}

void runTrials(const std::vector<Trial>& trials)
{
    std::atomic<std::size_t> next = 0;
    std::atomic<int> wrong = 0;
    std::mutex telling;
    const auto work = [&] {
        const Box box;
        for (std::size_t at = next++; at < trials.size(); at = next++) {
            const std::string problem = problemOf(trials[at], box);
            if (problem.empty() || ++wrong > 50) continue;
            const std::lock_guard lock(telling);
            ADD_FAILURE() << trials[at].change->name << ", " << trials[at].plan << ": " << problem;
        }
    };
    std::vector<std::thread> workers;
    for (unsigned i = 0; i < std::max(2U, std::thread::hardware_concurrency()); ++i)
        workers.emplace_back(work);
    for (auto& worker : workers) worker.join();
    std::printf("%zu trials, %d of them wrong\n", trials.size(), wrong.load());
}
