#pragma once

#include <string>
#include <string_view>
#include <vector>

/// "Key=Value" of a connection string, without blanks around them and without braces.
struct ConnectionPart {
    std::string key;
    std::string value;
};

/// The parts of "Key=Value;Key={Va;lue}", in their order. Raises -2147467259 for a part without
/// "=", and for braces that do not match.
std::vector<ConnectionPart> connectionParts(std::string_view connectionString);

/// The value of a key, without regard to case; the empty text for none.
std::string valueOf(const std::vector<ConnectionPart>& parts, std::string_view key);

/// The connection string of parts.
std::string connectionStringOf(const std::vector<ConnectionPart>& parts);
