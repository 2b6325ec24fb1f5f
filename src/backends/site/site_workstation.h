#pragma once

#include "backends/site/site_settings.h"
#include "platform/workstation.h"

#include <string>

/// The computer and the user of a site; the machine's own where its settings leave them out.
class SiteWorkstation final : public Workstation {
public:
    explicit SiteWorkstation(const SiteSettings& settings);

    int platform() const override { return 2; }
    std::optional<WorkstationDetails> details() const override;
    std::optional<LoggedOnUser> user() const override;

private:
    std::string computer_;
    std::string user_;
};
