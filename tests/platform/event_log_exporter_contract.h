#pragma once

#include "platform/event_log_exporter.h"
#include "platform/file_system.h"
#include "support/error_of.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>

/// What every EventLogExporter promises. A `Machine` is one of FileSystemContract that has an event
/// log "Application" of two records, and `EventLogExporter& exporter()`.
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
    for (int record = 0; record < 2; ++record) {
        const std::string line(reader->readLine());
        EXPECT_EQ(5, std::count(line.begin(), line.end(), ',')) << line;
    }
    EXPECT_TRUE(reader->atEnd());
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

TYPED_TEST_P(EventLogExporterContract, AReadOnlyTargetRaises70AndStays)
{
    this->machine.files().createTextFile("C:\\out.csv")->write("keep");
    this->machine.makeReadOnly("C:\\out.csv");
    EXPECT_EQ(70, errorOf([&] {
                  this->machine.exporter().exportEventLog("Application", "C:\\out.csv", 0);
              }));
    EXPECT_EQ("keep", this->machine.files().openForReading("C:\\out.csv")->readAll());
}

TYPED_TEST_P(EventLogExporterContract, AFullDiskRaises61)
{
    int error = 0;
    this->machine.withRoomFor(10, [&] {
        error = errorOf(
            [&] { this->machine.exporter().exportEventLog("Application", "C:\\out.csv", 0); });
    });
    EXPECT_EQ(61, error);
}

REGISTER_TYPED_TEST_SUITE_P(EventLogExporterContract, WritesARowOfNamesAndTheRecords,
                            WritesOverAnExistingFile, ALogThatDoesNotExistRaises53AndWritesNothing,
                            AMissingFolderRaises76, AReadOnlyTargetRaises70AndStays,
                            AFullDiskRaises61);
