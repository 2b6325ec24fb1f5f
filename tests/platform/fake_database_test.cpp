#include "platform/database_contract.h"
#include "support/fakes/database/fake_database.h"

namespace {

/// A fake database as the contract wants a server.
class FakeServer {
public:
    FakeServer()
    {
        addRow("B", "id-B", std::int32_t{-2147483647 - 1}, 0);
        addRow("A", "id-A", 5, 1);
        addRow("O'Hara", "id-O", Null{}, 7);
        database_.withView("vw_Nothing", {"Name"});
        database_.withProcedure("csp_LoggerDiagnosticGridModify", {"@Name", "@ObjectId", "@Flags"},
                                [this](const FakeDatabase::Call& call) { modify(call); });
    }

    DatabaseConnection& connection() { return database_; }

    void loseServer()
    {
        database_.breakConnection();
        database_.unreachable();
    }
    void bringServerBack() { database_.unreachable(false); }

    void setFlags(const std::string& name, std::int32_t flags) { database_.setFlags(name, flags); }
    void addComponent(const std::string& name) { addRow(name, "id-" + name, 0, 0); }
    void removeComponent(const std::string& name) { database_.removeComponent(name); }

private:
    void addRow(const std::string& name, const std::string& objectId, Value flags,
                std::int32_t defaultFlags)
    {
        database_.withRow("vw_LoggerDiagnosticGrid", {{"Name", name},
                                                      {"ObjectId", objectId},
                                                      {"Flags", std::move(flags)},
                                                      {"DefaultFlags", defaultFlags}});
    }

    void modify(const FakeDatabase::Call& call)
    {
        const Value& flags = call.parameters.at("@Flags");
        if (flags == Value(13)) throw RunTimeError(-2147217900, "unlucky flags");
        database_.writeFlags(call.parameters.at("@ObjectId"), flags);
    }

    FakeDatabase database_;
};

INSTANTIATE_TYPED_TEST_SUITE_P(Fake, DatabaseContract, FakeServer);

} // namespace
