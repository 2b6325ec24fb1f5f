#pragma once

#include "backends/common/event_csv.h"
#include "hosts/common/sentence.h"
#include "hosts/common/server_database.h"
#include "platform/platform.h"
#include "text/code_page.h"

#include <compare>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

/// An event that the tool reported to the server's event log.
struct ReportedEvent {
    std::int32_t id = 0;
    std::string insert; ///< the first of its texts; empty where it has none

    auto operator<=>(const ReportedEvent&) const = default;
};

/// An event of the server's event log, with the time that the server's clock showed.
struct DatedEvent {
    std::string time; ///< "2025-02-20 17:38:04"
    ReportedEvent event;
};

/// A program's turn to change a server, kept until the last copy goes; null where there is none to
/// take.
using HeldTurn = std::shared_ptr<const void>;

/// The server that a tool works on, as a host reaches it: the services of the platform, and what
/// hosts ask beside the tool.
class ServerAccess {
public:
    virtual ~ServerAccess() = default;

    /// The services, with the desktop that the host composes. They live as long as this.
    virtual Platform platform(Desktop& desktop) = 0;

    virtual ServerDatabase& database() = 0;

    /// How the server's log texts are encoded.
    virtual CodePage codePage() const = 0;

    /// Makes a server that was opened for a look one to change. The tool must not be loaded yet.
    /// Raises 70, 61, 57.
    virtual void startChanges() = 0;

    /// Whether the server can be written to now, as far as that can be told as a whole.
    virtual bool writable() const = 0;

    /// Whether a path of the tool is one of the server's own, which a look leaves alone. May raise
    /// what `FileSystem` raises.
    virtual bool isServers(const std::string& path) const = 0;

    /// Where a path of the tool lies on this machine. Raises 76, and 70 for one that leads out of
    /// the server and that no person named.
    virtual std::string machinePath(const std::string& path) = 0;

    /// Why a program, by its path of the tool, would not be started, as far as that can be told
    /// without starting it: a clause; empty where nothing stands in its way.
    virtual std::string obstacleTo(const std::string&) const { return {}; }

    /// A path as a person types it, as one of the tool, which may be reached from then on.
    virtual std::string toolPath(const std::string& typed) = 0;

    /// What a sentence calls the server, such as "the site /home/x".
    virtual std::string name() const = 0;

    /// Takes the turn to change the server, or waits for it; `notice` hears of a long wait. Raises
    /// 70, with a sentence, when others keep it too long; 76, 57, 61.
    virtual HeldTurn takeTurn(const std::function<void(const std::string&)>& notice) = 0;

    /// Who reads the event logs that are exported from now on.
    virtual void exportEventsFor(CsvReader reader) = 0;

    /// A place in what the tool has reported so far, for `eventsSince`; and the events from there
    /// on, as far as is known that the server's event log took them. Others' may be among them.
    virtual std::int64_t endOfEvents() const = 0;
    virtual std::vector<ReportedEvent> eventsSince(std::int64_t place) const = 0;

    /// What the tool, and whatever else reports there, reported in the past, oldest first, as far
    /// as the server's event log can be read here.
    virtual std::vector<DatedEvent> pastEvents() const { return {}; }

    /// Why the tool finds next to nothing here, as no server is installed; nothing where one is, or
    /// a folder stands for it.
    virtual std::optional<Sentence> lackOfServer() const { return {}; }
};
