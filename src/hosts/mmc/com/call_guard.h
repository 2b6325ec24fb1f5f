#pragma once

#include "runtime/run_time_error.h"

#include <concepts>
#include <new>
#include <windows.h>

namespace mmc {

/// The body of every COM method and window procedure: no exception leaves, and the code says what
/// happened.
template <std::invocable Body>
HRESULT guarded(Body&& body) noexcept
try {
    return body();
} catch (const RunTimeError&) {
    return E_FAIL;
} catch (const std::bad_alloc&) {
    return E_OUTOFMEMORY;
} catch (...) {
    return E_UNEXPECTED;
}

} // namespace mmc
