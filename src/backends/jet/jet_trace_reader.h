#pragma once

#include "platform/trace_rows.h"

namespace jet {

/// Reads Jet 4 databases, of each of which it keeps some 1 MB in memory: there may be many.
class JetTraceReader final : public TraceTableReader {
public:
    bool isDatabase(std::string_view head) const override;
    std::unique_ptr<TraceTables> open(std::shared_ptr<const StoredBytes> bytes) const override;
};

} // namespace jet
