#include <gtest/gtest.h>

#include "store/FileTimes.h"

// UTC throughout, and only within the range of a file time: from 1601-01-01 to 30828-09-14.
TEST(CalendarDate, UnixTimesGiveTheirUtcDatesWithinTheFileTimeRange) {
    const std::int64_t from1601 = 11644473600;
    const std::int64_t last = INT64_MAX / 10000000 - from1601;
    const std::pair<std::int64_t, std::optional<CalendarDate>> cases[] = {
        {0, CalendarDate{1970, 1, 1}},
        {10, CalendarDate{1970, 1, 1}},
        {-1, CalendarDate{1969, 12, 31}},
        {1262304000, CalendarDate{2010, 1, 1}},
        {1262303999, CalendarDate{2009, 12, 31}},
        {951782400, CalendarDate{2000, 2, 29}},
        {2147483647, CalendarDate{2038, 1, 19}},
        {-2147483648LL, CalendarDate{1901, 12, 13}},
        {4102444800, CalendarDate{2100, 1, 1}},  // 2100 is no leap year
        {4107542400, CalendarDate{2100, 3, 1}},
        {-from1601, CalendarDate{1601, 1, 1}},
        {-from1601 - 1, std::nullopt},
        {last, CalendarDate{30828, 9, 14}},
        {last + 1, std::nullopt}};
    for (const auto& [time, date] : cases) EXPECT_EQ(calendarDateFromUnixTime(time), date) << time;
}
