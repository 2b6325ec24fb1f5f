#include "backends/odbc/diagnostic.h"

#include "backends/odbc/wide_text.h"
#include "runtime/text.h"

#include <algorithm>
#include <array>

namespace {

/// Numbers of SQLite that mean that the file itself can't be read: input or output, damage, not
/// opened, no database.
bool isLostFile(int number)
{
    const int kind = number & 0xff;
    return kind == 10 || kind == 11 || kind == 14 || kind == 26;
}

bool isLineBreak(char c)
{
    return c == '\r' || c == '\n' || c == '\t';
}

Diagnostic firstRecord(SQLSMALLINT kind, SQLHANDLE of, const std::string& fallback)
{
    std::array<SQLWCHAR, 6> state{};
    std::array<SQLWCHAR, SQL_MAX_MESSAGE_LENGTH * 4> text{};
    SQLINTEGER number = 0;
    SQLSMALLINT length = 0;
    const SQLRETURN result = SQLGetDiagRecW(kind, of, 1, state.data(), &number, text.data(),
                                            static_cast<SQLSMALLINT>(text.size()), &length);
    if (!SQL_SUCCEEDED(result)) return {"HY000", 0, fallback};
    const auto units =
        std::min(static_cast<std::size_t>(std::max<SQLSMALLINT>(length, 0)), text.size() - 1);
    Diagnostic found{utf8OfWide(state.data(), 5), number, oneLine(utf8OfWide(text.data(), units))};
    if (found.text.empty()) found.text = fallback;
    return found;
}

} // namespace

std::string oneLine(const std::string& message)
{
    std::string_view rest = message;
    while (!rest.empty() && rest.front() == '[' && rest.find(']') != std::string_view::npos)
        rest = trim(rest.substr(rest.find(']') + 1));
    std::string line(rest);
    std::replace_if(line.begin(), line.end(), isLineBreak, ' ');
    while (line.find("  ") != std::string::npos) line = replaceAll(line, "  ", " ");
    return std::string(trim(line));
}

Diagnostic diagnosticOfStatement(SQLHSTMT statement, const std::string& fallback)
{
    return firstRecord(SQL_HANDLE_STMT, statement, fallback);
}

Diagnostic diagnosticOfConnection(SQLHDBC connection, const std::string& fallback)
{
    return firstRecord(SQL_HANDLE_DBC, connection, fallback);
}

Failure failureOf(const Diagnostic& diagnostic, ServerKind server)
{
    const std::string& state = diagnostic.state;
    // 57P01 to 57P03: the server was told to end, or does not take connections yet.
    if (beginsWith(state, "08") || beginsWith(state, "57P")) return Failure::connectionLost;
    if (state == "HYT00" || state == "HYT01" || state == "57014") return Failure::timedOut;
    if (state == "42S02" || state == "42P01") return Failure::noSuchTable;
    if (server != ServerKind::sqlite) return Failure::refused;
    if (isLostFile(diagnostic.number)) return Failure::connectionLost;
    if (beginsWith(diagnostic.text, "no such table")) return Failure::noSuchTable;
    return Failure::refused;
}
