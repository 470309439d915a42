// SPDX-License-Identifier: MIT
#include "modules/Recorder.h"

#include <array>
#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace {

constinit std::array<char, 1024> events{};
constinit std::array<char, 1024> taken{};

} // namespace

void recordEvent(const char* event) noexcept
{
    const std::size_t length = std::strlen(events.data());
    std::snprintf(events.data() + length, events.size() - length, "%s ", event);
    if (!std::getenv("VQ_PRINT_EVENTS"))
        return;
    std::printf("%s ", event);
    std::fflush(stdout);
}

const char* takeEvents() noexcept
{
    taken = events;
    events.fill('\0');
    return taken.data();
}
