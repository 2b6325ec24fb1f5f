#include "timeline/sources/kept_bytes.h"

#include "system/file_bytes.h"

namespace timeline {

std::uint64_t KeptBytes::size() const
{
    const KeptFile::Use use(*file_);
    return static_cast<std::uint64_t>(factsOf(use.descriptor()).size);
}

std::size_t KeptBytes::read(char* into, std::size_t size, std::uint64_t at) const
{
    const KeptFile::Use use(*file_);
    return readAt(use.descriptor(), into, size, at);
}

} // namespace timeline
