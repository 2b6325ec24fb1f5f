#pragma once

#include "backends/odbc/bound_value.h"
#include "backends/odbc/session.h"

#include <optional>
#include <string>
#include <vector>

/// A parameter of a stored procedure.
struct ProcedureParameter {
    std::string name;                  ///< as the server has it, with or without "@"
    std::optional<ParameterType> type; ///< nothing where it takes any value as it is
    Value value = Empty{};
    bool assigned = false;
};

/// The parameters that the server has for a procedure, in their order; nothing where there is no
/// such procedure. Raises 3709, -2147217900.
std::optional<std::vector<ProcedureParameter>> parametersOf(OdbcSession& session,
                                                            const std::string& procedure);

/// Calls a procedure with what is assigned; the rest is Null. Raises as DatabaseCommand::execute.
void callProcedure(OdbcSession& session, const std::string& procedure,
                   const std::vector<ProcedureParameter>& parameters);
