#include "hosts/cli/driving/flag_words.h"

#include "platform/database.h"

#include <cstdio>

namespace cli {

std::vector<FlagWords> readFlagWords(DatabaseConnection& connection)
{
    const auto rows = connection.openRecordset(
        "SELECT Name, ObjectId, Flags, DefaultFlags FROM vw_LoggerDiagnosticGrid ORDER BY Name",
        CursorKind::forwardOnly, LockKind::optimistic);
    std::vector<FlagWords> words;
    for (; !rows->atEnd(); rows->moveNext())
        words.push_back({valueAsText(rows->field("Name")), valueAsText(rows->field("ObjectId")),
                         valueAsInteger32(rows->field("Flags")),
                         valueAsInteger32(rows->field("DefaultFlags"))});
    return words;
}

std::string hexadecimal(std::int32_t word)
{
    char text[12];
    std::snprintf(text, sizeof text, "0x%08X", static_cast<unsigned>(word));
    return text;
}

} // namespace cli
