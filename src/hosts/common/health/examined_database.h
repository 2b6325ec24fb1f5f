#pragma once

#include "hosts/common/server_database.h"

#include <chrono>
#include <functional>
#include <memory>
#include <string>
#include <vector>

/// The directory database under examination, over a connection of its own that only looks.
///
/// A server that does not answer is not asked again: one check after the other would wait for it.
class ExaminedDatabase {
public:
    /// How long an answer that did not come may have been waited for, until no other is.
    static constexpr std::chrono::seconds patience{5};

    /// `database` outlives this.
    explicit ExaminedDatabase(ServerDatabase& database) : database_(database) {}

    /// Connects. Raises -2147467259 where that can't be.
    void open();

    /// Whether the database can be asked: it was opened, and has answered since.
    bool isOpen() const { return connection_ && !silent_; }

    /// The rows of a query, each with the values of `columns`. Raises what the database raises.
    using Row = std::vector<Value>;
    std::vector<Row> rows(const std::string& query, const std::vector<std::string>& columns);

    /// The first of `names`, such as "@Name", that is no parameter of a procedure; the empty text
    /// for none. The procedure is not called. Raises -2147217900 where it is not there.
    std::string missingParameter(const std::string& procedure,
                                 const std::vector<std::string>& names);

    /// Whether the procedures are those of a site's own file: views that triggers stand behind.
    bool hasViewsForProcedures() const { return !database_.file().empty(); }

    /// As of `ServerDatabase::file`.
    std::string file() const { return database_.file(); }

private:
    void asked(const std::function<void()>& ask);

    ServerDatabase& database_;
    std::unique_ptr<DatabaseConnection> connection_;
    bool silent_ = false;
};
