// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/Export.h"
#include "Platform/System.h"

/// A lock between threads that its owner may enter again; it must be left as often as it was entered.
class VQPLATFORM_API CCriticalSection
{
public:
    /// Throws an `HRESULT` when the system refuses: 0x80070000 with the low 16 bits of the system's error code.
    CCriticalSection();
    ~CCriticalSection();
    CCriticalSection(const CCriticalSection&) = delete;
    CCriticalSection& operator=(const CCriticalSection&) = delete;

    operator CRITICAL_SECTION*() { return &m_sect; }

    /// Waits without limit. Always TRUE.
    BOOL Lock();
    /// Always TRUE.
    BOOL Unlock();

    CRITICAL_SECTION m_sect;
};

/// Holds a lock until it goes out of scope, or is told to let go.
class VQPLATFORM_API CSingleLock
{
public:
    explicit CSingleLock(CCriticalSection* section, BOOL initialLock = FALSE);
    ~CSingleLock();
    CSingleLock(const CSingleLock&) = delete;
    CSingleLock& operator=(const CSingleLock&) = delete;

    /// TRUE; FALSE when the lock is held already.
    BOOL Lock();
    /// FALSE when the lock is not held.
    BOOL Unlock();
    BOOL IsLocked() const { return m_isLocked; }

private:
    CCriticalSection* m_section;
    BOOL m_isLocked = FALSE;
};
