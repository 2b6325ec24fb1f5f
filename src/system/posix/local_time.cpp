#include "system/local_time.h"

std::tm localTimeOf(std::time_t moment)
{
    std::tm local{};
    ::localtime_r(&moment, &local);
    return local;
}
