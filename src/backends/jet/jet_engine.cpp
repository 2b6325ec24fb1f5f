#include "backends/jet/jet_engine.h"

#include "backends/jet/jet_recordset.h"
#include "runtime/run_time_error.h"

namespace jet {

namespace {

class JetDatabase final : public TraceDatabase {
public:
    explicit JetDatabase(std::shared_ptr<Session> session) : session_(std::move(session)) {}

    ~JetDatabase() override { session_->database.reset(); }

    std::unique_ptr<TraceRecordset> openRecordset(std::string_view name) override
    {
        requireOpen();
        const TableDefinition* table = session_->database->find(name);
        if (table == nullptr)
            throw RunTimeError(traceDatabaseErrors::noSuchTable,
                               "Cannot find the input table or query '" + std::string(name) + "'.");
        return std::make_unique<JetRecordset>(session_, *table);
    }

    void close() override
    {
        requireOpen();
        session_->database.reset();
    }

private:
    void requireOpen() const
    {
        if (!session_->database)
            throw RunTimeError(traceDatabaseErrors::objectClosed,
                               "Object invalid or no longer set.");
    }

    std::shared_ptr<Session> session_;
};

} // namespace

JetEngine::JetEngine(Locate locate, const CodePage& codePage)
    : locate_(std::move(locate)), codePage_(codePage)
{}

std::unique_ptr<TraceDatabase> JetEngine::openDatabase(const std::string& path)
{
    return std::make_unique<JetDatabase>(std::make_shared<Session>(locate_(path), codePage_));
}

} // namespace jet
