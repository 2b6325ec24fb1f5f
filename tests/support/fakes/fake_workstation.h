#pragma once

#include "platform/workstation.h"

#include <optional>

/// A workstation whose answers a test may change or take away.
class FakeWorkstation final : public Workstation {
public:
    int platformNumber = 2;
    std::optional<WorkstationDetails> machine =
        WorkstationDetails{500, "ORVAN01", "KELMA", 5, 2, "", 1};
    std::optional<LoggedOnUser> person = LoggedOnUser{"support", "KELMA", "", "ORVANDC"};

    int platform() const override { return platformNumber; }
    std::optional<WorkstationDetails> details() const override { return machine; }
    std::optional<LoggedOnUser> user() const override { return person; }
};
