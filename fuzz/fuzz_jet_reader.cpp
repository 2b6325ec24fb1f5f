#include "damaged_database.h"
#include "require.h"

#include "backends/jet/jet_trace_reader.h"
#include "backends/jet/reader.h"
#include "platform/stored_bytes.h"
#include "runtime/run_time_error.h"

#include <algorithm>
#include <memory>
#include <set>
#include <string>

namespace {

class BytesInMemory final : public StoredBytes {
public:
    explicit BytesInMemory(const std::string& bytes) : bytes_(bytes) {}

    std::uint64_t size() const override { return bytes_.size(); }
    std::size_t read(char* into, std::size_t size, std::uint64_t at) const override
    {
        return at < bytes_.size() ? bytes_.copy(into, size, at) : 0;
    }

private:
    const std::string& bytes_;
};

void readStrictly(const std::string& image)
{
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
}

/// Reads a table past all its damage; gives the places of its rows.
std::set<std::uint64_t> readThrough(TraceRows& rows, const TraceTable& table)
{
    std::set<std::uint64_t> places;
    for (bool more = true; more;) {
        try {
            more = rows.next();
            if (!more) break;
            places.insert(rows.place());
            for (std::size_t column = 0; column < table.columns.size(); ++column) {
                rows.number(column);
                const std::string_view text = rows.text(column);
                require(text == rows.text(column));
            }
        } catch (const RunTimeError&) { // the next call goes on
        }
    }
    return places;
}

void readPastDamage(const std::string& image)
{
    const auto tables = jet::JetTraceReader().open(std::make_shared<BytesInMemory>(image));
    for (const auto& table : tables->tables()) {
        const auto rows = tables->rows(table);
        for (const std::uint64_t place : readThrough(*rows, table)) {
            require(place >> TraceRows::placeBits == 0);
            require(rows->goTo(place));
            require(rows->place() == place);
        }
    }
}

} // namespace

/// Any bytes are read, or refused with a run-time error.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string image = damagedDatabase({reinterpret_cast<const char*>(data), size});
    for (const auto& read : {readStrictly, readPastDamage}) {
        try {
            read(image);
        } catch (const RunTimeError&) {
        }
    }
    return 0;
}
