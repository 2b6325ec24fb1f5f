#pragma once

#include <cstdint>
#include <string>
#include <vector>

class DatabaseConnection;

namespace cli {

/// Bits of a flag word, each of which turns a level of its component on.
constexpr int levelsOfAWord = 32;

/// A component's row of the diagnostic grid, as stored.
struct FlagWords {
    std::string name;
    std::string objectId;
    std::int32_t flags;
    std::int32_t defaultFlags;
};

/// All rows, sorted by name. Raises what the connection raises.
std::vector<FlagWords> readFlagWords(DatabaseConnection& connection);

/// "0x0000008F".
std::string hexadecimal(std::int32_t word);

} // namespace cli
