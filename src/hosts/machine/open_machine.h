#pragma once

#include "hosts/common/server_access.h"

#include <functional>
#include <memory>
#include <string>

/// What a host tells of itself when it opens the machine that it runs on.
struct MachineFacts {
    /// The tool's own library, as the system's handle of it; null for the program itself. Its
    /// folder is the tool's, and its version the tool's own.
    void* module = nullptr;

    /// A folder for the tool's files that the person named; empty for that of the module.
    std::string toolFolder = {};

    /// As of `HostFacts`.
    bool developmentHost = false;
    std::function<bool()> interrupted = {};
};

/// Whether the machine that this runs on can be a server by itself: one with Windows can.
bool machineIsAServer();

/// The server that this machine is, without asking whether one is installed. Raises 53 where the
/// machine can be none.
std::unique_ptr<ServerAccess> openMachine(const MachineFacts& facts);
