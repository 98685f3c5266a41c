#include <gtest/gtest.h>

#include "store/FileTimes.h"

TEST(CalendarDate, UnixTimesGiveTheirUtcDates) {
    const std::pair<std::int64_t, CalendarDate> cases[] = {
        {0, {1970, 1, 1}},
        {10, {1970, 1, 1}},
        {-1, {1969, 12, 31}},
        {1262304000, {2010, 1, 1}},
        {1262303999, {2009, 12, 31}},
        {951782400, {2000, 2, 29}},
        {2147483647, {2038, 1, 19}},
        {-2147483648LL, {1901, 12, 13}},
        {4102444800, {2100, 1, 1}},  // 2100 is no leap year
        {4107542400, {2100, 3, 1}},
        {-11644473600 + 86400 * 365, {1602, 1, 1}}};  // UTC: no step into local time
    for (const auto& [time, date] : cases) EXPECT_EQ(calendarDateFromUnixTime(time), date) << time;
}

TEST(CalendarDate, TheFileTimeRangeEndsIn1601AndAtTheLargestFileTime) {
    const std::int64_t from1601 = 11644473600;
    EXPECT_EQ(calendarDateFromUnixTime(-from1601), (CalendarDate{1601, 1, 1}));
    EXPECT_FALSE(calendarDateFromUnixTime(-from1601 - 1).has_value());
    const std::int64_t last = INT64_MAX / 10000000 - from1601;  // 30828-09-14, the last day a file time holds
    EXPECT_EQ(calendarDateFromUnixTime(last), (CalendarDate{30828, 9, 14}));
    EXPECT_FALSE(calendarDateFromUnixTime(last + 1).has_value());
}
