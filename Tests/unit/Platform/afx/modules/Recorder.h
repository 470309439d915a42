// SPDX-License-Identifier: MIT
#pragma once

#include "modules/TestModules.h"

/// @file
/// Keeps what modules report about their life, in a library that outlives them.

/// Adds an event. Also printed when VQ_PRINT_EVENTS is set, for what happens when no test runs any more.
TESTMODULES_API void recordEvent(const char* event) noexcept;

/// The events since the last call, each followed by a space.
TESTMODULES_API const char* takeEvents() noexcept;
