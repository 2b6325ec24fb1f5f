#include "hosts/desktop/sheets/typed_moment.h"

#include <gtest/gtest.h>

namespace desktop {

namespace {

const QString english = QStringLiteral("M/d/yyyy");
const QString german = QStringLiteral("dd.MM.yyyy");
const QString french = QStringLiteral("dd/MM/yyyy");
const QString japanese = QStringLiteral("yyyy/MM/dd");

struct DateCase {
    const char* typed;
    const QString& format;
    const char* date; ///< empty: not understood
};

TEST(TypedMoment, ADateIsReadInTheFormOfTheLanguageOrWithTheYearFirst)
{
    const DateCase cases[] = {
        {"2/20/2025", english, "2025-02-20"},
        {"  02/20/2025\t", english, "2025-02-20"},
        {"2-20-2025", english, "2025-02-20"},
        {"2025-02-20", english, "2025-02-20"},
        {"2025/2/20", english, "2025-02-20"},
        {"1/2/2025", english, "2025-01-02"},
        {"20.02.2025", german, "2025-02-20"},
        {"1.2.2025", german, "2025-02-01"},
        {"20. 2. 2025", german, "2025-02-20"},
        {"2025-02-20", german, "2025-02-20"},
        {"20/02/2025", french, "2025-02-20"},
        {"1/2/2025", french, "2025-02-01"},
        {"2025/02/20", japanese, "2025-02-20"},
        {"2025年2月20日", japanese, "2025-02-20"},
        {"２０２５／０２／２０", japanese, "2025-02-20"},
        {"2/29/2024", english, "2024-02-29"},
        {"1/1/0100", english, "0100-01-01"},
    };
    for (const auto& c : cases) {
        const auto date = dateTyped(QString::fromUtf8(c.typed), c.format);
        ASSERT_TRUE(date) << c.typed;
        EXPECT_EQ(c.date, date->toString(Qt::ISODate).toStdString()) << c.typed;
    }
}

TEST(TypedMoment, WhatIsNoDateOrOnlyAPartOfOneIsNotUnderstood)
{
    const DateCase cases[] = {
        {"", english, ""},           {"2", english, ""},
        {"2/20", english, ""},       {"2/20/", english, ""},
        {"2/20/20", english, ""},    {"2/20/202", english, ""},
        {"2/30/2025", english, ""},  {"13/1/2025", english, ""},
        {"20/2/2025", english, ""},  {"0/1/2025", english, ""},
        {"2/20-2025", english, ""},  {"2/29/2025", english, ""},
        {"2.3.2025", english, ""},   {"2/3/2025", german, ""},
        {"20.2.2025", french, ""},   {"20/2/2025", japanese, ""},
        {"tomorrow", english, ""},   {"2/20/2025 3:30 PM", english, ""},
        {"1/1/0099", english, ""},   {"2025年2/20", japanese, ""},
        {"2/20/99999", english, ""}, {"-2/20/2025", english, ""},
    };
    for (const auto& c : cases)
        EXPECT_FALSE(dateTyped(QString::fromUtf8(c.typed), c.format)) << c.typed;
}

TEST(TypedMoment, ATimeIsReadWithHalvesOfTheDayOrWithout)
{
    const std::pair<const char*, const char*> cases[] = {
        {"15:30", "15:30:00"},       {"3:30:00 PM", "15:30:00"}, {"3:30 pm", "15:30:00"},
        {"3:30pm", "15:30:00"},      {"3:30 p.m.", "15:30:00"},  {"3 PM", "15:00:00"},
        {"12:00:00 AM", "00:00:00"}, {"12:05 PM", "12:05:00"},   {"12 am", "00:00:00"},
        {"00:00", "00:00:00"},       {"23:59:59", "23:59:59"},   {"3:30", "03:30:00"},
        {" 08:05 ", "08:05:00"},     {"15h30", "15:30:00"},      {"15 h 30", "15:30:00"},
        {"15h", "15:00:00"},         {"15:30 Uhr", "15:30:00"},  {"15時30分", "15:30:00"},
        {"15時5分7秒", "15:05:07"},  {"午後3:30", "15:30:00"},   {"午前0:30", "00:30:00"},
        {"１５：３０", "15:30:00"},
    };
    for (const auto& [typed, time] : cases) {
        const auto read = timeTyped(QString::fromUtf8(typed));
        ASSERT_TRUE(read) << typed;
        EXPECT_EQ(time, read->toString(QStringLiteral("HH:mm:ss")).toStdString()) << typed;
    }
}

TEST(TypedMoment, WhatIsNoTimeOrOnlyAPartOfOneIsNotUnderstood)
{
    for (const char* typed : {"", "3", "15", "15:", "15:3", "15:30:", "15:30:0", "24:00", "15:60",
                              "15:30:60", "13:00 PM", "0:30 AM", "PM", ":30", "3:30 XM", "noon",
                              "15:30:00.5", "1530", "3:30 PM PM"})
        EXPECT_FALSE(timeTyped(QString::fromUtf8(typed))) << typed;
}

} // namespace

} // namespace desktop
