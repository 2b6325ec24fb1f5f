#include "damaged_database.h"

#include "backends/jet/reader.h"
#include "runtime/run_time_error.h"

/// Any bytes are read, or refused with a run-time error.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string image = damagedDatabase({reinterpret_cast<const char*>(data), size});
    try {
        const jet::Reader reader(image);
        for (const auto& table : reader.tables()) {
            auto rows = reader.rows(table);
            while (rows.next()) {
                for (std::size_t column = 0; column < table.columns.size(); ++column) {
                    rows.isNull(column);
                    rows.text(column);
                }
            }
        }
        reader.problems();
    } catch (const RunTimeError&) {
    }
    return 0;
}
