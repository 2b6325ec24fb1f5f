#include "support/fakes/trace_database/fake_trace_recordset.h"

#include "runtime/run_time_error.h"
#include "runtime/text.h"
#include "text/code_page.h"
#include "text/utf8.h"

#include <charconv>
#include <utility>
#include <vector>

namespace {

using namespace traceDatabaseErrors;
using Type = FakeTraceColumn::Type;

std::string utf8Of(std::string_view text)
{
    std::string utf8;
    windows1252().appendUtf8(utf8, text);
    return utf8;
}

/// As much of UTF-8 text as a number of characters holds; one beyond U+FFFF counts twice.
std::string_view firstCharacters(std::string_view utf8, std::size_t most)
{
    std::size_t count = 0;
    for (std::size_t at = 0; at < utf8.size(); ++at) {
        const auto code = static_cast<unsigned char>(utf8[at]);
        if ((code & 0xC0) != 0x80) count += code >= 0xF0 ? 2 : 1;
        if (count > most) return utf8.substr(0, at);
    }
    return utf8;
}

/// A table that was opened, and the row that is being added to it.
struct Adding {
    std::shared_ptr<FakeTraceState> state;
    std::string table;
    int opening = 0; ///< that of the database
    bool open = true;
    bool adding = false;
    FakeTraceRow row = {};   ///< as it will be stored
    FakeTraceRow given = {}; ///< the texts as they were set

    void requireOpen() const
    {
        if (!open || state->presentOpening != opening) throw RunTimeError(objectClosed, "closed");
    }
    void requireAdding(int otherwise) const
    {
        requireOpen();
        if (!adding) throw RunTimeError(otherwise, "no row is being added");
    }
};

class FakeTraceField final : public TraceField {
public:
    FakeTraceField(Adding& adding, const FakeTraceColumn& column) : adding_(adding), column_(column)
    {}

    void setText(std::string_view text) override
    {
        const std::string_view held = text.substr(0, column_.characters);
        set(text, held, utf8Of(held));
    }
    void setUtf8(std::string_view text) override
    {
        const std::string_view held = firstCharacters(text, column_.characters);
        set(text, held, validUtf8(held));
    }
    void setNumber(std::int32_t number) override
    {
        const std::string text = std::to_string(number);
        set(text, text, text);
    }

    std::string_view text() const override
    {
        adding_.requireAdding(noCurrentRecord);
        const auto found = adding_.given.find(column_.name);
        return found == adding_.given.end() ? std::string_view() : found->second;
    }

    bool isNull() const override
    {
        adding_.requireAdding(noCurrentRecord);
        return adding_.row.count(column_.name) == 0;
    }

private:
    void set(std::string_view text, std::string_view held, const std::string& stored)
    {
        adding_.requireAdding(noAddInProgress);
        adding_.state->note("set " + adding_.table + "." + column_.name);
        if (column_.type != Type::text) {
            adding_.given[column_.name] = adding_.row[column_.name] = numberText(text);
            return;
        }
        if (text.empty() && !column_.allowZeroLength) throw RunTimeError(zeroLength, "empty");
        if (held.size() < text.size() && column_.characters == memoCharacters)
            throw RunTimeError(fieldTooSmall, "too long");
        adding_.given[column_.name] = held;
        adding_.row[column_.name] = stored;
    }

    std::string numberText(std::string_view text) const
    {
        text = trim(text);
        std::int32_t number = 0;
        const auto read = std::from_chars(text.data(), text.data() + text.size(), number);
        const bool whole = read.ec == std::errc{} && read.ptr == text.data() + text.size();
        const bool fits =
            column_.type == Type::longInteger || (number >= -32768 && number <= 32767);
        if (!whole || !fits) throw RunTimeError(conversion, "no such number");
        return std::to_string(number);
    }

    Adding& adding_;
    const FakeTraceColumn& column_;
};

class FakeTraceRecordset final : public TraceRecordset {
public:
    /// Of the database as it is open now.
    FakeTraceRecordset(std::shared_ptr<FakeTraceState> state, const std::string& table)
        : adding_{state, table, state->presentOpening}
    {
        for (const auto& column : stored().columns)
            fields_.push_back(std::make_unique<FakeTraceField>(adding_, column));
    }

    std::string utf8Of(std::string_view text) const override { return ::utf8Of(text); }

    TraceField& field(std::string_view name) override
    {
        adding_.requireOpen();
        const auto& columns = stored().columns;
        for (std::size_t place = 0; place < columns.size(); ++place) {
            if (equalIgnoringCase(columns[place].name, name)) return *fields_[place];
        }
        throw RunTimeError(noSuchField, "no such field");
    }

    void addNew() override
    {
        adding_.requireOpen();
        adding_.state->note("addNew " + adding_.table);
        adding_.row.clear();
        for (const auto& column : stored().columns) {
            if (column.defaultValue) adding_.row[column.name] = *column.defaultValue;
        }
        adding_.given = adding_.row;
        adding_.adding = true;
    }

    void update() override
    {
        adding_.requireAdding(noAddInProgress);
        adding_.state->note("update " + adding_.table);
        stored().rows.push_back(adding_.row);
        adding_.adding = false;
    }

    void close() override
    {
        adding_.requireOpen();
        adding_.state->note("close " + adding_.table);
        adding_.open = false;
    }

private:
    FakeTraceTable& stored() { return adding_.state->tables.at(adding_.table); }

    Adding adding_;
    std::vector<std::unique_ptr<FakeTraceField>> fields_;
};

} // namespace

std::unique_ptr<TraceRecordset> openFakeTraceTable(std::shared_ptr<FakeTraceState> state,
                                                   const std::string& table)
{
    return std::make_unique<FakeTraceRecordset>(std::move(state), table);
}
