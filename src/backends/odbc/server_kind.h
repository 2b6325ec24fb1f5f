#pragma once

#include "backends/odbc/odbc_api.h"

#include <string>

/// What a server does in its own way, which its driver does not tell.
enum class ServerKind {
    sqlServer, ///< numbers its refusals itself
    postgres,  ///< calls procedures by a statement
    sqlite,    ///< tells its refusals apart by its own numbers, and opens whatever file it is given
    other,
};

/// The kind of server that a connection leads to.
ServerKind serverKindOf(SQLHDBC connection);

/// Whether a server has no procedures, so that a view of the procedure's name stands for it: its
/// columns are the parameters, and inserting a row calls it.
bool callsByView(SQLHDBC connection);

/// A name as the server's catalogue holds it where it was written without quotes.
std::string catalogueName(SQLHDBC connection, const std::string& name);
