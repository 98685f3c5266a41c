// What the About box tells of the machine: its physical memory and the operating system's own name.
#pragma once

#include <cstdint>

#include <QString>

// Total physical memory in whole megabytes, rounded up; 0 when the system does not say.
std::int64_t PhysicalMemoryMB();

// The operating system's name as it presents itself ("Debian GNU/Linux 12 (bookworm)", "Windows 10 Version 22H2").
QString OperatingSystemName();
