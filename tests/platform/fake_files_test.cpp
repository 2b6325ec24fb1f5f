#include "backends/xml/libxml_documents.h"
#include "platform/event_log_exporter_contract.h"
#include "platform/file_system_contract.h"
#include "platform/text_stream_contract.h"
#include "platform/xml_contract.h"
#include "support/fakes/fake_clock.h"
#include "support/fakes/fake_event_log_exporter.h"
#include "support/fakes/files/fake_file_system.h"

#include <functional>

namespace {

/// The fake file system as the contracts want a machine, and what lies on it.
class FakeDrives {
public:
    FakeDrives()
    {
        files_.withDrive("D:", {1'000'000, 2'000'000});
        logs_.with("Application", "2005-10-08 15:23:07,Information,S,1,C,one\r\n"
                                  "2005-10-08 15:23:08,Information,S,1,C,two\r\n");
    }

    FileSystem& files() { return files_; }
    EventLogExporter& exporter() { return logs_; }
    XmlService& xml() { return xml_; }

    void makeReadOnly(const std::string& path) { files_.readOnly(path); }

    void withRoomFor(std::int64_t bytes, const std::function<void()>& work)
    {
        files_.roomFor(bytes);
        work();
        files_.roomForAll();
    }

private:
    FakeClock clock_;
    FakeFileSystem files_{clock_};
    FakeEventLogExporter logs_{files_};
    LibxmlDocuments xml_{files_};
};

INSTANTIATE_TYPED_TEST_SUITE_P(Fake, FileSystemContract, FakeDrives);
INSTANTIATE_TYPED_TEST_SUITE_P(Fake, TextStreamContract, FakeDrives);
INSTANTIATE_TYPED_TEST_SUITE_P(Fake, EventLogExporterContract, FakeDrives);
INSTANTIATE_TYPED_TEST_SUITE_P(OfFakeFiles, XmlContract, FakeDrives);

} // namespace
