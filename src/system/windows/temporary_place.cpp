#include "system/windows/temporary_place.h"

#include "system/system_error.h"
#include "system/windows/security.h"
#include "system/windows/windows_calls.h"

#include <array>
#include <random>

std::string makeTemporary(const std::string& start, DWORD taken, const TemporaryMaking& making)
{
    constexpr int mostAttempts = 100;
    std::array<wchar_t, MAX_PATH + 2> place{};
    const DWORD length = ::GetTempPathW(static_cast<DWORD>(place.size()), place.data());
    if (length == 0 || length > place.size())
        throw systemError(noteError(), runTimeErrors::pathNotFound);
    const NewSecurity own(OthersMay::nothing);
    SECURITY_ATTRIBUTES attributes{sizeof attributes, own.descriptor(), FALSE};
    std::random_device random;
    for (int attempt = 0; attempt < mostAttempts; ++attempt) {
        const std::string path =
            utf8Of({place.data(), length}) + start + std::to_string(random() % 1'000'000'000);
        if (making(machinePathOf(path), attributes)) return path;
        if (::GetLastError() != taken) throw systemError(noteError(), runTimeErrors::pathNotFound);
    }
    throw RunTimeError(runTimeErrors::permissionDenied);
}
