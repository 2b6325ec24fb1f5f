#include "platform/trace_database_contract.h"
#include "support/fakes/trace_database/fake_trace_database.h"

namespace {

class MachineOfTraces {
public:
    MachineOfTraces() { engine_.with(path()).damaged(damagedPath()); }

    TraceDatabaseEngine& engine() { return engine_; }
    std::string path() const { return "C:\\Temp\\trace.mdb"; }
    std::string missingPath() const { return "C:\\Temp\\none.mdb"; }
    std::string damagedPath() const { return "C:\\Temp\\damaged.mdb"; }
    std::vector<FakeTraceRow> rows(const std::string& table) const { return engine_.rows(table); }

private:
    FakeTraceDatabaseEngine engine_;
};

INSTANTIATE_TYPED_TEST_SUITE_P(Fake, TraceDatabaseContract, MachineOfTraces);

TEST(FakeTraceDatabase, FailsAtTheCallThatItIsToldTo)
{
    FakeTraceDatabaseEngine engine;
    engine.failing("update tblTraces", 2, 3026);
    const auto database = engine.openDatabase("C:\\any.mdb");
    const auto recordset = database->openRecordset("tblTraces");
    recordset->addNew();
    recordset->update();
    recordset->addNew();
    EXPECT_EQ(3026, errorOf([&] { recordset->update(); }));
    EXPECT_EQ(1u, engine.rows("tblTraces").size());
    recordset->update();
    EXPECT_EQ(2u, engine.rows("tblTraces").size());
}

} // namespace
