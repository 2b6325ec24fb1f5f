#pragma once

#include "platform/workstation.h"

#include <cstdint>
#include <string>

struct ToolContext;

/// The names of the machine and of the person logged on, as the last `Refresh` found them.
///
/// What the system does not tell stays as it was: empty or 0 at first. On a platform other than
/// the Windows NT family all stay so.
class WSInfo {
public:
    /// Reads everything once. `workstation` outlives the object.
    explicit WSInfo(const Workstation& workstation);

    void Refresh();

    const std::string& ComputerName() const { return machine_.computerName; }
    const std::string& Domain() const { return machine_.domain; }
    const std::string& LanRoot() const { return machine_.lanRoot; }
    std::int32_t LoggedOnUsers() const { return machine_.loggedOnUsers; }
    std::int32_t PlatformId() const { return machine_.platformId; }
    std::int32_t VerMajor() const { return machine_.versionMajor; }
    std::int32_t VerMinor() const { return machine_.versionMinor; }
    const std::string& LogonDomain() const { return user_.logonDomain; }
    const std::string& LogonServer() const { return user_.logonServer; }
    const std::string& OtherDomains() const { return user_.otherDomains; }
    const std::string& UserName() const { return user_.userName; }

private:
    const Workstation& workstation_;
    bool m_bIsNT = false;
    WorkstationDetails machine_;
    LoggedOnUser user_;
};

/// `g_wsInfo`, made on first use.
WSInfo& workstationInfo(ToolContext& tool);
