#include "system/regional_settings.h"

std::optional<std::string> timeZoneSetting()
{
    return {};
}

std::optional<std::int32_t> languageSetting()
{
    return {};
}
