#pragma once

#include <string>

/// The tool's own module and the program that hosts it.
class HostModule {
public:
    virtual ~HostModule() = default;

    /// The folder of the tool's module, such as `C:\OrvanDiagnostics`.
    virtual std::string folder() const = 0;

    /// "OrvanDiagnostics".
    virtual std::string name() const = 0;

    virtual int majorVersion() const = 0;
    virtual int minorVersion() const = 0;
    virtual int revision() const = 0;

    /// The host process's whole command line.
    virtual std::string commandLine() const = 0;

    /// Whether the development environment hosts the tool.
    ///
    /// A failed statement runs again when the answer to it is true. `failuresInARow` is how often
    /// it has failed by now, so that a developer may give it up; 0 when the tool asks for itself.
    virtual bool isDevelopmentHost(int failuresInARow) const = 0;

    /// Sends a text to whoever debugs the host; nobody listening is no error.
    virtual void debugOutput(const std::string& text) = 0;
};
