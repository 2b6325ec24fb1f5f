#include "hosts/common/watched_services.h"

#include "platform/host_module.h"

WatchedServices::WatchedServices(const Platform& services)
    : toolLog_(services.module.folder()), files_(services.files, report_, toolLog_),
      registry_(services.registry),
      traceDatabases_(services.traceDatabases, report_), platform_{files_,
                                                                   registry_,
                                                                   services.clock,
                                                                   services.timeZone,
                                                                   services.eventReporter,
                                                                   services.eventLogExporter,
                                                                   services.processes,
                                                                   services.workstation,
                                                                   services.module,
                                                                   services.languages,
                                                                   services.desktop,
                                                                   services.connection,
                                                                   services.xml,
                                                                   traceDatabases_}
{}
