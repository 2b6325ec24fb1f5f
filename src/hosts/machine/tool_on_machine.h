#pragma once

#include "hosts/common/tool_on_server.h"
#include "hosts/machine/open_machine.h"

#include <memory>
#include <string>

/// What has to be there before a tool on a machine and as long as it.
struct AroundToolOnMachine {
    std::unique_ptr<ServerAccess> machine_;
};

/// The tool on the machine that it runs on, for a host that works there alone.
class ToolOnMachine final : private AroundToolOnMachine, public ToolOnServer {
public:
    /// `desktop` outlives this. The snap-in is not loaded yet. Raises 53 where the machine can be
    /// no server.
    ToolOnMachine(const MachineFacts& facts, Desktop& desktop);

    using ToolOnServer::load;
    using ToolOnServer::unload;

    /// Stops work under way, such as a gather, at its next progress point; does nothing where there
    /// is none.
    void cancelWork();

    /// Why the tool does not do what it should, once it is loaded: there is no server on this
    /// machine, its database lets nobody in, the registry takes nothing. A sentence for the person,
    /// or the empty text.
    std::string complaint();
};
