#include "system/regional_settings.h"

#include "system/windows/zone_text.h"

std::optional<std::string> timeZoneSetting()
{
    TIME_ZONE_INFORMATION zone{};
    if (::GetTimeZoneInformation(&zone) == TIME_ZONE_ID_INVALID) return {};
    return zoneTextOf(zone);
}

std::optional<std::int32_t> languageSetting()
{
    return ::GetUserDefaultLangID();
}
