// SPDX-License-Identifier: MIT
#include "Platform/win32/Synchronisation.h"

void InitializeCriticalSection(LPCRITICAL_SECTION section)
{
    pthread_mutexattr_t attributes;
    pthread_mutexattr_init(&attributes);
    pthread_mutexattr_settype(&attributes, PTHREAD_MUTEX_RECURSIVE);
    pthread_mutex_init(&section->mutex, &attributes);
    pthread_mutexattr_destroy(&attributes);
}

BOOL InitializeCriticalSectionAndSpinCount(LPCRITICAL_SECTION section, DWORD)
{
    InitializeCriticalSection(section);
    return TRUE;
}

void DeleteCriticalSection(LPCRITICAL_SECTION section)
{
    pthread_mutex_destroy(&section->mutex);
}

void EnterCriticalSection(LPCRITICAL_SECTION section)
{
    pthread_mutex_lock(&section->mutex);
}

BOOL TryEnterCriticalSection(LPCRITICAL_SECTION section)
{
    return pthread_mutex_trylock(&section->mutex) == 0;
}

void LeaveCriticalSection(LPCRITICAL_SECTION section)
{
    pthread_mutex_unlock(&section->mutex);
}
