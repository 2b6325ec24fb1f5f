#pragma once

#include <cstddef>
#include <map>
#include <optional>
#include <string>
#include <vector>

/// A column as a fake table has it.
struct FakeTraceColumn {
    enum class Type { text, integer, longInteger };

    std::string name;
    Type type = Type::text;
    std::size_t characters = 255; ///< of a text
    bool allowZeroLength = true;
    std::optional<std::string> defaultValue = std::nullopt;
};

/// A stored row: the text of each value by column name, in UTF-8; a column that is missing is Null.
using FakeTraceRow = std::map<std::string, std::string>;

struct FakeTraceTable {
    std::vector<FakeTraceColumn> columns;
    std::vector<FakeTraceRow> rows;
};

/// What all objects of one fake database share.
struct FakeTraceState {
    std::map<std::string, FakeTraceTable> tables;
    std::vector<std::string> calls; ///< such as "addNew tblTraces", oldest first
    std::string failing;            ///< the call that is to fail
    int countdown = 0;              ///< how many such calls until it does; 0 for never
    int number = 0;                 ///< the error that it raises
    int lastOpening = 0;            ///< how often the database was opened
    int presentOpening = 0;         ///< the one that has not come to its end; 0 for none

    /// Remembers a call, or raises what was asked for it.
    void note(const std::string& call);
};

/// The three tables of a gather, without rows.
std::map<std::string, FakeTraceTable> gatherTables();

/// What a long text column holds.
inline constexpr std::size_t memoCharacters = 8'388'607;
