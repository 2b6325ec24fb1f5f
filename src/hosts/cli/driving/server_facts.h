#pragma once

#include <compare>
#include <map>
#include <string>
#include <string_view>

namespace cli {

class OpenTool;

/// What a fact of a server is about, in the order in which they are shown.
enum class FactKind {
    version,      ///< "2.0.4.1187"
    registry,     ///< a value of the registry, by its name
    process,      ///< that writes logs: "there"
    level,        ///< "CallFlow:3": "on" or "off", for every level that is on or on by default
    flags,        ///< a component's word, "0x0000008F"
    defaultFlags, ///< the same that it ships with
    macroTrace,   ///< "GROUP - TRACE": "on" or "off"
    setting,      ///< a configuration value, by its full name
    language,     ///< of the server's events
};

struct ServerFact {
    FactKind kind = FactKind::version;
    std::string name;

    auto operator<=>(const ServerFact&) const = default;
};

using ServerFacts = std::map<ServerFact, std::string>;

/// The word for a kind in results, such as "macroTrace".
std::string_view wordOf(FactKind kind);

/// What is known of a server whose database is open: what can be compared with another one's. What
/// is of one server alone and changes by itself, such as the times of its signals, is left out.
/// Raises what the database raises.
ServerFacts factsOf(OpenTool& tool);

} // namespace cli
