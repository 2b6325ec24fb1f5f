#pragma once

#include "backends/odbc/procedure.h"
#include "platform/database.h"

#include <string>
#include <vector>

class OdbcDatabase;

/// A call of a stored procedure on a connection that outlives it.
class OdbcCommand final : public DatabaseCommand {
public:
    explicit OdbcCommand(OdbcDatabase& database) : database_(database) {}

    void useActiveConnection() override;
    void setProcedure(const std::string& name) override;
    void refreshParameters() override;
    void assign(const std::string& parameter, const Value& value) override;
    void execute() override;

private:
    OdbcDatabase& database_;
    std::string procedure_;
    std::vector<ProcedureParameter> parameters_;
};
