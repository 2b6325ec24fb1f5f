#pragma once

/// The names of files and folders that lie beside the tool, and of those that a gather makes. The
/// tool makes them; a site that cleans up after it knows them by their names.
namespace toolFiles {

// Beside the tool.
constexpr const char* definitionsFolder = "ZMKXML";
constexpr const char* blankDatabase = "blankWPNDB.mdb";
constexpr const char* cabinetMaker = "cabmaker.exe";

// What a gather keeps: COMPUTER_WPN_20061231_235959.mdb, and .cab.
constexpr const char* resultMark = "_WPN_";
constexpr const char* databaseEnding = ".mdb";
constexpr const char* cabinetEnding = ".cab";

// What it removes from beside them when the cabinet is made.
constexpr const char* directiveFile = "ZMK.DDF";
constexpr const char* setupReport = "setup.rpt";
constexpr const char* setupList = "setup.inf";
constexpr const char* diskFolder = "disk1";

} // namespace toolFiles
