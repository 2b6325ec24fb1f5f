#include "backends/odbc/procedure.h"

#include "backends/odbc/statement.h"
#include "platform/database.h"
#include "runtime/run_time_error.h"
#include "runtime/text.h"

#include <algorithm>
#include <memory>

namespace {

// Where the catalogue's lists have what is read of them; positions, from 1.
constexpr SQLUSMALLINT schemaPosition = 2;
constexpr SQLUSMALLINT namePosition = 3;
constexpr SQLUSMALLINT parameterPosition = 4;
constexpr SQLUSMALLINT directionPosition = 5;
constexpr SQLUSMALLINT typePosition = 6;
constexpr SQLUSMALLINT sizePosition = 8;
constexpr SQLUSMALLINT digitsPosition = 10;

std::string textAt(OdbcStatement& list, SQLUSMALLINT position)
{
    const Value value = list.value(position, SQL_WVARCHAR);
    return isNull(value) ? std::string() : valueAsText(value);
}

std::int32_t numberAt(OdbcStatement& list, SQLUSMALLINT position)
{
    const Value value = list.value(position, SQL_INTEGER);
    const auto* number = std::get_if<std::int32_t>(&value);
    return number ? *number : 0;
}

/// Whether the row at hand is of the name that was asked for: the list may have taken it for a
/// pattern, and servers number versions of a procedure behind a semicolon.
bool isRowOf(OdbcStatement& list, const std::string& name)
{
    const std::string found = textAt(list, namePosition);
    return equalIgnoringCase(found.substr(0, found.find(';')), name);
}

std::optional<std::vector<ProcedureParameter>> columnsOfView(OdbcSession& session,
                                                             const std::string& view)
{
    std::vector<ProcedureParameter> parameters;
    OdbcStatement list(session);
    list.listColumns(view);
    while (list.fetch())
        if (isRowOf(list, view)) parameters.push_back({textAt(list, parameterPosition), {}});
    if (parameters.empty()) return std::nullopt;
    return parameters;
}

bool isInCatalogue(OdbcSession& session, const std::string& procedure)
{
    OdbcStatement list(session);
    list.listProcedures(procedure);
    while (list.fetch())
        if (isRowOf(list, procedure)) return true;
    return false;
}

ProcedureParameter parameterAt(OdbcStatement& list, const std::string& name)
{
    const std::int32_t type = numberAt(list, typePosition);
    const std::int32_t size = numberAt(list, sizePosition);
    const std::int32_t digits = numberAt(list, digitsPosition);
    return {name,
            ParameterType{static_cast<SQLSMALLINT>(type), static_cast<SQLULEN>(std::max(size, 0)),
                          static_cast<SQLSMALLINT>(std::max(digits, 0))}};
}

std::string placeholders(std::size_t count)
{
    std::string marks;
    for (std::size_t i = 0; i < count; ++i) marks += i == 0 ? "?" : ",?";
    return marks;
}

std::string quotedName(const std::string& name)
{
    return "\"" + replaceAll(name, "\"", "\"\"") + "\"";
}

/// The call as a row put into the view that stands for the procedure.
std::string insertion(const std::string& procedure,
                      const std::vector<const ProcedureParameter*>& assigned)
{
    const std::string start = "INSERT INTO " + quotedName(procedure);
    if (assigned.empty()) return start + " DEFAULT VALUES";
    std::string names;
    for (const auto* parameter : assigned)
        names += (names.empty() ? "" : ",") + quotedName(parameter->name);
    return start + " (" + names + ") VALUES (" + placeholders(assigned.size()) + ")";
}

std::string call(const OdbcSession& session, const std::string& procedure, std::size_t count)
{
    const std::string values = "(" + placeholders(count) + ")";
    // Its driver takes the call of ODBC for that of a function.
    if (session.server() == ServerKind::postgres) return "CALL " + procedure + values;
    return "{call " + procedure + (count == 0 ? "" : values) + "}";
}

} // namespace

std::optional<std::vector<ProcedureParameter>> parametersOf(OdbcSession& session,
                                                            const std::string& procedure)
{
    const std::string name = catalogueName(session.handle(), procedure);
    if (!session.hasProcedures()) return columnsOfView(session, name);
    std::vector<ProcedureParameter> parameters;
    std::optional<std::string> schema; // the first in which there is such a procedure
    {
        OdbcStatement list(session);
        list.listParameters(name);
        while (list.fetch()) {
            const std::string schemaAtHand = textAt(list, schemaPosition);
            if (!isRowOf(list, name) || schema.value_or(schemaAtHand) != schemaAtHand) continue;
            schema = schemaAtHand;
            const std::string parameter = textAt(list, parameterPosition);
            const std::int32_t direction = numberAt(list, directionPosition);
            if (direction != SQL_RETURN_VALUE && direction != SQL_RESULT_COL)
                parameters.push_back(parameterAt(list, parameter));
        }
    }
    if (!schema && !isInCatalogue(session, name)) return std::nullopt;
    return parameters;
}

void callProcedure(OdbcSession& session, const std::string& procedure,
                   const std::vector<ProcedureParameter>& parameters)
{
    std::vector<const ProcedureParameter*> sent;
    for (const auto& parameter : parameters)
        if (session.hasProcedures() || parameter.assigned) sent.push_back(&parameter);
    std::vector<std::unique_ptr<BoundValue>> values;
    OdbcStatement statement(session, Asked::call);
    for (const auto* parameter : sent) {
        values.push_back(std::make_unique<BoundValue>(parameter->value, parameter->type));
        statement.bind(*values.back());
    }
    statement.run(session.hasProcedures() ? call(session, procedure, sent.size())
                                          : insertion(procedure, sent));
    statement.finish();
}
