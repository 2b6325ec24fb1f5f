#pragma once

#include "platform/stored_bytes.h"
#include "timeline/sources/open_files.h"

#include <memory>

namespace timeline {

/// The bytes of a file that may be closed in between.
class KeptBytes final : public StoredBytes {
public:
    explicit KeptBytes(std::shared_ptr<KeptFile> file) : file_(std::move(file)) {}

    std::uint64_t size() const override;
    std::size_t read(char* into, std::size_t size, std::uint64_t at) const override;

private:
    std::shared_ptr<KeptFile> file_;
};

} // namespace timeline
