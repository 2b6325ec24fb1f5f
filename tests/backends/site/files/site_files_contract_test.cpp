#include "backends/site/site_machine.h"
#include "platform/event_log_exporter_contract.h"
#include "platform/file_system_contract.h"
#include "platform/text_stream_contract.h"
#include "platform/xml_contract.h"

namespace {

INSTANTIATE_TYPED_TEST_SUITE_P(Site, FileSystemContract, SiteMachine);
INSTANTIATE_TYPED_TEST_SUITE_P(Site, TextStreamContract, SiteMachine);
INSTANTIATE_TYPED_TEST_SUITE_P(Site, EventLogExporterContract, SiteMachine);
INSTANTIATE_TYPED_TEST_SUITE_P(Site, XmlContract, SiteMachine);

} // namespace
