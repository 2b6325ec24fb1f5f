#include "backends/odbc/command.h"

#include "backends/odbc/odbc_database.h"
#include "runtime/run_time_error.h"
#include "runtime/text.h"

namespace {

bool isNamed(const ProcedureParameter& held, const std::string& parameter)
{
    return equalIgnoringCase(beginsWith(held.name, "@") ? held.name : "@" + held.name, parameter);
}

} // namespace

void OdbcCommand::useActiveConnection()
{
    database_.session();
}

void OdbcCommand::setProcedure(const std::string& name)
{
    procedure_ = name;
    parameters_.clear();
}

void OdbcCommand::refreshParameters()
{
    const auto session = database_.session();
    parameters_.clear();
    auto known = parametersOf(*session, procedure_);
    if (!known)
        throw RunTimeError(databaseErrors::statementRefused,
                           "Could not find stored procedure '" + procedure_ + "'.");
    parameters_ = *std::move(known);
}

void OdbcCommand::assign(const std::string& parameter, const Value& value)
{
    for (auto& held : parameters_)
        if (isNamed(held, parameter)) {
            held.value = value;
            held.assigned = true;
            return;
        }
    throw RunTimeError(runTimeErrors::itemNotInCollection);
}

void OdbcCommand::execute()
{
    const auto session = database_.session();
    if (session->use() == OdbcUse::look)
        throw RunTimeError(databaseErrors::statementRefused,
                           "The database was opened to be read alone.");
    callProcedure(*session, procedure_, parameters_);
}
