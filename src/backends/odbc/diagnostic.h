#pragma once

#include "backends/odbc/odbc_api.h"
#include "backends/odbc/server_kind.h"

#include <string>

/// What a driver says of a call that failed.
struct Diagnostic {
    std::string state; ///< five characters; the first two are the class
    int number = 0;    ///< the server's own, where it has numbers
    std::string text;  ///< one line, without the names of those who pass it on
};

/// What a statement's or a connection's latest call failed with. `fallback` is the text where the
/// driver says nothing.
Diagnostic diagnosticOfStatement(SQLHSTMT statement, const std::string& fallback);
Diagnostic diagnosticOfConnection(SQLHDBC connection, const std::string& fallback);

/// A driver's message as a sentence of one line: line breaks are blanks, and the names in square
/// brackets before it are gone.
std::string oneLine(const std::string& message);

/// What a failure means to whoever asked.
enum class Failure {
    connectionLost,
    noSuchTable,
    timedOut,
    refused,
};

Failure failureOf(const Diagnostic& diagnostic, ServerKind server);
