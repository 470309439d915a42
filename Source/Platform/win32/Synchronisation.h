// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// Locks between threads.

#include "Platform/win32/Types.h"

#include <pthread.h>

/// A lock that its owner may enter again. It must be left as often as it was entered, and stay where it is.
struct CRITICAL_SECTION
{
    pthread_mutex_t mutex;
};
using LPCRITICAL_SECTION = CRITICAL_SECTION*;

VQPLATFORM_API void InitializeCriticalSection(LPCRITICAL_SECTION section);
/// As `InitializeCriticalSection`; the spin count is accepted and not used. Always TRUE.
VQPLATFORM_API BOOL InitializeCriticalSectionAndSpinCount(LPCRITICAL_SECTION section, DWORD spinCount);
VQPLATFORM_API void DeleteCriticalSection(LPCRITICAL_SECTION section);
VQPLATFORM_API void EnterCriticalSection(LPCRITICAL_SECTION section);
/// TRUE when the lock is now held by the caller.
VQPLATFORM_API BOOL TryEnterCriticalSection(LPCRITICAL_SECTION section);
VQPLATFORM_API void LeaveCriticalSection(LPCRITICAL_SECTION section);
