#include <gtest/gtest.h>

#include "store/FileTimes.h"

namespace {

bool isLeap(std::int64_t year) { return (year % 4 == 0 && year % 100 != 0) || year % 400 == 0; }

// The date of a day counted from 1601-01-01, found by walking whole years and months: slow, but plainly right.
CalendarDate walkFrom1601(std::int64_t day) {
    static const int lengths[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    std::int64_t year = 1601;
    while (day >= (isLeap(year) ? 366 : 365)) day -= isLeap(year++) ? 366 : 365;
    int month = 0;
    while (day >= lengths[month] + (month == 1 && isLeap(year)))
        day -= lengths[month] + (month == 1 && isLeap(year)), ++month;
    return {static_cast<int>(year), month + 1, static_cast<int>(day) + 1};
}

}  // namespace

TEST(CalendarDate, UnixTimesGiveTheirUtcDates) {
    const std::pair<std::int64_t, CalendarDate> cases[] = {
        {0, {1970, 1, 1}},
        {10, {1970, 1, 1}},
        {-1, {1969, 12, 31}},
        {1262304000, {2010, 1, 1}},
        {1262303999, {2009, 12, 31}},
        {951782400, {2000, 2, 29}},
        {2147483647, {2038, 1, 19}},
        {-2147483648LL, {1901, 12, 13}}};  // UTC: no step into local time
    for (const auto& [time, date] : cases) EXPECT_EQ(calendarDateFromUnixTime(time), date) << time;
}

TEST(CalendarDate, AgreesWithAWalkOfTheCalendarAcrossTheFileTimeRange) {
    const std::int64_t from1601 = 11644473600;
    for (std::int64_t day = 0; day < 400 * 366 * 3; day += 97) {
        const std::int64_t seconds = day * 86400 - from1601 + 86399;
        ASSERT_EQ(calendarDateFromUnixTime(seconds), walkFrom1601(day)) << "day " << day;
    }
    EXPECT_EQ(calendarDateFromUnixTime(-from1601), (CalendarDate{1601, 1, 1}));
    EXPECT_FALSE(calendarDateFromUnixTime(-from1601 - 1).has_value());  // before 1601: no file time
    const std::int64_t last = INT64_MAX / 10000000 - from1601;
    EXPECT_EQ(calendarDateFromUnixTime(last), walkFrom1601((last + from1601) / 86400));
    EXPECT_FALSE(calendarDateFromUnixTime(last + 1).has_value());
}
