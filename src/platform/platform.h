#pragma once

class Clock;
class DatabaseConnection;
class Desktop;
class EventLogExporter;
class EventReporter;
class FileSystem;
class HostModule;
class Languages;
class Processes;
class Registry;
class TimeZoneService;
class TraceDatabaseEngine;
class Workstation;
class XmlService;

/// Every service that the tool is given. A host owns them and outlives the tool.
struct Platform {
    FileSystem& files;
    Registry& registry;
    Clock& clock;
    TimeZoneService& timeZone;
    EventReporter& eventReporter;
    EventLogExporter& eventLogExporter;
    Processes& processes;
    Workstation& workstation;
    HostModule& module;
    Languages& languages;
    Desktop& desktop;
    DatabaseConnection& connection;
    XmlService& xml;
    TraceDatabaseEngine& traceDatabases;
};
