#include "app/SystemInfo.h"

#include <QSysInfo>

#if defined(_WIN32)
#include <windows.h>
#elif defined(__APPLE__)
#include <sys/sysctl.h>
#include <sys/types.h>
#else
#include <unistd.h>
#endif

namespace {

std::uint64_t physicalMemoryBytes() {
#if defined(_WIN32)
    MEMORYSTATUSEX status{};
    status.dwLength = sizeof status;
    return GlobalMemoryStatusEx(&status) ? status.ullTotalPhys : 0;
#elif defined(__APPLE__)
    std::uint64_t bytes = 0;
    std::size_t size = sizeof bytes;
    int names[2] = {CTL_HW, HW_MEMSIZE};
    return sysctl(names, 2, &bytes, &size, nullptr, 0) == 0 ? bytes : 0;
#else
    const long pages = sysconf(_SC_PHYS_PAGES);
    const long pageSize = sysconf(_SC_PAGE_SIZE);
    if (pages <= 0 || pageSize <= 0) return 0;
    return static_cast<std::uint64_t>(pages) * static_cast<std::uint64_t>(pageSize);
#endif
}

}  // namespace

std::int64_t PhysicalMemoryMB() {
    constexpr std::uint64_t megabyte = 1024 * 1024;
    return static_cast<std::int64_t>((physicalMemoryBytes() + megabyte - 1) / megabyte);
}

QString OperatingSystemName() {
    const QString name = QSysInfo::prettyProductName();
    return name.isEmpty() ? QSysInfo::kernelType() + ' ' + QSysInfo::kernelVersion() : name;
}
