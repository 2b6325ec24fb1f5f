#include "system/local_time.h"

std::tm localTimeOf(std::time_t moment)
{
    std::tm local{};
    if (::localtime_s(&local, &moment) != 0) return {};
    return local;
}
