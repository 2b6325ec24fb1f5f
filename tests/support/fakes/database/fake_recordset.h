#pragma once

#include "support/fakes/database/fake_database_query.h"

#include <memory>
#include <optional>
#include <string>

/// The rows of a query on a fake database.
///
/// What tells the rows of a keyset apart is the first column that holds a text of its own for each.
class FakeRecordset final : public DatabaseRecordset {
public:
    /// `views` are those of the database, which the recordset may not outlive; `open` counts the
    /// recordsets that nobody closed.
    FakeRecordset(const FakeDatabaseViews& views, std::string query, CursorKind cursor,
                  std::shared_ptr<int> open);

    bool atEnd() const override;
    Value field(const std::string& name) const override;
    void moveNext() override;
    int rowCount() const override;
    void close() override;

private:
    void requireOpen() const;
    std::optional<std::size_t> keyColumn() const;
    bool readAgain();

    const FakeDatabaseViews& views_;
    std::string query_;
    FakeQueryResult result_; ///< as at the opening, but for the rows come to since then
    CursorKind cursor_;
    std::optional<std::size_t> key_;
    std::shared_ptr<int> open_;
    std::size_t position_ = 0;
    bool closed_ = false;
};
