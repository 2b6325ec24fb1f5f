#include "support/fake_trace_database.h"

#include "runtime/run_time_error.h"
#include "runtime/text.h"
#include "text/code_page.h"

#include <algorithm>
#include <charconv>

namespace {

using namespace traceDatabaseErrors;
using Type = FakeTraceColumn::Type;

FakeTraceColumn textColumn(const char* name, std::size_t characters = 255)
{
    return {name, Type::text, characters};
}

FakeTraceColumn filledColumn(const char* name, std::size_t characters)
{
    return {name, Type::text, characters, false};
}

constexpr std::size_t memoCharacters = 8'388'607;

std::map<std::string, FakeTraceTable> gatherTables()
{
    return {
        {"tblTraces",
         {{textColumn("Date"),
           textColumn("Process"),
           filledColumn("Source", 255),
           {"TraceNumber", Type::longInteger},
           textColumn("Component"),
           {"TraceLevel", Type::integer},
           textColumn("Port"),
           filledColumn("Trace", memoCharacters),
           textColumn("CallId"),
           {"Highlight", Type::integer, 0, true, "0"},
           textColumn("qrvIndex")},
          {}}},
        {"tblMacroTraces", {{textColumn("Name"), textColumn("Data", memoCharacters)}, {}}},
        {"tblUniqueFilters",
         {{textColumn("qrvIndex"), textColumn("Process"), textColumn("Source"),
           textColumn("Component"), textColumn("TraceLevel", 50)},
          {}}},
    };
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
    bool open = true;
    bool adding = false;
    FakeTraceRow row;

    void requireOpen() const
    {
        if (!open || !state->databaseOpen) throw RunTimeError(objectClosed, "closed");
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

    void setText(std::string_view text) override { set(text, text.substr(0, column_.characters)); }
    void setUtf8(std::string_view text) override
    {
        set(text, firstCharacters(text, column_.characters));
    }
    void setNumber(std::int32_t number) override
    {
        const std::string text = std::to_string(number);
        set(text, text);
    }

    std::string_view text() const override
    {
        adding_.requireAdding(noCurrentRecord);
        const auto found = adding_.row.find(column_.name);
        return found == adding_.row.end() ? std::string_view() : found->second;
    }

    bool isNull() const override
    {
        adding_.requireAdding(noCurrentRecord);
        return adding_.row.count(column_.name) == 0;
    }

private:
    void set(std::string_view text, std::string_view held)
    {
        adding_.requireAdding(noAddInProgress);
        adding_.state->note("set " + adding_.table + "." + column_.name);
        if (column_.type != Type::text) {
            adding_.row[column_.name] = numberText(text);
            return;
        }
        if (text.empty() && !column_.allowZeroLength) throw RunTimeError(zeroLength, "empty");
        if (held.size() < text.size() && column_.characters == memoCharacters)
            throw RunTimeError(fieldTooSmall, "too long");
        adding_.row[column_.name] = held;
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
    FakeTraceRecordset(std::shared_ptr<FakeTraceState> state, const std::string& table)
        : adding_{std::move(state), table, true, false, {}}
    {
        for (const auto& column : stored().columns)
            fields_.push_back(std::make_unique<FakeTraceField>(adding_, column));
    }

    std::string utf8Of(std::string_view text) const override
    {
        std::string utf8;
        windows1252().appendUtf8(utf8, text);
        return utf8;
    }

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

class FakeTraceDatabase final : public TraceDatabase {
public:
    explicit FakeTraceDatabase(std::shared_ptr<FakeTraceState> state) : state_(std::move(state)) {}
    ~FakeTraceDatabase() override { state_->databaseOpen = false; }

    std::unique_ptr<TraceRecordset> openRecordset(std::string_view table) override
    {
        requireOpen();
        for (const auto& [name, stored] : state_->tables) {
            if (!equalIgnoringCase(name, table)) continue;
            state_->note("openRecordset " + name);
            return std::make_unique<FakeTraceRecordset>(state_, name);
        }
        throw RunTimeError(noSuchTable, "no such table");
    }

    void close() override
    {
        requireOpen();
        state_->note("close");
        state_->databaseOpen = false;
    }

private:
    void requireOpen() const
    {
        if (!state_->databaseOpen) throw RunTimeError(objectClosed, "closed");
    }

    std::shared_ptr<FakeTraceState> state_;
};

} // namespace

void FakeTraceState::note(const std::string& call)
{
    if (call == failing && countdown > 0 && --countdown == 0) throw RunTimeError(number);
    calls.push_back(call);
}

FakeTraceDatabaseEngine::FakeTraceDatabaseEngine() : state_(std::make_shared<FakeTraceState>())
{
    state_->tables = gatherTables();
}

FakeTraceDatabaseEngine& FakeTraceDatabaseEngine::with(const std::string& path)
{
    paths_.push_back(path);
    return *this;
}

FakeTraceDatabaseEngine& FakeTraceDatabaseEngine::failing(const std::string& call, int nth,
                                                          int number)
{
    state_->failing = call;
    state_->countdown = nth;
    state_->number = number;
    return *this;
}

const std::vector<FakeTraceRow>& FakeTraceDatabaseEngine::rows(const std::string& table) const
{
    return state_->tables.at(table).rows;
}

std::unique_ptr<TraceDatabase> FakeTraceDatabaseEngine::openDatabase(const std::string& path)
{
    const bool known =
        paths_.empty() || std::find(paths_.begin(), paths_.end(), path) != paths_.end();
    if (!known) throw RunTimeError(fileNotFound, "no such file");
    if (state_->databaseOpen) throw RunTimeError(fileInUse, "already open");
    state_->note("openDatabase");
    opened_.push_back(path);
    state_->databaseOpen = true;
    return std::make_unique<FakeTraceDatabase>(state_);
}
