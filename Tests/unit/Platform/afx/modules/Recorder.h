// SPDX-License-Identifier: MIT
#pragma once

#include "modules/TestModules.h"

/// @file
/// Keeps what modules report about their life, in a library that outlives them.

/// Adds an event.
TESTMODULES_API void recordEvent(const char* event) noexcept;

/// The events since the last call, each followed by a space.
TESTMODULES_API const char* takeEvents() noexcept;

/// Compares all events with `expected` when `lastEvent` comes, and prints the result as a line of the Test Anything
/// Protocol: for what happens when no test runs any more. Both texts must live on until then.
TESTMODULES_API void judgeEventsAt(const char* lastEvent, const char* expected) noexcept;
