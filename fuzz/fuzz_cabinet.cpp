#include "require.h"

#include "backends/cabinet/mspack_cabinets.h"
#include "platform/stored_bytes.h"
#include "runtime/run_time_error.h"
#include "text/utf8.h"

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace {

class BytesInMemory final : public StoredBytes {
public:
    explicit BytesInMemory(std::string_view bytes) : bytes_(bytes) {}

    std::uint64_t size() const override { return bytes_.size(); }
    std::size_t read(char* into, std::size_t size, std::uint64_t at) const override
    {
        return at < bytes_.size() ? bytes_.copy(into, size, at) : 0;
    }

private:
    std::string_view bytes_;
};

constexpr std::uint64_t mostUnpacked = 1 << 24;

void readAll(Cabinet& cabinet)
{
    std::uint64_t unpacked = 0;
    for (std::size_t number = 0; number < cabinet.members().size(); ++number) {
        const CabinetMember& member = cabinet.members()[number];
        require(isUtf8(member.name));
        const std::uint64_t effort = cabinet.effort(number);
        require(effort >= member.size);
        if ((unpacked += effort) > mostUnpacked) return;
        std::uint64_t got = 0;
        bool whole = true;
        try {
            cabinet.read(number, [&](std::string_view piece) { got += piece.size(); });
        } catch (const RunTimeError&) {
            whole = false;
        }
        require(got <= member.size);
        require(!whole || got == member.size);
    }
}

} // namespace

/// Any bytes are read, or refused with a run-time error, and no member is longer than it says.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    try {
        readAll(*MspackCabinets().open(std::make_shared<BytesInMemory>(bytes)));
    } catch (const RunTimeError&) {
    }
    return 0;
}
