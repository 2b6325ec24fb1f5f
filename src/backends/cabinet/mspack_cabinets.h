#pragma once

#include "platform/cabinet.h"

/// Reads cabinets with libmspack.
class MspackCabinets final : public CabinetReader {
public:
    bool isCabinet(std::string_view head) const override;
    std::unique_ptr<Cabinet> open(std::shared_ptr<const StoredBytes> bytes) const override;
};
