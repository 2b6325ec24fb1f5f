#pragma once

#include "platform/event_log_exporter.h"
#include "platform/file_system.h"
#include "support/error_of.h"

#include <gtest/gtest.h>

/// What every EventLogExporter promises. A `Machine` has a default constructor that gives an event
/// log "Application" with at least one record, `EventLogExporter& exporter()` and
/// `FileSystem& files()`.
template <typename Machine>
class EventLogExporterContract : public testing::Test {
protected:
    Machine machine;
};

TYPED_TEST_SUITE_P(EventLogExporterContract);

TYPED_TEST_P(EventLogExporterContract, WritesARowOfNamesAndTheRecords)
{
    this->machine.exporter().exportEventLog("Application", "C:\\out.csv", 0);
    const auto reader = this->machine.files().openForReading("C:\\out.csv");
    EXPECT_EQ("Time,Type,Source,Event ID,Computer,Message", reader->readLine());
    EXPECT_FALSE(reader->atEnd());
}

TYPED_TEST_P(EventLogExporterContract, WritesOverAnExistingFile)
{
    this->machine.files().createTextFile("C:\\out.csv")->write("old text that was here first");
    this->machine.exporter().exportEventLog("APPLICATION", "C:\\out.csv", 0);
    EXPECT_EQ("Time,Type,Source,Event ID,Computer,Message",
              this->machine.files().openForReading("C:\\out.csv")->readLine());
}

TYPED_TEST_P(EventLogExporterContract, ALogThatDoesNotExistRaises53AndWritesNothing)
{
    EXPECT_EQ(53, errorOf([&] {
                  this->machine.exporter().exportEventLog("No Such Log", "C:\\out.csv", 0);
              }));
    EXPECT_FALSE(this->machine.files().fileExists("C:\\out.csv"));
}

TYPED_TEST_P(EventLogExporterContract, AMissingFolderRaises76)
{
    EXPECT_EQ(76, errorOf([&] {
                  this->machine.exporter().exportEventLog("Application", "C:\\None\\o.csv", 0);
              }));
}

REGISTER_TYPED_TEST_SUITE_P(EventLogExporterContract, WritesARowOfNamesAndTheRecords,
                            WritesOverAnExistingFile, ALogThatDoesNotExistRaises53AndWritesNothing,
                            AMissingFolderRaises76);
