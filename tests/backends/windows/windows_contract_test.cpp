#include "backends/windows/windows_machine.h"
#include "platform/clock_contract.h"
#include "platform/event_log_exporter_contract.h"
#include "platform/event_reporter_contract.h"
#include "platform/file_system_contract.h"
#include "platform/host_module_contract.h"
#include "platform/languages_contract.h"
#include "platform/processes_contract.h"
#include "platform/registry_contract.h"
#include "platform/text_stream_contract.h"
#include "platform/time_zone_contract.h"
#include "platform/workstation_contract.h"

namespace {

INSTANTIATE_TYPED_TEST_SUITE_P(Windows, FileSystemContract, WindowsMachine);
INSTANTIATE_TYPED_TEST_SUITE_P(Windows, TextStreamContract, WindowsMachine);
INSTANTIATE_TYPED_TEST_SUITE_P(Windows, RegistryContract, WindowsMachine);
INSTANTIATE_TYPED_TEST_SUITE_P(Windows, EventReporterContract, WindowsMachine);
INSTANTIATE_TYPED_TEST_SUITE_P(Windows, EventLogExporterContract, WindowsMachine);
INSTANTIATE_TYPED_TEST_SUITE_P(Windows, TimeZoneContract, WindowsMachine);
INSTANTIATE_TYPED_TEST_SUITE_P(Windows, LanguagesContract, WindowsMachine);
INSTANTIATE_TYPED_TEST_SUITE_P(Windows, ClockContract, WindowsMachine);
INSTANTIATE_TYPED_TEST_SUITE_P(Windows, ProcessesContract, WindowsMachine);
INSTANTIATE_TYPED_TEST_SUITE_P(Windows, WorkstationContract, WindowsMachine);
INSTANTIATE_TYPED_TEST_SUITE_P(Windows, HostModuleContract, WindowsMachine);

} // namespace
