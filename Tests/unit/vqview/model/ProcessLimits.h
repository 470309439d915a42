// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// What a child process of a test may take; the limits go with it.

#include <sys/resource.h>
#include <unistd.h>

#include <fstream>

namespace vqview::test {

/// More than what the program has mapped: with a sanitizer that is terabytes.
inline void allowMemory(rlim_t moreBytes)
{
    std::ifstream file("/proc/self/statm");
    rlim_t pages = 0;
    file >> pages;
    const rlimit limit{pages * static_cast<rlim_t>(sysconf(_SC_PAGESIZE)) + moreBytes, RLIM_INFINITY};
    setrlimit(RLIMIT_AS, &limit);
}

/// More than what it has used; then it is ended.
inline void allowSeconds(rlim_t moreSeconds)
{
    rusage used{};
    getrusage(RUSAGE_SELF, &used);
    const auto seconds = static_cast<rlim_t>(used.ru_utime.tv_sec + used.ru_stime.tv_sec + 1);
    const rlimit limit{seconds + moreSeconds, RLIM_INFINITY};
    setrlimit(RLIMIT_CPU, &limit);
}

} // namespace vqview::test
