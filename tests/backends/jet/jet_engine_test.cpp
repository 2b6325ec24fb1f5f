#include "backends/jet/scratch_database.h"
#include "platform/trace_database_contract.h"

namespace {

class JetMachine {
public:
    TraceDatabaseEngine& engine() { return engine_; }
    std::string path() const { return scratch_.path().string(); }
    std::string missingPath() const { return path() + ".none"; }
    std::vector<TextRow> rows(const std::string& table) const { return scratch_.rows(table); }

private:
    ScratchDatabase scratch_;
    jet::JetEngine engine_ = machineEngine();
};

INSTANTIATE_TYPED_TEST_SUITE_P(Jet, TraceDatabaseContract, JetMachine);

} // namespace
