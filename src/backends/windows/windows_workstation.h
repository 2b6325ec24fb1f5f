#pragma once

#include "platform/workstation.h"

/// The machine's and the user's names, from the system's workstation service.
class WindowsWorkstation final : public Workstation {
public:
    int platform() const override;
    std::optional<WorkstationDetails> details() const override;
    std::optional<LoggedOnUser> user() const override;
};
