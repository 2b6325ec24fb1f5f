#pragma once

#include "platform/database.h"

#include <memory>

/// What a server is opened for.
enum class ServerUse {
    change,
    look, ///< nothing is made or changed by the opening, nor by what is asked afterwards
};

/// The directory database of a server, with what hosts ask of it beside the tool.
class ServerDatabase : public DatabaseConnection {
public:
    /// What later calls of `open` open it for; at first for a look.
    virtual void openFor(ServerUse use) = 0;

    /// Another connection to the same database, closed yet, for a look.
    virtual std::unique_ptr<DatabaseConnection> anotherToLook() const = 0;

    /// The file of this machine that holds it, which need not be there; the empty text for that of
    /// a server.
    virtual std::string file() const { return {}; }

    /// Lets waits for other programs last as long, all together, as one run may take; does nothing
    /// for a server that lets nobody wait for another.
    virtual void waitAsOneRun() {}

    /// From `holdCalls` on, what procedures change becomes lasting together: by `letCallsGo`, or
    /// when the database is told to settle. Does nothing for a server, which makes each call
    /// lasting by itself. `letCallsGo` raises -2147467259.
    virtual void holdCalls() {}
    virtual void letCallsGo() {}
};
