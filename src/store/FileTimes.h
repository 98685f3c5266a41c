// When a file was made, and the calendar date of such a time, as the recording list shows it.
#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>

struct CalendarDate {
    int year = 0;
    int month = 0;  // 1..12
    int day = 0;    // 1..31
    bool operator==(const CalendarDate&) const = default;
};

// Seconds since 1970 (UTC) at which the file was created. This is the file's birth time where the file system
// records one (statx on Linux; ext4, XFS, Btrfs and tmpfs do), and its last-write time where it does not (older
// kernels, some network shares), which for a file written once is the same moment. Nothing for a missing file.
std::optional<std::int64_t> fileCreationTime(const std::filesystem::path& path);

// The date of a time in seconds since 1970, taken as a Windows file time ((t + 11644473600) x 10000000 intervals
// of 100 ns since 1601) and converted with no step into local time, so it is the date in UTC. Times the file time
// cannot hold (before 1601, or past its 63-bit range in the year 30828) have no date.
std::optional<CalendarDate> calendarDateFromUnixTime(std::int64_t seconds);

// The date as the whole number yyyymmdd, by which the recording list sorts.
inline int dateSortKey(const CalendarDate& date) { return date.year * 10000 + date.month * 100 + date.day; }
