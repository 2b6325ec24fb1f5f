#pragma once

#include "hosts/cli/command.h"
#include "hosts/cli/terminal/interrupt.h"
#include "hosts/cli/terminal/terminal_desktop.h"
#include "hosts/common/tool_on_server.h"

#include <functional>
#include <memory>
#include <optional>
#include <string>

namespace cli {

/// What a command opens the tool for.
enum class ToolUse {
    change, ///< one program at a time: what is read stays so until it is written
    add,    ///< events, logs and gathered files, beside programs that change something; on a
            ///< read-only site gathered files alone, outside of it
    look,   ///< leaves no event, log or value, and needs no leave to write
};

/// The server that the command line names, opened to look at it alone. Raises 76 for a folder that
/// is no site, 321 for a damaged one, and 70, 57.
std::unique_ptr<ServerAccess> serverToExamine(const GlobalOptions& options);

/// What has to be there before a command's tool and as long as it.
struct AroundTool {
    TerminalDesktop desktop_;
    std::unique_ptr<ServerAccess> access_;
    HeldTurn turn_;
    std::optional<InterruptWish> interrupt_;
};

/// The tool at work on a server: from its loading to its unloading, with a terminal for a desktop.
///
/// A program that leaves something there is not ended in the middle: Ctrl-C, SIGTERM and SIGHUP are
/// a wish (`interrupted`) from the moment the tool is loaded.
class OpenTool final : private AroundTool, public ToolOnServer {
public:
    using Check = std::function<void(OpenTool&)>;

    /// Opens the server, and loads the snap-in into a console. Raises CommandFailure for a folder
    /// that is no site, or may not be written to by a command that changes it; RunTimeError for a
    /// damaged one, and for a server that another program keeps on changing.
    ///
    /// `check` looks at the command's arguments on the open server, before the tool starts and
    /// before anything is made there: what it raises ends the command with nothing changed. Its
    /// context is one of a tool that looks, and goes afterwards.
    ///
    /// A wish to end while the tool loads ends the command (CommandFailure) with the tool unloaded.
    OpenTool(const GlobalOptions& options, ToolUse use, const Check& check = {});

    /// Unloads the snap-in when a failure kept the command from `close`.
    ~OpenTool();

    /// Unloads the snap-in, and lets others change the server. Says, when the tool's own log could
    /// not be written, why. Raises what the snap-in raises, and CommandFailure when the registry
    /// did not take what a command was to change.
    void close();

    TerminalDesktop& desktop() { return desktop_; }

    /// Whether the person wished the command to end.
    bool interrupted() const { return interrupt_ && interrupt_->made(); }

    /// Whether a file can be left at a path of the tool as far as the server goes: a read-only one
    /// takes none. Raises as `machinePath`.
    bool keeps(const std::string& path);

    /// A path as a person types it, as one of the tool, which may be reached from then on.
    std::string toolPath(const std::string& typed) { return server().toolPath(typed); }

    /// Raises CommandFailure, with the reason, when the tool has no connection to the server's
    /// database.
    void requireDatabase();

    /// The open Processes node. Its processes' names are those of its children.
    ScopeItem& processes();

private:
    HeldTurn takeTurn();

    ToolUse use_;
};

} // namespace cli
