#pragma once

#include "backends/jet/database.h"
#include "backends/jet/table/table_appender.h"
#include "platform/trace_database.h"

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace jet {

/// A database as its recordsets share it: it is closed for all of them at once.
struct Session {
    Session(const std::string& path, const CodePage& page) : codePage(page), database(path) {}

    const CodePage codePage;
    std::optional<Database> database; ///< none when it was closed
};

class JetRecordset;

/// A column of a JetRecordset: checks a value and keeps it until the row is stored.
class JetField final : public TraceField {
public:
    JetField(const JetRecordset& recordset, const Column& column, Cell& cell)
        : recordset_(recordset), column_(column), cell_(cell)
    {}

    void setText(std::string_view text) override;
    void setUtf8(std::string_view text) override;
    void setNumber(std::int32_t number) override;
    std::string_view text() const override;
    bool isNull() const override;

private:
    void takeNumberOf(std::string_view text);
    void checkCharacters(std::size_t count) const;
    void requireReadable() const;

    const JetRecordset& recordset_;
    const Column& column_;
    Cell& cell_;
    mutable std::string numberText_;
};

/// A table of a Jet file, opened for adding rows.
class JetRecordset final : public TraceRecordset {
public:
    /// `table` belongs to the session's database. Raises what TableAppender raises.
    JetRecordset(std::shared_ptr<Session> session, const TableDefinition& table);

    std::string utf8Of(std::string_view text) const override;
    TraceField& field(std::string_view name) override;
    void addNew() override;
    void update() override;
    void close() override;

    /// Raise 3420 when the recordset was closed, and 3020 or 3021 when no row is being added.
    void requireAdding(int otherwise) const;

    const CodePage& codePage() const { return session_->codePage; }

private:
    void requireOpen() const;
    void checkRequired() const;

    std::shared_ptr<Session> session_;
    TableDefinition table_;
    std::optional<TableAppender> appender_; ///< none when the recordset was closed
    std::vector<Cell> cells_;
    std::vector<Cell> defaults_;
    std::vector<std::size_t> required_; ///< indexes of the columns that take no Null
    std::vector<JetField> fields_;
    bool adding_ = false;
};

} // namespace jet
