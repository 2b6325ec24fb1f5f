#include "backends/site/database/site_database.h"
#include "controls/tree_view.h"
#include "core/utility.h"
#include "support/test_tool.h"
#include "traces/micro_traces.h"

#include <benchmark/benchmark.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <string>

namespace fs = std::filesystem;

namespace {

constexpr int components = 300;
constexpr int levels = 32;

std::string nameOf(int component)
{
    return "Component" + std::to_string(component);
}

/// A directory database with a grid of `components`, and scripts for the sqlite3 program.
class Grid {
public:
    Grid()
    {
        fs::remove_all(folder_);
        fs::create_directories(folder_);
        std::ofstream script(path("grid.sql"));
        script << ".read " ORVAN_DATABASE_SCHEMA "\nBEGIN;\n";
        for (int number = 0; number < components; ++number)
            script << "INSERT INTO tbl_LoggerDiagnosticGrid VALUES('id-" << number << "','"
                   << nameOf(number) << "',5,1);\n";
        script << "COMMIT;\n";
        script.close();
        run("grid.sql");
    }
    ~Grid() { fs::remove_all(folder_); }

    std::string database() const { return path("grid.sqlite"); }
    std::string path(const std::string& name) const { return (folder_ / name).string(); }

    /// One run of the sqlite3 program over a script.
    void run(const std::string& script) const
    {
        const std::string command =
            "sqlite3 " + database() + " < " + path(script) + " > " + path("output");
        if (std::system(command.c_str()) != 0) throw std::runtime_error("sqlite3 failed");
    }

private:
    fs::path folder_ = fs::temp_directory_path() / "orvan_micro_trace_benchmark";
};

/// A tool whose directory database is the grid; all else is in memory.
struct GridTool {
    explicit GridTool(const Grid& grid)
        : database(grid.database()), platform{fakes.files,         fakes.registry,
                                              fakes.clock,         fakes.timeZone,
                                              fakes.eventReporter, fakes.eventLogExporter,
                                              fakes.processes,     fakes.workstation,
                                              fakes.module,        fakes.languages,
                                              fakes.desktop,       database,
                                              fakes.xml,           fakes.traceDatabases},
          context(platform)
    {
        initBitMasks(context);
        database.open("", "", "");
    }

    TestTool fakes;
    SiteDatabase database;
    Platform platform;
    ToolContext context;
};

std::string writeCall(int component, int word)
{
    return "INSERT INTO csp_LoggerDiagnosticGridModify(AuditAlias,AuditComponent,Name,ObjectId,"
           "Flags) VALUES('support','OrvanDiagnosticTool','" +
           nameOf(component) + "','id-" + std::to_string(component) + "'," + std::to_string(word) +
           ");\n";
}

/// The test of every level of every component, a query each.
void testEveryLevel(benchmark::State& state)
{
    const Grid grid;
    GridTool tool(grid);
    for (auto _ : state)
        for (int component = 0; component < components; ++component)
            for (int level = 0; level < levels; ++level)
                benchmark::DoNotOptimize(
                    mdlTraces::isTraceLevelSet(tool.context, level, nameOf(component)));
    state.SetItemsProcessed(state.iterations() * components * levels);
}

void sqlite3RunsAsManyQueries(benchmark::State& state)
{
    const Grid grid;
    std::ofstream script(grid.path("queries.sql"));
    for (int component = 0; component < components; ++component)
        for (int level = 0; level < levels; ++level)
            script << "SELECT Flags FROM vw_LoggerDiagnosticGrid WHERE Name = '"
                   << nameOf(component) << "';\n";
    script.close();
    for (auto _ : state) grid.run("queries.sql");
    state.SetItemsProcessed(state.iterations() * components * levels);
}

/// The whole operation with another level ticked each time, so that every component is read for its
/// flags and its identity, written, and written again with its default flags.
void changeEveryComponent(benchmark::State& state)
{
    const Grid grid;
    GridTool tool(grid);
    TreeView tree;
    for (int component = 0; component < components; ++component) {
        TreeNode& root = tree.add("Text (" + nameOf(component) + ")");
        for (int level = 0; level < levels; ++level)
            tree.addChild(root, (level < 10 ? "0" : "") + std::to_string(level) + "  text");
    }
    int ticked = 2;
    for (auto _ : state) {
        for (TreeNode* root : tree.roots()) {
            TreeNode* node = root->child();
            for (int level = 0; level < levels; ++level, node = node->next())
                node->setChecked(level == ticked);
        }
        ticked = ticked == 2 ? 3 : 2;
        mdlTraces::configureMicroTrace(tool.context, tree);
    }
    if (!tool.fakes.failures().empty()) state.SkipWithError("the operation failed");
    state.SetItemsProcessed(state.iterations() * components * 4);
}

void sqlite3RunsAsManyQueriesAndUpdates(benchmark::State& state)
{
    const Grid grid;
    std::ofstream script(grid.path("updates.sql"));
    for (int component = 0; component < components; ++component) {
        script << "SELECT Flags FROM vw_LoggerDiagnosticGrid WHERE Name = '" << nameOf(component)
               << "';\nSELECT ObjectId FROM vw_LoggerDiagnosticGrid WHERE Name = '"
               << nameOf(component) << "';\n"
               << writeCall(component, 4) << writeCall(component, 5);
    }
    script.close();
    for (auto _ : state) grid.run("updates.sql");
    state.SetItemsProcessed(state.iterations() * components * 4);
}

} // namespace

BENCHMARK(testEveryLevel)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(sqlite3RunsAsManyQueries)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(changeEveryComponent)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(sqlite3RunsAsManyQueriesAndUpdates)->Unit(benchmark::kMillisecond)->UseRealTime();
