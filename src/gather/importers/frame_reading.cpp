#include "gather/importers/frame_reading.h"

void FrameReading::begin(const LogReading& reading)
{
    step_([&] { dates_.startDay(reading.file().created); });
    step_([&] { dates_.startTime(reading.file().created); });
}

FramePlace FrameReading::place(std::string_view timeStamp)
{
    step_([&] { dates_.readTime(timeStamp); });
    if (dates_.timeWentBack()) step_([&] { dates_.nextDay(); });
    dates_.rememberTime();
    step_([&] { dates_.formMoment(); });
    if (dates_.moment() < dateStart_ || dates_.moment() > dateEnd_)
        return seenInRange_ ? FramePlace::behind : FramePlace::outside;
    seenInRange_ = true;
    return FramePlace::inside;
}

const std::string& FrameReading::rowDate(std::string_view timeStamp)
{
    dates_.rowDate(timeStamp, rowDate_);
    return rowDate_;
}
