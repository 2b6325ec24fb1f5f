#include "support/fakes/trace_database/fake_trace_database.h"

#include "runtime/run_time_error.h"
#include "runtime/text.h"
#include "support/fakes/trace_database/fake_trace_recordset.h"

#include <algorithm>
#include <utility>

namespace {

using namespace traceDatabaseErrors;

class FakeTraceDatabase final : public TraceDatabase {
public:
    explicit FakeTraceDatabase(std::shared_ptr<FakeTraceState> state)
        : state_(std::move(state)), opening_(++state_->lastOpening)
    {
        state_->presentOpening = opening_;
    }
    ~FakeTraceDatabase() override
    {
        if (state_->presentOpening == opening_) state_->presentOpening = 0;
    }

    std::unique_ptr<TraceRecordset> openRecordset(std::string_view table) override
    {
        requireOpen();
        for (const auto& [name, stored] : state_->tables) {
            if (!equalIgnoringCase(name, table)) continue;
            state_->note("openRecordset " + name);
            return openFakeTraceTable(state_, name);
        }
        throw RunTimeError(noSuchTable, "no such table");
    }

    void close() override
    {
        requireOpen();
        state_->note("close");
        state_->presentOpening = 0;
    }

private:
    void requireOpen() const
    {
        if (state_->presentOpening != opening_) throw RunTimeError(objectClosed, "closed");
    }

    std::shared_ptr<FakeTraceState> state_;
    int opening_;
};

} // namespace

FakeTraceDatabaseEngine::FakeTraceDatabaseEngine() : state_(std::make_shared<FakeTraceState>())
{
    state_->tables = gatherTables();
}

FakeTraceDatabaseEngine& FakeTraceDatabaseEngine::with(const std::string& path)
{
    paths_.push_back(path);
    return *this;
}

FakeTraceDatabaseEngine& FakeTraceDatabaseEngine::damaged(const std::string& path)
{
    damaged_.push_back(path);
    return *this;
}

FakeTraceDatabaseEngine& FakeTraceDatabaseEngine::failing(const std::string& call, int nth,
                                                          int number)
{
    state_->failing = call;
    state_->countdown = nth;
    state_->number = number;
    return *this;
}

const std::vector<FakeTraceRow>& FakeTraceDatabaseEngine::rows(const std::string& table) const
{
    return state_->tables.at(table).rows;
}

std::unique_ptr<TraceDatabase> FakeTraceDatabaseEngine::openDatabase(const std::string& path)
{
    if (std::find(damaged_.begin(), damaged_.end(), path) != damaged_.end())
        throw RunTimeError(unknownFormat, "not a database");
    const bool known =
        paths_.empty() || std::find(paths_.begin(), paths_.end(), path) != paths_.end();
    if (!known) throw RunTimeError(fileNotFound, "no such file");
    if (state_->presentOpening != 0) throw RunTimeError(fileInUse, "already open");
    state_->note("openDatabase");
    opened_.push_back(path);
    return std::make_unique<FakeTraceDatabase>(state_);
}
