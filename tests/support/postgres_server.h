#pragma once

#include <string>
#include <vector>

/// A PostgreSQL server of the test's own, in a folder below the temporary one, which nobody reaches
/// over a network. It ends with the object, or with the program. Where root runs the test, the
/// server is run by the account that its package made, as it refuses root.
class PostgresServer {
public:
    /// Makes and starts it. Throws std::runtime_error with a sentence when there is none installed
    /// or it does not start.
    PostgresServer();
    ~PostgresServer();
    PostgresServer(const PostgresServer&) = delete;
    PostgresServer& operator=(const PostgresServer&) = delete;

    /// How ODBC reaches it.
    std::string connectionString(const std::string& database = "postgres",
                                 const std::string& user = "postgres") const;

    /// Ends it at once, with all its connections, and starts it again.
    void stop();
    void start();

    /// Empties it.
    void reset() const;

    /// Runs statements; gives what they give, a row a line, without the last line's break. Throws
    /// std::runtime_error with what the server says.
    std::string run(const std::string& statements) const;

    /// Runs the statements of a file.
    void runFile(const std::string& file) const;

private:
    std::vector<std::string> asServer(std::vector<std::string> words) const;
    bool answers() const;

    std::string folder_;
    std::string programs_;
    int process_ = -1;
};
