// SPDX-License-Identifier: MIT
#pragma once

#include "modules/TestModules.h"

[[noreturn]] TESTMODULES_API void throwArchiveExceptionInLibrary(int cause);

/// The cause of the archive exception that `function` throws; -1 for another framework exception.
TESTMODULES_API int causeCaughtInLibrary(void (*function)());
