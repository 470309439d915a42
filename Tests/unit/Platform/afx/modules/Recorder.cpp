// SPDX-License-Identifier: MIT
#include "modules/Recorder.h"

#include <array>
#include <cstdio>
#include <string_view>

namespace {

constinit std::array<char, 1024> events{};
constinit std::array<char, 1024> taken{};
constinit std::string_view awaitedEvent;
constinit std::string_view expectedEvents;

} // namespace

void recordEvent(const char* event) noexcept
{
    const std::size_t length = std::string_view(events.data()).size();
    std::snprintf(events.data() + length, events.size() - length, "%s ", event);
    if (awaitedEvent != event)
        return;
    std::printf("%s 1 - events until the end of the process: %s\n", expectedEvents == events.data() ? "ok" : "not ok",
                events.data());
    std::fflush(stdout);
}

const char* takeEvents() noexcept
{
    taken = events;
    events.fill('\0');
    return taken.data();
}

void judgeEventsAt(const char* lastEvent, const char* expected) noexcept
{
    awaitedEvent = lastEvent;
    expectedEvents = expected;
}
