#pragma once

#include "platform/time_zone.h"
#include "support/error_of.h"

#include <gtest/gtest.h>

/// What every TimeZoneService promises. A `Machine` has a default constructor that puts it in
/// Pacific time (PST8PDT,M3.2.0,M11.1.0), `TimeZoneService& timeZone()`, and
/// `TimeZoneService& zoneWithoutRule()`, seven hours behind universal time all year.
template <typename Machine>
class TimeZoneContract : public testing::Test {
protected:
    /// Local "month/day hour:minute" as one number, such as 1008'1523.
    int local(const TimeZoneInformation& zone, const SystemTime& universal)
    {
        const SystemTime moment = machine.timeZone().toLocal(zone, universal);
        return moment.month * 1'000'000 + moment.day * 10'000 + moment.hour * 100 + moment.minute;
    }

    Machine machine;
};

TYPED_TEST_SUITE_P(TimeZoneContract);

TYPED_TEST_P(TimeZoneContract, ReadsTheZoneWithItsRule)
{
    TimeZoneInformation zone;
    const TimeZoneState state = this->machine.timeZone().read(zone);
    EXPECT_TRUE(state == TimeZoneState::standardTime || state == TimeZoneState::daylightTime);
    EXPECT_EQ(480, zone.bias);
    EXPECT_EQ(0, zone.standardBias);
    EXPECT_EQ(-60, zone.daylightBias);
    EXPECT_EQ((SystemTime{0, 11, 0, 1, 2, 0, 0, 0}), zone.standardDate);
    EXPECT_EQ((SystemTime{0, 3, 0, 2, 2, 0, 0, 0}), zone.daylightDate);
}

TYPED_TEST_P(TimeZoneContract, AZoneWithoutADaylightRuleHasNoStateInForce)
{
    TimeZoneInformation zone;
    EXPECT_EQ(TimeZoneState::unknown, this->machine.zoneWithoutRule().read(zone));
    EXPECT_EQ(420, zone.bias);
    EXPECT_EQ(0, zone.standardDate.month);
    EXPECT_EQ(0, zone.daylightDate.month);
    for (const int month : {1, 7}) {
        const SystemTime noon{2010, month, 0, 4, 12, 0, 0, 0};
        EXPECT_EQ(5, this->machine.zoneWithoutRule().toLocal(zone, noon).hour);
    }
}

TYPED_TEST_P(TimeZoneContract, ReadingReplacesAllOfTheRecord)
{
    TimeZoneInformation zone;
    this->machine.timeZone().read(zone);
    TimeZoneInformation other;
    other.bias = 1;
    other.standardBias = 2;
    other.standardName = "another";
    other.daylightDate = {2010, 1, 1, 1, 1, 1, 1, 1};
    this->machine.timeZone().read(other);
    EXPECT_EQ(zone, other);
}

TYPED_TEST_P(TimeZoneContract, ConvertsByTheRuleInForceAtTheMoment)
{
    TimeZoneInformation zone;
    this->machine.timeZone().read(zone);
    EXPECT_EQ(7'01'05'00, this->local(zone, {2010, 7, 4, 1, 12, 0, 0, 0}));
    EXPECT_EQ(12'31'23'30, this->local(zone, {2010, 1, 5, 1, 7, 30, 0, 0}));
    EXPECT_EQ(3'14'01'59, this->local(zone, {2010, 3, 0, 14, 9, 59, 0, 0}));
    EXPECT_EQ(3'14'03'00, this->local(zone, {2010, 3, 0, 14, 10, 0, 0, 0}));
    EXPECT_EQ(11'07'01'59, this->local(zone, {2010, 11, 0, 7, 8, 59, 0, 0}));
    EXPECT_EQ(11'07'01'00, this->local(zone, {2010, 11, 0, 7, 9, 0, 0, 0}));
}

TYPED_TEST_P(TimeZoneContract, KeepsSecondsAndNamesTheDay)
{
    TimeZoneInformation zone;
    zone.bias = -330;
    const SystemTime moment =
        this->machine.timeZone().toLocal(zone, {2008, 2, 4, 28, 23, 15, 42, 7});
    EXPECT_EQ((SystemTime{2008, 2, 5, 29, 4, 45, 42, 7}), moment);
}

TYPED_TEST_P(TimeZoneContract, FollowsARuleOfTheSouthernHalf)
{
    TimeZoneInformation zone;
    zone.bias = -600;
    zone.daylightBias = -60;
    zone.standardDate = {0, 4, 0, 1, 3, 0, 0, 0};
    zone.daylightDate = {0, 10, 0, 1, 2, 0, 0, 0};
    EXPECT_EQ(1'15'11'00, this->local(zone, {2010, 1, 5, 15, 0, 0, 0, 0}));
    EXPECT_EQ(7'15'10'00, this->local(zone, {2010, 7, 4, 15, 0, 0, 0, 0}));
    EXPECT_EQ(12'31'11'00, this->local(zone, {2010, 12, 5, 31, 0, 0, 0, 0}));
}

TYPED_TEST_P(TimeZoneContract, WeekFiveIsTheLastOfTheMonth)
{
    TimeZoneInformation zone;
    zone.bias = -60;
    zone.daylightBias = -60;
    zone.standardDate = {0, 10, 0, 5, 3, 0, 0, 0};
    zone.daylightDate = {0, 3, 0, 5, 2, 0, 0, 0};
    EXPECT_EQ(3'28'01'59, this->local(zone, {2010, 3, 0, 28, 0, 59, 0, 0}));
    EXPECT_EQ(3'28'03'00, this->local(zone, {2010, 3, 0, 28, 1, 0, 0, 0}));
    EXPECT_EQ(10'31'02'00, this->local(zone, {2010, 10, 0, 31, 1, 0, 0, 0}));
}

TYPED_TEST_P(TimeZoneContract, PartsThatAreNoDateRaise5)
{
    const TimeZoneInformation zone;
    const SystemTime wrong[] = {
        {2010, 2, 0, 29, 0, 0, 0, 0}, {2010, 13, 0, 1, 0, 0, 0, 0}, {2010, 1, 0, 0, 0, 0, 0, 0},
        {2010, 1, 0, 1, 24, 0, 0, 0}, {2010, 1, 0, 1, 0, 60, 0, 0}, {},
    };
    for (const SystemTime& moment : wrong)
        EXPECT_EQ(5, errorOf([&] { this->machine.timeZone().toLocal(zone, moment); }));
}

REGISTER_TYPED_TEST_SUITE_P(TimeZoneContract, ReadsTheZoneWithItsRule,
                            AZoneWithoutADaylightRuleHasNoStateInForce,
                            ReadingReplacesAllOfTheRecord, ConvertsByTheRuleInForceAtTheMoment,
                            KeepsSecondsAndNamesTheDay, FollowsARuleOfTheSouthernHalf,
                            WeekFiveIsTheLastOfTheMonth, PartsThatAreNoDateRaise5);
