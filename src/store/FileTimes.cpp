#include "FileTimes.h"

#include <chrono>
#include <system_error>

#if defined(__linux__)
#include <fcntl.h>
#include <sys/stat.h>
#endif

namespace {

constexpr std::int64_t kSecondsFrom1601To1970 = 11644473600;
constexpr std::int64_t kSecondsPerDay = 86400;
// The largest file time is 2^63 - 1 intervals of 100 ns; a larger one makes the conversion fail.
constexpr std::int64_t kLastFileTimeSecond = INT64_MAX / 10000000 - kSecondsFrom1601To1970;

std::int64_t floorDivide(std::int64_t a, std::int64_t b) { return a / b - ((a % b != 0) && ((a < 0) != (b < 0))); }

// Proleptic Gregorian date of a day counted from 1970-01-01, by whole 400-year eras of 146097 days, with years
// taken to begin on 1 March so that the leap day falls at the end of each year.
CalendarDate dateOfDay(std::int64_t day) {
    const std::int64_t shifted = day + 719468;  // days from 0000-03-01 to 1970-01-01
    const std::int64_t era = floorDivide(shifted, 146097);
    const std::int64_t dayOfEra = shifted - era * 146097;  // 0..146096
    const std::int64_t yearOfEra = (dayOfEra - dayOfEra / 1460 + dayOfEra / 36524 - dayOfEra / 146096) / 365;  // 0..399
    const std::int64_t dayOfYear = dayOfEra - (365 * yearOfEra + yearOfEra / 4 - yearOfEra / 100);             // 0..365
    const std::int64_t monthFromMarch = (5 * dayOfYear + 2) / 153;                                             // 0..11
    CalendarDate date;
    date.day = static_cast<int>(dayOfYear - (153 * monthFromMarch + 2) / 5 + 1);
    date.month = static_cast<int>(monthFromMarch < 10 ? monthFromMarch + 3 : monthFromMarch - 9);
    date.year = static_cast<int>(yearOfEra + era * 400 + (date.month <= 2 ? 1 : 0));
    return date;
}

}  // namespace

std::optional<std::int64_t> fileCreationTime(const std::filesystem::path& path) {
#if defined(__linux__)
    struct statx info {};
    if (::statx(AT_FDCWD, path.c_str(), 0, STATX_BTIME | STATX_MTIME, &info) != 0) return std::nullopt;
    if (info.stx_mask & STATX_BTIME) return static_cast<std::int64_t>(info.stx_btime.tv_sec);
    return static_cast<std::int64_t>(info.stx_mtime.tv_sec);
#else
    std::error_code error;
    const auto written = std::filesystem::last_write_time(path, error);
    if (error) return std::nullopt;
    const auto system = std::chrono::file_clock::to_sys(written);
    return std::chrono::duration_cast<std::chrono::seconds>(system.time_since_epoch()).count();
#endif
}

std::optional<CalendarDate> calendarDateFromUnixTime(std::int64_t seconds) {
    if (seconds < -kSecondsFrom1601To1970 || seconds > kLastFileTimeSecond) return std::nullopt;
    // The day boundary of a file time and of a time since 1970 coincide: 11644473600 s is 134774 whole days.
    return dateOfDay(floorDivide(seconds, kSecondsPerDay));
}
