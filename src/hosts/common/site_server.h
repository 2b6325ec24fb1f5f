#pragma once

#include "backends/jet/jet_engine.h"
#include "backends/site/site.h"
#include "hosts/common/directory_database.h"
#include "hosts/common/server_access.h"

#include <string>

/// A server in a folder.
class SiteServer final : public ServerAccess {
public:
    /// Opens the site in a folder of the machine; what ships with the tool is looked for in
    /// `installedData`. Raises what `Site` raises.
    SiteServer(const std::string& folder, const std::string& installedData, const HostFacts& facts,
               SiteUse use);

    Site& site() { return site_; }
    const Site& site() const { return site_; }

    Platform platform(Desktop& desktop) override;
    ServerDatabase& database() override { return database_; }
    CodePage codePage() const override { return site_.codePage(); }
    void startChanges() override { site_.startChanges(); }
    bool writable() const override;
    bool isServers(const std::string& path) const override;
    std::string machinePath(const std::string& path) override;

    std::string obstacleTo(const std::string& program) const override;

    /// A drive's path stays, another one is this machine's own.
    std::string toolPath(const std::string& typed) override;

    std::string name() const override { return "the site " + site_.folder(); }
    HeldTurn takeTurn(const std::function<void(const std::string&)>& notice) override;
    void exportEventsFor(CsvReader reader) override { site_.eventLogExporter().writeFor(reader); }

    /// Bytes of the event log; the events are those that stand in it, whoever reported them.
    std::int64_t endOfEvents() const override;
    std::vector<ReportedEvent> eventsSince(std::int64_t place) const override;
    std::vector<DatedEvent> pastEvents() const override;

private:
    std::string eventLogFrom(std::int64_t offset) const;

    Site site_;
    jet::JetEngine traceDatabases_;
    DirectoryDatabase database_;
};
