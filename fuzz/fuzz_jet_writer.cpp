#include "damaged_database.h"

#include "backends/jet/reader.h"
#include "runtime/run_time_error.h"

namespace {

/// Adds rows of all forms to a table, as far as it takes them.
void addRows(TraceDatabase& database, const std::string& table, const char* text)
{
    try {
        const auto rows = database.openRecordset(table);
        for (const std::size_t length : {1u, 40u, 3000u, 9000u}) {
            rows->addNew();
            if (*text != '\0') rows->field(text).setText(std::string(length, 'y'));
            rows->update();
        }
    } catch (const RunTimeError&) {
    }
}

} // namespace

/// Rows are added to any file that opens, or refused; what comes out is read or refused likewise.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static const std::string path = "/tmp/orvan_fuzz_" + std::to_string(getpid()) + ".mdb";
    std::ofstream(path, std::ios::binary | std::ios::trunc)
        << damagedDatabase({reinterpret_cast<const char*>(data), size});
    jet::JetEngine engine([](const std::string& name) { return name; });
    try {
        const auto database = engine.openDatabase(path);
        addRows(*database, "tblOne", "Note");
        addRows(*database, "tblTwo", "");
    } catch (const RunTimeError&) {
    }
    try {
        std::ifstream file(path, std::ios::binary);
        const std::string image(std::istreambuf_iterator<char>(file), {});
        jet::Reader(image).problems();
    } catch (const RunTimeError&) {
    }
    return 0;
}
