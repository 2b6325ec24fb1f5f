#pragma once

#include <cstdint>
#include <optional>
#include <string>

struct WorkstationDetails {
    std::int32_t platformId = 0;
    std::string computerName;
    std::string domain;
    std::int32_t versionMajor = 0;
    std::int32_t versionMinor = 0;
    std::string lanRoot;
    std::int32_t loggedOnUsers = 0;
};

struct LoggedOnUser {
    std::string userName;
    std::string logonDomain;
    std::string otherDomains;
    std::string logonServer;
};

/// The machine's and the user's names, as the operating system gives them.
class Workstation {
public:
    virtual ~Workstation() = default;

    /// 2 on the Windows NT family, and on whatever stands in for it.
    virtual int platform() const = 0;

    /// Nothing when the system does not answer.
    virtual std::optional<WorkstationDetails> details() const = 0;
    virtual std::optional<LoggedOnUser> user() const = 0;
};
