#pragma once

#include "backends/site/site_settings.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>

/// What sample server to make.
struct SampleOptions {
    std::string folder;        ///< the site's folder: missing, or empty; its parent is there
    std::string dataFolder;    ///< what ships with the tool
    std::size_t lines = 60000; ///< of all diagnostic logs together; at least 100 are made
    std::uint64_t seed = 1;    ///< the same seed makes the same files, byte for byte
    LogFields logFields = LogFields::basic;

    /// Hears, every thousand lines or so and before the sample is put in its place, which part of
    /// it is made, 0 to 1. What it raises ends the making. Empty when nobody asks.
    std::function<void(double done)> onProgress;
};

/// Makes a site that looks like a voice-messaging server after three days of work.
///
/// The days end on Thursday, 20 February 2025, at 17:42 in the server's zone, and the files are
/// dated to match. Records in data files and a formatted copy of one log come on top of `lines`.
/// All is made beside the folder, under its name with ".partial", and moved when it is whole: a
/// failure leaves nothing, one that `onProgress` raised included.
/// Raises 58 for a folder with something in it or a file of its name, 76 for a missing parent, 53
/// for installed data that lack a file, 61 and 57 for what cannot be written.
void makeSampleServer(const SampleOptions& options);

/// Whether a site was made by `makeSampleServer`, by what the first line of its site.ini says.
/// False for one that can't be read.
bool isSampleServer(const std::string& siteFolder);
