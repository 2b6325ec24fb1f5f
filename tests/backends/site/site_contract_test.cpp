#include "backends/site/site_machine.h"
#include "platform/clock_contract.h"
#include "platform/event_reporter_contract.h"
#include "platform/host_module_contract.h"
#include "platform/languages_contract.h"
#include "platform/processes_contract.h"
#include "platform/registry_contract.h"
#include "platform/time_zone_contract.h"
#include "platform/workstation_contract.h"

namespace {

INSTANTIATE_TYPED_TEST_SUITE_P(Site, RegistryContract, SiteMachine);
INSTANTIATE_TYPED_TEST_SUITE_P(Site, EventReporterContract, SiteMachine);
INSTANTIATE_TYPED_TEST_SUITE_P(Site, TimeZoneContract, SiteMachine);
INSTANTIATE_TYPED_TEST_SUITE_P(Site, LanguagesContract, SiteMachine);
INSTANTIATE_TYPED_TEST_SUITE_P(Site, ClockContract, SiteMachine);
INSTANTIATE_TYPED_TEST_SUITE_P(Site, ProcessesContract, SiteMachine);
INSTANTIATE_TYPED_TEST_SUITE_P(Site, WorkstationContract, SiteMachine);
INSTANTIATE_TYPED_TEST_SUITE_P(Site, HostModuleContract, SiteMachine);

} // namespace
