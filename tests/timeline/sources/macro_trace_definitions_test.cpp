#include "timeline/sources/macro_trace_definitions.h"

#include "backends/jet/jet_engine.h"
#include "backends/jet/jet_trace_reader.h"
#include "backends/xml/libxml_documents.h"
#include "platform/trace_rows.h"
#include "support/fakes/fake_clock.h"
#include "support/fakes/files/fake_file_system.h"

#include "support/places.h"
#include "support/temporary_folder.h"
#include "system/root_folder.h"
#include "timeline/sources/kept_bytes.h"

#include <gmock/gmock.h>

#include <filesystem>
#include <fstream>
#include <iterator>

namespace timeline {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

/// A database with a table of definition files.
class DefinitionTables final : public TraceTables {
public:
    using Files = std::vector<std::pair<std::string, std::string>>;

    explicit DefinitionTables(Files files) : files_(std::move(files)) {}

    const std::vector<TraceTable>& tables() const override { return tables_; }
    const std::vector<std::string>& damage() const override { return damage_; }
    std::unique_ptr<TraceRows> rows(const TraceTable&) const override
    {
        return std::make_unique<Rows>(files_);
    }

private:
    class Rows final : public TraceRows {
    public:
        explicit Rows(const Files& files) : files_(files) {}
        bool next() override { return ++row_ <= files_.size(); }
        std::uint64_t place() const override { return row_; }
        bool goTo(std::uint64_t) override { return false; }
        std::string_view text(std::size_t column) override
        {
            return column == 0 ? files_[row_ - 1].first : files_[row_ - 1].second;
        }
        std::int64_t number(std::size_t) override { return 0; }
        std::uint64_t done() const override { return row_; }
        std::uint64_t total() const override { return files_.size(); }

    private:
        const Files& files_;
        std::size_t row_ = 0;
    };

    Files files_;
    std::vector<TraceTable> tables_ = {{"tblMacroTraces", {"Name", "Data"}, 0}};
    std::vector<std::string> damage_;
};

struct Reading {
    FakeClock clock;
    FakeFileSystem files{clock};
    LibxmlDocuments xml{files};
    std::vector<std::string> troubles;

    MacroTraceDefinitions of(DefinitionTables::Files definitions)
    {
        return MacroTraceDefinitions::of(DefinitionTables(std::move(definitions)), xml, troubles);
    }
};

TEST(MacroTraceDefinitions, GiveTheComponentsAndLevelsOfEachTrace)
{
    Reading reading;
    const auto definitions = reading.of(
        {{"HT1.xml", "<GA NAME=\"Call Flow\"><TRACE NAME=\"Transfers\"><DIAG GROUP=\"Rules\">"
                     "<FLAG ID=\"2\"/><FLAG ID=\" 13x\"/><FLAG/></DIAG><DIAG GROUP=\"Calls\"/>"
                     "</TRACE><TRACE NAME=\"Basic\"/></GA>"}});
    ASSERT_THAT(definitions.all(), SizeIs(2));
    const MacroTraceDefinition* found = definitions.find("call flow - TRANSFERS");
    ASSERT_NE(nullptr, found);
    ASSERT_THAT(found->levels, SizeIs(2));
    EXPECT_EQ("Rules", found->levels[0].component);
    EXPECT_THAT(found->levels[0].levels, ElementsAre(2, 13));
    EXPECT_EQ("Calls", found->levels[1].component);
    EXPECT_THAT(found->levels[1].levels, IsEmpty());
    EXPECT_EQ(nullptr, definitions.find("Transfers"));
    EXPECT_THAT(reading.troubles, IsEmpty());
}

TEST(MacroTraceDefinitions, AreReadFromADatabaseAsAGatherStoresThem)
{
    const TemporaryFolder folder;
    const std::string path = folder / "gather.mdb";
    std::filesystem::copy_file(std::string(built::data) + "/blankWPNDB.mdb", path);
    {
        jet::JetEngine engine([](const std::string& each) { return each; });
        const auto database = engine.openDatabase(path);
        const auto table = database->openRecordset("tblMacroTraces");
        for (const char* name : {"HTCallFlow.xml", "HTSupport.xml"}) {
            std::ifstream file(std::string(checkout::data) + "/ZMKXML/" + name, std::ios::binary);
            table->addNew();
            table->field("Name").setUtf8(name);
            table->field("Data").setUtf8(std::string(std::istreambuf_iterator<char>(file), {}));
            table->update();
        }
    }
    Reading reading;
    const auto file = std::make_shared<KeptFile>(openMachineFile(path, forReading, 53));
    const auto tables = jet::JetTraceReader().open(std::make_shared<KeptBytes>(file));
    const auto definitions = MacroTraceDefinitions::of(*tables, reading.xml, reading.troubles);
    const MacroTraceDefinition* found = definitions.find("Call Flow - Basic Call Flow");
    ASSERT_NE(nullptr, found);
    ASSERT_THAT(found->levels, SizeIs(3));
    EXPECT_EQ("CallFlow", found->levels[0].component);
    EXPECT_THAT(found->levels[0].levels, ElementsAre(2, 3, 4, 23));
    EXPECT_THAT(reading.troubles, IsEmpty());
}

TEST(MacroTraceDefinitions, PassOverAFileThatIsNoneAndSaySo)
{
    Reading reading;
    const auto definitions =
        reading.of({{"HT1.xml", "<GA"}, {"HT2.xml", "<GA NAME=\"G\"><TRACE NAME=\"T\"/></GA>"}});
    EXPECT_NE(nullptr, definitions.find("G - T"));
    EXPECT_THAT(reading.troubles, ElementsAre("the macro traces of HT1.xml can't be read"));
}

} // namespace
} // namespace timeline
