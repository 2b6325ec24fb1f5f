// Writes a trace database as a gather does, with the traces of a made-up busy server.
//
//     cabinet_benchmark_input MEGABYTES FILE

#include <array>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <string>

#include "backends/jet/jet_engine.h"
#include "backends/jet/schema/blank_database.h"

namespace {

constexpr std::array<const char*, 6> processes = {"RoCallMgr", "RoLogMgr",  "RoMsgStore",
                                                  "RoNotify",  "RoDirSync", "RoDbProxy"};
constexpr std::array<const char*, 10> components = {
    "CallControl", "MediaStream",  "Conversation", "Arbiter", "Routing",
    "Directory",   "MessageStore", "Notifier",     "Queue",   "Licence"};
constexpr std::array<const char*, 12> sentences = {"entering state ",
                                                   "leaving state ",
                                                   "event received, code ",
                                                   "port allocated: ",
                                                   "message submitted, size ",
                                                   "lookup finished, rows ",
                                                   "timer started, milliseconds ",
                                                   "retry number ",
                                                   "session opened for extension ",
                                                   "session closed, reason ",
                                                   "lock waited for ",
                                                   "buffer released at offset "};

/// Adds the rows of a busy server to a table, the same ones at each run.
class Traces {
public:
    explicit Traces(TraceRecordset& rows) : rows_(rows) {}

    void add()
    {
        clock_ += pick(40);
        const std::string process = processes[pick(processes.size())];
        const std::string source = std::to_string(5000 + pick(40));
        const std::string component = components[pick(components.size())];
        const std::uint32_t level = pick(20);
        rows_.addNew();
        rows_.field("Date").setText(clockText());
        rows_.field("Process").setText(process);
        rows_.field("Source").setText(source);
        rows_.field("TraceNumber").setNumber(static_cast<std::int32_t>(1000 + pick(300)));
        rows_.field("Component").setText(component);
        rows_.field("TraceLevel").setNumber(static_cast<std::int32_t>(level));
        rows_.field("Port").setText(std::to_string(pick(96)));
        rows_.field("Trace").setText(trace(component));
        rows_.field("CallId").setText(call());
        rows_.field("Highlight").setNumber(0);
        rows_.field("qrvIndex")
            .setText(component + "_" + process + "_" + std::to_string(level) + "_" + source);
        rows_.update();
    }

private:
    std::uint32_t pick(std::size_t count) { return static_cast<std::uint32_t>(random_() % count); }

    std::string clockText() const
    {
        std::array<char, 40> text{};
        std::snprintf(text.data(), text.size(), "10/8/2005 %02u:%02u:%02u:%03u",
                      clock_ / 3'600'000 % 24, clock_ / 60'000 % 60, clock_ / 1000 % 60,
                      clock_ % 1000);
        return text.data();
    }

    // A call is traced many times before the next one takes its port.
    std::string call()
    {
        std::uint32_t& number = calls_[pick(calls_.size())];
        if (number == 0 || pick(50) == 0) number = static_cast<std::uint32_t>(random_());
        std::array<char, 40> text{};
        std::snprintf(text.data(), text.size(), "%08X%08X", number, number * 2654435761U);
        return text.data();
    }

    std::string trace(const std::string& component)
    {
        std::string text = "[Thread " + std::to_string(1000 + pick(60)) + "] C" + component;
        text += std::string("::Handle") + components[pick(components.size())] + "() ";
        for (std::uint32_t parts = 1 + pick(3); parts > 0; --parts) {
            text += sentences[pick(sentences.size())];
            text += std::to_string(pick(pick(4) == 0 ? 1'000'000 : 200)) + "; ";
        }
        return text;
    }

    TraceRecordset& rows_;
    std::mt19937 random_{20051008};
    std::array<std::uint32_t, 96> calls_{};
    std::uint32_t clock_ = 0;
};

void makeDatabase(std::uintmax_t bytes, const std::string& path)
{
    std::ifstream schema(ORVAN_TRACE_SCHEMA);
    const std::string text(std::istreambuf_iterator<char>(schema), {});
    std::ofstream(path, std::ios::binary) << jet::blankDatabase(jet::parseSchema(text));

    jet::JetEngine engine([](const std::string& name) { return name; });
    const auto database = engine.openDatabase(path);
    const auto rows = database->openRecordset("tblTraces");
    Traces traces(*rows);
    constexpr int rowsBetweenLooks = 1000;
    while (std::filesystem::file_size(path) < bytes)
        for (int row = 0; row < rowsBetweenLooks; ++row) traces.add();
    rows->close();
    database->close();
}

} // namespace

int main(int argumentCount, char** arguments)
{
    if (argumentCount != 3) {
        std::fputs("usage: cabinet_benchmark_input MEGABYTES FILE\n", stderr);
        return 2;
    }
    try {
        constexpr std::uintmax_t megabyte = 1'000'000;
        makeDatabase(std::strtoull(arguments[1], nullptr, 10) * megabyte, arguments[2]);
        return 0;
    } catch (const std::exception& error) {
        std::fprintf(stderr, "cabinet_benchmark_input: %s\n", error.what());
        return 1;
    }
}
