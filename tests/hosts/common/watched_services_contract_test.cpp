#include "hosts/common/watched_services.h"

#include "platform/file_system_contract.h"
#include "platform/text_stream_contract.h"
#include "platform/trace_database_contract.h"
#include "support/test_tool.h"

#include <functional>

namespace {

/// The services of a tool under watch, as the contracts want a machine: who watches changes
/// nothing.
class WatchedMachine {
public:
    WatchedMachine()
    {
        tool_.files.withDrive("D:", {1'000'000, 2'000'000});
        tool_.traceDatabases.with(path()).damaged(damagedPath());
    }

    FileSystem& files() { return watched_.platform().files; }
    TraceDatabaseEngine& engine() { return watched_.platform().traceDatabases; }

    void makeReadOnly(const std::string& file) { tool_.files.readOnly(file); }
    void withRoomFor(std::int64_t bytes, const std::function<void()>& work)
    {
        tool_.files.roomFor(bytes);
        work();
        tool_.files.roomForAll();
    }

    std::string path() const { return "C:\\Temp\\trace.mdb"; }
    std::string missingPath() const { return "C:\\Temp\\none.mdb"; }
    std::string damagedPath() const { return "C:\\Temp\\damaged.mdb"; }
    std::vector<FakeTraceRow> rows(const std::string& table) const
    {
        return tool_.traceDatabases.rows(table);
    }

private:
    TestTool tool_;
    WatchedServices watched_{tool_.platform};
};

INSTANTIATE_TYPED_TEST_SUITE_P(Watched, FileSystemContract, WatchedMachine);
INSTANTIATE_TYPED_TEST_SUITE_P(Watched, TextStreamContract, WatchedMachine);
INSTANTIATE_TYPED_TEST_SUITE_P(Watched, TraceDatabaseContract, WatchedMachine);

} // namespace
