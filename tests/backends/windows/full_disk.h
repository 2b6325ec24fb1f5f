#pragma once

#include <cstdint>
#include <functional>

/// Calls `work` while no file that this program writes may grow beyond so many bytes: the system's
/// writing call fails as on a full disk.
void withFullDisk(std::int64_t bytes, const std::function<void()>& work);
