// count_components fill DATABASE ROWS : adds so many rows to a blank trace database, as a gather
// does. count_components DATABASE : how many rows each component has.

#include "backends/jet/jet_engine.h"
#include "backends/jet/jet_trace_reader.h"
#include "system/root_folder.h"
#include "timeline/sources/kept_bytes.h"
#include "timeline/sources/trace_database_source.h"

#include <cstdlib>
#include <iostream>
#include <map>
#include <string>

namespace {

void fill(const std::string& path, long rows)
{
    jet::JetEngine engine([](const std::string& each) { return each; });
    const auto database = engine.openDatabase(path);
    const auto traces = database->openRecordset("tblTraces");
    for (long row = 0; row < rows; ++row) {
        traces->addNew();
        const std::string second = std::to_string(10 + row / 1000 % 50);
        traces->field("Date").setUtf8("2/20/2025 15:" + second + ":" + second + ":" +
                                      std::to_string(100 + row % 900));
        traces->field("Process").setUtf8("KoCSMgr");
        traces->field("Source").setUtf8("Port" + std::to_string(row % 48));
        traces->field("TraceNumber").setNumber(static_cast<std::int32_t>(row));
        traces->field("Component").setUtf8("Component" + std::to_string(row * 7 % 40));
        traces->field("TraceLevel").setNumber(static_cast<std::int32_t>(row % 24));
        traces->field("Trace").setUtf8("a line of a log is some hundred and forty bytes long, of "
                                       "which this is the text that tells of row " +
                                       std::to_string(row));
        traces->field("Highlight").setNumber(0);
        traces->field("qrvIndex")
            .setUtf8("Component" + std::to_string(row * 7 % 40) + "_KoCSMgr_3_Port");
        traces->update();
    }
}

void count(const std::string& path)
{
    using namespace timeline;
    const auto file = std::make_shared<KeptFile>(openMachineFile(path, forReading, 53));
    SourceFacts facts;
    facts.name = path;
    TraceDatabaseSource source(facts,
                               jet::JetTraceReader().open(std::make_shared<KeptBytes>(file)));
    SourceRows rows;
    Progress progress;
    source.read(Filter(), rows, progress);
    std::map<std::uint16_t, std::size_t> counts;
    for (const IndexRow& row : rows) ++counts[row.component];
    for (const auto& [component, found] : counts)
        std::cout << source.components().text(component) << " " << found << "\n";
}

} // namespace

int main(int argc, char** argv)
{
    const std::string first = argc > 1 ? argv[1] : "";
    if (first == "fill" && argc == 4)
        fill(argv[2], std::atol(argv[3]));
    else
        count(first);
}
